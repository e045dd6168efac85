// An effect that computes the band levels of a run and does nothing else: the yardstick for Apply.
#include <array>

#include "AE_Effect.h"
#include "analysis/BandLevels.h"
#include "shell/SetupParams.h"

namespace {

// The clock and the mask of a run at 30 keyframes a second with the default ranges.
constexpr uint32_t kTicksPerSecond = 3000;
constexpr int32_t kStep = 100;
constexpr int32_t kLastBandOfRange1 = 10;

void ComputeAllLevels(PF_InData* in_data, PF_ParamDef** params, int32_t keyframes) {
  for (int32_t number = 0; number < keyframes; ++number) {
    std::array<double, kBandCount> levels{};
    for (size_t k = 0; k <= kLastBandOfRange1; ++k) levels[k] = 1.0;
    ComputeBandLevels(in_data, params, number * kStep, kTicksPerSecond, levels);
  }
}

}  // namespace

// extra   with PF_Cmd_EVENT: an int32_t, the number of keyframes
extern "C" __attribute__((visibility("default"))) PF_Err EntryPointFunc(
    PF_Cmd cmd, PF_InData* in_data, PF_OutData* out_data, PF_ParamDef* params[],
    PF_LayerDef* /*output*/, void* extra) {
  if (cmd == PF_Cmd_PARAMS_SETUP) return SetupParams(in_data, out_data);
  if (cmd == PF_Cmd_EVENT) ComputeAllLevels(in_data, params, *static_cast<int32_t*>(extra));
  return PF_Err_NONE;
}
