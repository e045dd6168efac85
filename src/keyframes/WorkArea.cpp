// Asks the host for layer, comp and work area.
#include "keyframes/WorkArea.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "keyframes/HandedOut.h"

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
  PF_Err error = HandedOut(suites.PFInterfaceSuite().AEGP_GetEffectLayer(effectRef, &layer), layer);
  if (error != PF_Err_NONE) return error;

  const AEGP_LayerSuite5& layerSuite = suites.LayerSuite();
  AEGP_CompH comp = nullptr;
  error = HandedOut(layerSuite.AEGP_GetLayerParentComp(layer, &comp), comp);
  if (error != PF_Err_NONE) return error;

  const AEGP_CompSuite4& compSuite = suites.CompSuite();
  A_Time start{};
  error = HandedOut(compSuite.AEGP_GetCompWorkAreaStart(comp, &start), start);
  if (error != PF_Err_NONE) return error;

  A_Time duration{};
  error = HandedOut(compSuite.AEGP_GetCompWorkAreaDuration(comp, &duration), duration);
  if (error != PF_Err_NONE) return error;

  const A_Time end = EndOf(start, duration);
  A_Time& layerStart = workArea->start;
  error = HandedOut(layerSuite.AEGP_ConvertCompToLayerTime(layer, &start, &layerStart), layerStart);
  if (error != PF_Err_NONE) return error;
  A_Time& layerEnd = workArea->end;
  return HandedOut(layerSuite.AEGP_ConvertCompToLayerTime(layer, &end, &layerEnd), layerEnd);
}
