// The order of a frame.
#include "graph/RenderSpectrumFrame.h"

#include <array>
#include <mutex>

#include "analysis/BandLevels.h"
#include "analysis/RangeEvaluation.h"
#include "graph/FalloffMemory.h"
#include "graph/GraphLayout.h"
#include "graph/GraphSettings.h"
#include "graph/OutputBars.h"
#include "graph/OutputWorld.h"
#include "graph/SpectrumGraph.h"
#include "host/HandleLock.h"
#include "shell/SequenceRecord.h"

namespace {

// The falloff memory is compared and then written: frames of one instance must not overlap, and
// the host may send them on several threads. A host that needs another frame to answer a call of
// this one asks for it on the same thread, which must not wait for itself. Made while the library
// is loaded, so that it is there before any thread.
std::recursive_mutex renderLock;

using RangeValues = std::array<double, kRangeCount>;

// What the sound around the current time comes to.
struct FrameAnalysis {
  std::array<double, kBandCount> levels{};
  RangeGeometry geometry;
  RangeValues raw{};
};

PF_Err AnalyzeFrame(const PF_InData* in_data, const PF_ParamDef* const* params,
                    const PF_LayerDef& output, FrameAnalysis& analysis) {
  analysis.levels.fill(1.0);  // all bands are asked for
  const PF_Err error = ComputeBandLevels(in_data, params, in_data->current_time,
                                         in_data->time_scale, analysis.levels);
  if (error != PF_Err_NONE) return error;
  ComputeRangeGeometry(params, output.width, output.height, analysis.geometry);
  EvaluateRanges(in_data, params, analysis.levels, analysis.raw, output.width, output.height,
                 &analysis.geometry);
  return PF_Err_NONE;
}

RangeValues AdvanceHeldValues(const PF_InData* in_data, const GraphSettings& settings,
                              const RangeValues& raw, SequenceRecord& record) {
  const FrameTime time{in_data->current_time, in_data->time_step, in_data->time_scale};
  const FalloffMemory memory = AdvanceFalloffMemory(
      ReadFalloffMemory(record), raw, settings.falloffs, time, in_data->utils->ansi.pow);
  StoreFalloffMemory(memory, record);
  return memory.heldValue;
}

}  // namespace

PF_Err RenderSpectrumFrame(const PluginHost_AE_Impl& host) {
  const PF_InData* in_data = host.InData();
  const PF_ParamDef* const* params = host.Params();
  PF_LayerDef* output = host.Output();
  if (params == nullptr || output == nullptr) return PF_Err_BAD_CALLBACK_PARAM;

  const std::lock_guard lock(renderLock);
  const GraphSettings settings = ReadGraphSettings(params);
  const GraphLayout layout = MakeGraphLayout(output->width, output->height);
  const LockedRecord<SequenceRecord> record(in_data, in_data->sequence_data);
  if (!record) return record.Error();

  FrameAnalysis analysis;
  PF_Err error = AnalyzeFrame(in_data, params, *output, analysis);
  if (error != PF_Err_NONE) return error;
  // Neither a colour nor a rectangle: the whole world becomes transparent black.
  error = in_data->utils->fill(in_data->effect_ref, nullptr, nullptr, output);
  if (error != PF_Err_NONE) return error;

  const OutputWorld world = MakeOutputWorld(*output);
  DrawSpectrumGraph(world, layout, settings, record->gradient, analysis.levels, analysis.geometry);
  const RangeValues held = AdvanceHeldValues(in_data, settings, analysis.raw, *record);
  if (settings.output) DrawOutputBars(world, layout, settings.active, analysis.raw, held);
  return PF_Err_NONE;
}
