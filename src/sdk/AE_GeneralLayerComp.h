// The layer and the comp suite, whose slots are our reading of the interface.
//
// The host has had several layouts of these two suites, and which one belongs to the version that
// we ask for is not known. The layout here is our choice: the slot positions below are the only
// place that says where a function stands, so a host that proves them wrong is answered here.
#pragma once

#include "AE_GeneralTypes.h"

inline constexpr size_t kLayerSuiteSlots = 42;
inline constexpr size_t kGetLayerParentCompSlot = 5;
inline constexpr size_t kConvertCompToLayerTimeSlot = 33;

inline constexpr size_t kCompSuiteSlots = 25;
inline constexpr size_t kGetCompWorkAreaStartSlot = 10;
inline constexpr size_t kGetCompWorkAreaDurationSlot = 11;

inline constexpr char kAEGPLayerSuite[] = "AEGP Layer Suite";
inline constexpr int kAEGPLayerSuiteVersion5 = 5;

// AEGP_GetLayerParentComp      the comp that holds the layer
// AEGP_ConvertCompToLayerTime  the layer's own time at a comp time
struct AEGP_LayerSuite5 {
  void* opaque0[kGetLayerParentCompSlot];
  A_Err (*AEGP_GetLayerParentComp)(AEGP_LayerH layer, AEGP_CompH* comp);
  void* opaque1[kConvertCompToLayerTimeSlot - kGetLayerParentCompSlot - 1];
  A_Err (*AEGP_ConvertCompToLayerTime)(AEGP_LayerH layer, const A_Time* comp_time,
                                       A_Time* layer_time);
  void* opaque2[kLayerSuiteSlots - kConvertCompToLayerTimeSlot - 1];
};

static_assert(offsetof(AEGP_LayerSuite5, AEGP_GetLayerParentComp) == 8 * kGetLayerParentCompSlot);
static_assert(offsetof(AEGP_LayerSuite5, AEGP_ConvertCompToLayerTime) ==
              8 * kConvertCompToLayerTimeSlot);
static_assert(sizeof(AEGP_LayerSuite5) == 8 * kLayerSuiteSlots);

inline constexpr char kAEGPCompSuite[] = "AEGP Comp Suite";
inline constexpr int kAEGPCompSuiteVersion4 = 4;

// Start and duration of the work area are in comp time.
struct AEGP_CompSuite4 {
  void* opaque0[kGetCompWorkAreaStartSlot];
  A_Err (*AEGP_GetCompWorkAreaStart)(AEGP_CompH comp, A_Time* start);
  A_Err (*AEGP_GetCompWorkAreaDuration)(AEGP_CompH comp, A_Time* duration);
  void* opaque1[kCompSuiteSlots - kGetCompWorkAreaDurationSlot - 1];
};

static_assert(offsetof(AEGP_CompSuite4, AEGP_GetCompWorkAreaStart) ==
              8 * kGetCompWorkAreaStartSlot);
static_assert(offsetof(AEGP_CompSuite4, AEGP_GetCompWorkAreaDuration) ==
              8 * kGetCompWorkAreaDurationSlot);
static_assert(sizeof(AEGP_CompSuite4) == 8 * kCompSuiteSlots);
