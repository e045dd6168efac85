// The suites that this host has, and the basic suite through which they are asked for.
#pragma once

#include "AE_AdvEffectSuites.h"
#include "AE_EffectCBSuites.h"
#include "AE_EffectSuites.h"
#include "AE_GeneralPlug.h"
#include "DrawbotSuite.h"
#include "SPBasic.h"

// Lives as long as the program.
SPBasicSuite* BasicSuite();

// The address of a suite's table, or null where this host has no such suite.
const void* FindSuite(const char* name, int version);

// The tables themselves, one source file for each kind.
const PF_ParamUtilsSuite2& ParamUtilsSuite();
const PFAppSuite6& AppSuite();
const PF_AdvAppSuite1& AdvAppSuite();
const PF_EffectCustomUISuite1& CustomUISuite();
const DRAWBOT_DrawbotSuite1& DrawSuite();
const DRAWBOT_SupplierSuite1& SupplierSuite();
const DRAWBOT_SurfaceSuite2& SurfaceSuite();
const DRAWBOT_PathSuite1& PathSuite();
const PF_WorldSuite2& WorldSuite();
const PF_ColorParamSuite1& ColorParamSuite();
const AEGP_PFInterfaceSuite1& PFInterfaceSuite();
const AEGP_LayerSuite5& LayerSuite();
const AEGP_CompSuite4& CompSuite();
const AEGP_StreamSuite7& StreamSuite();
const AEGP_KeyframeSuite4& KeyframeSuite();
const AEGP_EffectSuite1& EffectSuite();
