// Asks the host for layer, comp and work area.
#include "keyframes/WorkArea.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace {

// The end of the area, on the duration's scale; held where the sum leaves what a time can hold.
A_Time EndOf(const A_Time& start, const A_Time& duration) {
  using Limits = std::numeric_limits<A_long>;
  const int64_t sum = static_cast<int64_t>(start.value) + duration.value;
  return {static_cast<A_long>(std::clamp<int64_t>(sum, Limits::min(), Limits::max())),
          duration.scale};
}

}  // namespace

PF_Err FindWorkArea(AEGP_SuiteHandler& suites, PF_ProgPtr effectRef, WorkArea* workArea) {
  AEGP_LayerH layer = nullptr;
  PF_Err error = suites.PFInterfaceSuite().AEGP_GetEffectLayer(effectRef, &layer);
  if (error != PF_Err_NONE) return error;

  AEGP_CompH comp = nullptr;
  error = suites.LayerSuite().AEGP_GetLayerParentComp(layer, &comp);
  if (error != PF_Err_NONE) return error;

  A_Time start{};
  error = suites.CompSuite().AEGP_GetCompWorkAreaStart(comp, &start);
  if (error != PF_Err_NONE) return error;

  A_Time duration{};
  error = suites.CompSuite().AEGP_GetCompWorkAreaDuration(comp, &duration);
  if (error != PF_Err_NONE) return error;

  const A_Time end = EndOf(start, duration);
  error = suites.LayerSuite().AEGP_ConvertCompToLayerTime(layer, &start, &workArea->start);
  if (error != PF_Err_NONE) return error;
  return suites.LayerSuite().AEGP_ConvertCompToLayerTime(layer, &end, &workArea->end);
}
