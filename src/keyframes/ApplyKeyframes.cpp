// The run: read settings, fix the clock, open streams, walk, close.
#include "keyframes/ApplyKeyframes.h"

#include <array>
#include <cstdio>
#include <optional>
#include <span>

#include "analysis/BandLevels.h"
#include "analysis/OutputStage.h"
#include "analysis/RangeEvaluation.h"
#include "analysis/RangeGeometry.h"
#include "host/ReturnMessage.h"
#include "host/SuiteHandler.h"
#include "keyframes/KeyframeClock.h"
#include "keyframes/KeyframeStreams.h"
#include "keyframes/RunReport.h"
#include "keyframes/WorkArea.h"
#include "shell/ParameterTable.h"
#include "shell/ParameterValue.h"

namespace {

using BandMask = std::array<double, kBandCount>;

// What the parameters ask of a run, read once.
struct RunSettings {
  ActiveRanges active{};
  double rate = 0.0;  // keyframes per second
  RangeGeometry geometry;
  BandMask mask{};  // 1.0 for the bands that an active range covers
  std::array<OutputScale, kRangeCount> scales{};
};

double KeyframeRate(const PF_InData* in_data, const PF_ParamDef* const* params) {
  if (!IsChecked(params, kUseCompFps)) return FixedSliderValue(params, kKeyframesPerSecond);
  return static_cast<double>(in_data->time_scale) / static_cast<double>(in_data->time_step);
}

BandMask MaskOf(const RangeGeometry& geometry, const ActiveRanges& active) {
  BandMask mask{};
  for (size_t range = 0; range < active.size(); ++range) {
    const BandRun& run = geometry.bands[range];
    if (!active[range] || !LiesInBank(run)) continue;
    for (int32_t k = run.firstBand; k <= run.lastBand; ++k) mask[static_cast<size_t>(k)] = 1.0;
  }
  return mask;
}

RunSettings ReadSettings(const PF_InData* in_data, const PF_ParamDef* const* params) {
  RunSettings settings;
  for (int32_t range = 0; range < kRangeCount; ++range) {
    const auto slot = static_cast<size_t>(range);
    settings.active[slot] = IsRangeActive(params, range);
    settings.scales[slot] = ResolveOutputScale(params, range);
  }
  settings.rate = KeyframeRate(in_data, params);
  ComputeRangeGeometry(params, in_data->width, in_data->height, settings.geometry);
  settings.mask = MaskOf(settings.geometry, settings.active);
  return settings;
}

void ShowProgress(const PF_AdvAppSuite1& advAppSuite, int64_t number, int64_t count,
                  RunReport& report) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "(%d/%d)", static_cast<int>(number),
                static_cast<int>(count));
  report.Note("to show the progress", advAppSuite.PF_InfoDrawText(text.data(), nullptr));
}

// The raw values of the three ranges around `tick`; those of silence where the host gave no sound.
std::array<double, kRangeCount> RawValuesAt(const PF_InData* in_data,
                                            const PF_ParamDef* const* params,
                                            const RunSettings& settings, int32_t tick,
                                            const KeyframeClock& clock, RunReport& report) {
  BandMask levels = settings.mask;
  report.Note("the sound of a keyframe", ComputeBandLevels(in_data, params, tick, clock.S, levels));
  std::array<double, kRangeCount> values{};
  EvaluateRanges(in_data, params, levels, values, in_data->width, in_data->height,
                 &settings.geometry);
  return values;
}

// Falloff runs for every range, so that the stage sees one value a keyframe; only the active ones
// are written.
void WalkWorkArea(const PF_InData* in_data, const PF_ParamDef* const* params,
                  const RunSettings& settings, const KeyframeClock& clock,
                  const PF_AdvAppSuite1& advAppSuite, KeyframeStreams& streams, RunReport& report) {
  std::array<FalloffState, kRangeCount> falloffs{};
  for (int32_t range = 0; range < kRangeCount; ++range) {
    falloffs[static_cast<size_t>(range)] =
        MakeFalloffState(in_data, params, range, clock.S, clock.step);
  }
  const int64_t count = KeyframeCount(clock);
  for (int64_t number = 0; number < count; ++number) {
    const auto tick = static_cast<int32_t>(clock.startTick + number * clock.step);
    ShowProgress(advAppSuite, number + 1, count, report);
    const auto values = RawValuesAt(in_data, params, settings, tick, clock, report);
    for (int32_t range = 0; range < kRangeCount; ++range) {
      const auto slot = static_cast<size_t>(range);
      const double shaped = FalloffStep(falloffs[slot], values[slot]);
      if (!settings.active[slot]) continue;
      report.Note("to take a keyframe",
                  streams.Add(range, tick, clock.S, KeyframeValue(settings.scales[slot], shaped)));
    }
  }
}

PF_Err Refuse(PF_OutData* out_data, const char* text, PF_Err error) {
  ShowReturnMessage(out_data, text);
  return error;
}

}  // namespace

PF_Err ApplyKeyframes(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params,
                      PF_EventExtra* /*extra*/) {
  const RunSettings settings = ReadSettings(in_data, params);
  if (!AnyRangeActive(params)) return PF_Err_NONE;

  AEGP_SuiteHandler suites(in_data->pica_basicP);
  WorkArea workArea;
  PF_Err error = FindWorkArea(suites, in_data->effect_ref, &workArea);
  if (error != PF_Err_NONE) {
    return Refuse(out_data,
                  "Delvior: the comp's work area could not be read. No keyframe was made.", error);
  }
  const auto clock = MakeKeyframeClock(settings.rate, workArea.start, workArea.end);
  if (!clock) {
    return Refuse(
        out_data,
        "Delvior: keyframes need a rate of at least 0.01 per second. Set the comp's frame "
        "rate, or turn Use Comp fps off.",
        PF_Err_BAD_CALLBACK_PARAM);
  }
  const PF_AdvAppSuite1& advAppSuite = suites.AdvAppSuite();
  KeyframeStreams streams(suites, in_data->effect_ref, settings.active);
  if (streams.Error() != PF_Err_NONE) {
    return Refuse(out_data,
                  "Delvior: the output sliders could not be opened. No keyframe was made.",
                  streams.Error());
  }
  RunReport report;
  WalkWorkArea(in_data, params, settings, *clock, advAppSuite, streams, report);
  report.Note("to finish an output slider", streams.Close());
  report.Show(out_data);
  return report.FirstError();
}
