// The references, identifiers and values that the project suites deal in.
#pragma once

#include "A.h"

using AEGP_PluginID = A_long;
using AEGP_KeyframeIndex = A_long;
using AEGP_EffectIndex = A_long;

// Which clock a time is read on.
using AEGP_LTimeMode = A_long;
enum : AEGP_LTimeMode { AEGP_LTimeMode_LayerTime = 0, AEGP_LTimeMode_CompTime = 1 };

struct AEGP_OpaqueItem;
struct AEGP_OpaqueComp;
struct AEGP_OpaqueLayer;
struct AEGP_OpaqueEffectRef;
struct AEGP_OpaqueStreamRef;
struct AEGP_OpaqueAddKeyframesInfo;
struct AEGP_OpaqueMem;

using AEGP_ItemH = AEGP_OpaqueItem*;
using AEGP_CompH = AEGP_OpaqueComp*;
using AEGP_LayerH = AEGP_OpaqueLayer*;
using AEGP_EffectRefH = AEGP_OpaqueEffectRef*;
using AEGP_StreamRefH = AEGP_OpaqueStreamRef*;
using AEGP_AddKeyframesInfoH = AEGP_OpaqueAddKeyframesInfo*;
using AEGP_MemHandle = AEGP_OpaqueMem*;

// The kind of the stream tells which member is set: one_d for a slider.
union AEGP_StreamVal2 {
  A_FpLong four_d[4];
  A_FpLong three_d[3];
  A_FpLong two_d[2];
  A_FpLong one_d;
  A_FpLong color[4];
  void* arbH;
  void* markerP;
  A_long layer_id;
  A_long mask_id;
  void* mask;
  void* text_documentH;
};

struct AEGP_StreamValue2 {
  AEGP_StreamRefH streamH;
  AEGP_StreamVal2 val;
};

static_assert(sizeof(AEGP_StreamVal2) == 32);
static_assert(offsetof(AEGP_StreamValue2, streamH) == 0);
static_assert(offsetof(AEGP_StreamValue2, val) == 8);
static_assert(sizeof(AEGP_StreamValue2) == 40);
