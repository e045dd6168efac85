// The suites through which an effect reaches the project: its layer, streams and keyframes.
#pragma once

#include "AE_Effect.h"
#include "AE_GeneralLayerComp.h"
#include "AE_GeneralTypes.h"

inline constexpr char kAEGPPFInterfaceSuite[] = "AEGP PF Interface Suite";
inline constexpr int kAEGPPFInterfaceSuiteVersion1 = 1;

// AEGP_GetNewEffectForEffect  the caller disposes of the effect reference
struct AEGP_PFInterfaceSuite1 {
  A_Err (*AEGP_GetEffectLayer)(PF_ProgPtr effect_ref, AEGP_LayerH* layer);
  A_Err (*AEGP_GetNewEffectForEffect)(AEGP_PluginID plugin_id, PF_ProgPtr effect_ref,
                                      AEGP_EffectRefH* effect);
  void* AEGP_ConvertEffectToCompTime;
  void* AEGP_GetEffectCamera;
  void* AEGP_GetEffectCameraMatrix;
};

static_assert(offsetof(AEGP_PFInterfaceSuite1, AEGP_GetEffectLayer) == 0);
static_assert(offsetof(AEGP_PFInterfaceSuite1, AEGP_GetNewEffectForEffect) == 8);
static_assert(offsetof(AEGP_PFInterfaceSuite1, AEGP_ConvertEffectToCompTime) == 16);
static_assert(offsetof(AEGP_PFInterfaceSuite1, AEGP_GetEffectCamera) == 24);
static_assert(offsetof(AEGP_PFInterfaceSuite1, AEGP_GetEffectCameraMatrix) == 32);
static_assert(sizeof(AEGP_PFInterfaceSuite1) == 40);

inline constexpr char kAEGPStreamSuite[] = "AEGP Stream Suite";
inline constexpr int kAEGPStreamSuiteVersion7 = 7;

// The slots past 7 are opaque: their order isn't known for this version.
//
// AEGP_GetNewEffectStreamByIndex  the caller disposes of the stream, before the effect reference
struct AEGP_StreamSuite7 {
  void* AEGP_IsStreamLegal;
  void* AEGP_CanVaryOverTime;
  void* AEGP_GetValidInterpolations;
  void* AEGP_GetNewLayerStream;
  A_Err (*AEGP_GetEffectNumParamStreams)(AEGP_EffectRefH effect, A_long* num_params);
  A_Err (*AEGP_GetNewEffectStreamByIndex)(AEGP_PluginID plugin_id, AEGP_EffectRefH effect,
                                          PF_ParamIndex param_index, AEGP_StreamRefH* stream);
  void* AEGP_GetNewMaskStream;
  A_Err (*AEGP_DisposeStream)(AEGP_StreamRefH stream);
  void* opaque[14];
};

static_assert(offsetof(AEGP_StreamSuite7, AEGP_IsStreamLegal) == 0);
static_assert(offsetof(AEGP_StreamSuite7, AEGP_CanVaryOverTime) == 8);
static_assert(offsetof(AEGP_StreamSuite7, AEGP_GetValidInterpolations) == 16);
static_assert(offsetof(AEGP_StreamSuite7, AEGP_GetNewLayerStream) == 24);
static_assert(offsetof(AEGP_StreamSuite7, AEGP_GetEffectNumParamStreams) == 32);
static_assert(offsetof(AEGP_StreamSuite7, AEGP_GetNewEffectStreamByIndex) == 40);
static_assert(offsetof(AEGP_StreamSuite7, AEGP_GetNewMaskStream) == 48);
static_assert(offsetof(AEGP_StreamSuite7, AEGP_DisposeStream) == 56);
static_assert(offsetof(AEGP_StreamSuite7, opaque) == 64);
static_assert(sizeof(AEGP_StreamSuite7) == 176);

inline constexpr char kAEGPKeyframeSuite[] = "AEGP Keyframe Suite";
inline constexpr int kAEGPKeyframeSuiteVersion4 = 4;

