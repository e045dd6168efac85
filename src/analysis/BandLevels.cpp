// From a moment to 32 band levels: window, resonators, logarithm, group gains.
#include "analysis/BandLevels.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>

#include "AE_EffectCB.h"
#include "analysis/BandAudioSource.h"
#include "analysis/ResonatorBank.h"
#include "analysis/ResonatorTuning.h"
#include "platform/Truncate.h"
#include "shell/ParameterTable.h"
#include "shell/ParameterValue.h"

namespace {

constexpr double kWindowSeconds = 0.15;
constexpr double kLevelGain = 0.4;
constexpr double kWeightGain = 6.0;

AudioWindow WindowAround(int32_t time, uint32_t timeScale) {
  using Limits = std::numeric_limits<int32_t>;
  const auto duration = Truncate<int32_t>(timeScale * kWindowSeconds + 1.0);
  const int64_t start = int64_t{time} - duration / 2;
  // Only a time within a window of the ends of int32 is held.
  const int64_t held = std::clamp<int64_t>(start, Limits::min(), Limits::max());
  return {static_cast<int32_t>(held), duration, timeScale};
}

// How much the four group gains raise a band.
double GroupWeight(int32_t band, const PF_ParamDef* const* params) {
  const GroupShares shares = GroupSharesOf(band);
  return shares.base * FixedSliderValue(params, kBase) +
         shares.subBase * FixedSliderValue(params, kSubBase) +
         shares.mid * FixedSliderValue(params, kMid) +
         shares.treble * FixedSliderValue(params, kTreble);
}

}  // namespace

PF_Err ComputeBandLevels(const PF_InData* in_data, const PF_ParamDef* const* params, int32_t time,
                         uint32_t timeScale, std::span<double, kBandCount> levels) {
  const BandAudioSource source(in_data, WindowAround(time, timeScale));
  StereoFrames frames;
  const PF_Err err = source.Fetch(frames);
  if (err != PF_Err_NONE || frames.count == 0) {
    std::ranges::fill(levels, 0.0);
    return err;
  }

  const PF_ANSICallbacks& ansi = in_data->utils->ansi;
  const double Q = FixedSliderValue(params, kQ);
  const ResonatorBank bank = TuneResonators(levels, Q, ansi);
  std::array<double, kBandCount> sums{};
  SumMagnitudes(bank, frames, PopupChoice(params, kChannel), sums);

  const double meanScale = 1.0 / frames.count;
  const double gain = ansi.sqrt(1.0 / Q) * kLevelGain;
  const double scale = FixedSliderValue(params, kScale);
  for (size_t i = 0; i < static_cast<size_t>(bank.count); ++i) {
    const int32_t band = bank.band[i];
    const double level = ansi.log(sums[i] * meanScale + 1.0) * (gain * scale);
    const double weighted = GroupWeight(band, params) * kWeightGain * level;
    // In this order what is not a number becomes 1.0 as well.
    levels[static_cast<size_t>(band)] = weighted < 1.0 ? weighted : 1.0;
  }
  return PF_Err_NONE;
}
