// The host's suites for pixel buffers and for colour parameters in floating point.
#pragma once

#include "AE_Effect.h"

inline constexpr char kPFWorldSuite[] = "PF World Suite";
inline constexpr int kPFWorldSuiteVersion2 = 2;

struct PF_WorldSuite2 {
  PF_Err (*PF_NewWorld)(PF_ProgPtr effect_ref, A_long width, A_long height, PF_Boolean clear,
                        PF_PixelFormat format, PF_EffectWorld* world);
  PF_Err (*PF_DisposeWorld)(PF_ProgPtr effect_ref, PF_EffectWorld* world);
  PF_Err (*PF_GetPixelFormat)(const PF_EffectWorld* world, PF_PixelFormat* format);
};

static_assert(offsetof(PF_WorldSuite2, PF_NewWorld) == 0);
static_assert(offsetof(PF_WorldSuite2, PF_DisposeWorld) == 8);
static_assert(offsetof(PF_WorldSuite2, PF_GetPixelFormat) == 16);
static_assert(sizeof(PF_WorldSuite2) == 24);

inline constexpr char kPFColorParamSuite[] = "PF ColorParamSuite";
inline constexpr int kPFColorParamSuiteVersion1 = 1;

struct PF_ColorParamSuite1 {
  PF_Err (*PF_GetFloatingPointColorFromColorDef)(PF_ProgPtr effect_ref,
                                                 const PF_ParamDef* color_def,
                                                 PF_PixelFloat* color);
};

static_assert(offsetof(PF_ColorParamSuite1, PF_GetFloatingPointColorFromColorDef) == 0);
static_assert(sizeof(PF_ColorParamSuite1) == 8);