// Keyframes are added in a batch: start, then add and set for each, then end.
//
// AEGP_AddKeyframes     key_index is what AEGP_SetAddKeyframe takes
// AEGP_EndAddKeyframes  add 0: the batch is thrown away
struct AEGP_KeyframeSuite4 {
  void* AEGP_GetStreamNumKFs;
  void* AEGP_GetKeyframeTime;
  void* AEGP_InsertKeyframe;
  void* AEGP_DeleteKeyframe;
  void* AEGP_GetNewKeyframeValue;
  void* AEGP_SetKeyframeValue;
  void* AEGP_GetStreamValueDimensionality;
  void* AEGP_GetStreamTemporalDimensionality;
  void* AEGP_GetNewKeyframeSpatialTangents;
  void* AEGP_SetKeyframeSpatialTangents;
  void* AEGP_GetKeyframeTemporalEase;
  void* AEGP_SetKeyframeTemporalEase;
  void* AEGP_GetKeyframeFlags;
  void* AEGP_SetKeyframeFlag;
  void* AEGP_GetKeyframeInterpolation;
  void* AEGP_SetKeyframeInterpolation;
  A_Err (*AEGP_StartAddKeyframes)(AEGP_StreamRefH stream, AEGP_AddKeyframesInfoH* info);
  A_Err (*AEGP_AddKeyframes)(AEGP_AddKeyframesInfoH info, AEGP_LTimeMode time_mode,
                             const A_Time* time, A_long* key_index);
  A_Err (*AEGP_SetAddKeyframe)(AEGP_AddKeyframesInfoH info, A_long key_index,
                               const AEGP_StreamValue2* value);
  A_Err (*AEGP_EndAddKeyframes)(A_Boolean add, AEGP_AddKeyframesInfoH info);
};

static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_GetStreamNumKFs) == 0);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_GetKeyframeTime) == 8);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_InsertKeyframe) == 16);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_DeleteKeyframe) == 24);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_GetNewKeyframeValue) == 32);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_SetKeyframeValue) == 40);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_GetStreamValueDimensionality) == 48);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_GetStreamTemporalDimensionality) == 56);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_GetNewKeyframeSpatialTangents) == 64);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_SetKeyframeSpatialTangents) == 72);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_GetKeyframeTemporalEase) == 80);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_SetKeyframeTemporalEase) == 88);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_GetKeyframeFlags) == 96);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_SetKeyframeFlag) == 104);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_GetKeyframeInterpolation) == 112);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_SetKeyframeInterpolation) == 120);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_StartAddKeyframes) == 128);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_AddKeyframes) == 136);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_SetAddKeyframe) == 144);
static_assert(offsetof(AEGP_KeyframeSuite4, AEGP_EndAddKeyframes) == 152);
static_assert(sizeof(AEGP_KeyframeSuite4) == 160);

inline constexpr char kAEGPEffectSuite[] = "AEGP Effect Suite";
inline constexpr int kAEGPEffectSuiteVersion1 = 1;

struct AEGP_EffectSuite1 {
  void* AEGP_GetLayerNumEffects;
  void* AEGP_GetLayerEffectByIndex;
  void* AEGP_GetInstalledKeyFromLayerEffect;
  void* AEGP_GetEffectParamUnionByIndex;
  void* AEGP_GetEffectFlags;
  void* AEGP_SetEffectFlags;
  void* AEGP_ReorderEffect;
  void* AEGP_EffectCallGeneric;
  A_Err (*AEGP_DisposeEffect)(AEGP_EffectRefH effect);
  void* AEGP_ApplyEffect;
  void* AEGP_DeleteLayerEffect;
  void* AEGP_GetNumInstalledEffects;
  void* AEGP_GetNextInstalledEffect;
  void* AEGP_GetEffectName;
  void* AEGP_GetEffectMatchName;
  void* AEGP_GetEffectCategory;
};

static_assert(offsetof(AEGP_EffectSuite1, AEGP_GetLayerNumEffects) == 0);
static_assert(offsetof(AEGP_EffectSuite1, AEGP_GetLayerEffectByIndex) == 8);
static_assert(offsetof(AEGP_EffectSuite1, AEGP_GetInstalledKeyFromLayerEffect) == 16);
static_assert(offsetof(AEGP_EffectSuite1, AEGP_GetEffectParamUnionByIndex) == 24);
static_assert(offsetof(AEGP_EffectSuite1, AEGP_GetEffectFlags) == 32);
static_assert(offsetof(AEGP_EffectSuite1, AEGP_SetEffectFlags) == 40);
static_assert(offsetof(AEGP_EffectSuite1, AEGP_ReorderEffect) == 48);
static_assert(offsetof(AEGP_EffectSuite1, AEGP_EffectCallGeneric) == 56);
static_assert(offsetof(AEGP_EffectSuite1, AEGP_DisposeEffect) == 64);
static_assert(offsetof(AEGP_EffectSuite1, AEGP_ApplyEffect) == 72);
static_assert(offsetof(AEGP_EffectSuite1, AEGP_DeleteLayerEffect) == 80);
static_assert(offsetof(AEGP_EffectSuite1, AEGP_GetNumInstalledEffects) == 88);
static_assert(offsetof(AEGP_EffectSuite1, AEGP_GetNextInstalledEffect) == 96);
static_assert(offsetof(AEGP_EffectSuite1, AEGP_GetEffectName) == 104);
static_assert(offsetof(AEGP_EffectSuite1, AEGP_GetEffectMatchName) == 112);
static_assert(offsetof(AEGP_EffectSuite1, AEGP_GetEffectCategory) == 120);
static_assert(sizeof(AEGP_EffectSuite1) == 128);
