// Sorts a run's keyframes into rows, and picks the file's form.
#include "workbench/cli/KeyframeRun.h"

#include <algorithm>
#include <charconv>

#include "workbench/Failure.h"
#include "workbench/export/KeyframeClipboardText.h"
#include "workbench/export/KeyframeCsv.h"
#include "workbench/export/KeyframeJson.h"

namespace {

// The number at the end of "Output 2".
int RangeOf(const ParameterList& parameters, size_t parameter) {
  const std::string_view name = parameters.At(parameter).Name();
  const size_t blank = name.rfind(' ');
  int range = 0;
  std::from_chars(name.data() + blank + 1, name.data() + name.size(), range);
  if (range < 1 || range > kLastRange) {
    throw JobFailure("The plug-in wrote keyframes on " + std::string(name) +
                     ", which is none of its outputs.");
  }
  return range;
}

// A run of one keyframe a range shows no step; the comp's frame stands in for it.
uint32_t StepOf(const std::vector<KeyframeRow>& rows, const Comp& comp) {
  for (size_t i = 1; i < rows.size(); ++i) {
    if (rows[i].range == rows[0].range) {
      return static_cast<uint32_t>(int64_t{rows[i].tick} - rows[0].tick);
    }
  }
  const int64_t frame = int64_t{rows.empty() ? 1 : rows[0].scale} * comp.timeStep / comp.timeScale;
  return static_cast<uint32_t>(std::max<int64_t>(frame, 1));
}

}  // namespace

KeyframeWriter WriterFor(const char* option, const std::filesystem::path& file) {
  const std::string extension = file.extension().string();
  if (extension == ".csv") return KeyframesAsCsv;
  if (extension == ".json") return KeyframesAsJson;
  if (extension == ".txt") return KeyframesAsClipboardText;
  throw UsageFailure(std::string(option) + " " + file.string() +
                     ": the file's name has to end in .csv, .json or .txt.");
}

KeyframeTable TableOf(Stage& stage, std::vector<WrittenKeyframe> written) {
  std::sort(written.begin(), written.end(),
            [](const auto& a, const auto& b) { return a.order < b.order; });
  KeyframeTable table;
  for (const WrittenKeyframe& key : written) {
    table.rows.push_back({RangeOf(stage.Session().Parameters(), key.parameter),
                          key.keyframe.time.value, key.keyframe.time.scale, key.keyframe.value});
  }
  table.width = stage.ProjectComp().width;
  table.height = stage.ProjectComp().height;
  table.step = StepOf(table.rows, stage.ProjectComp());
  if (!table.rows.empty()) table.scale = table.rows.front().scale;
  return table;
}

void RequireBoundedRun(const Comp& comp) {
  constexpr double kMostKeyframes = 1e7;
  constexpr double kFastestOwnRate = 200.0;
  const double framesPerSecond = static_cast<double>(comp.timeScale) / comp.timeStep;
  const double seconds = static_cast<double>(comp.workAreaDuration) / comp.timeScale;
  if (seconds * std::max(framesPerSecond, kFastestOwnRate) <= kMostKeyframes) return;
  throw UsageFailure(
      "A run over this work area could make more than ten million keyframes. Narrow it with "
      "--work-area, or lower --fps.");
}
