// Builds the comp, the session and the instance.
#include "workbench/cli/Stage.h"

#include <algorithm>
#include <list>

#include "workbench/Failure.h"
#include "workbench/cli/ExecutableFolder.h"
#include "workbench/cli/ProjectFile.h"
#include "workbench/export/PartFile.h"
#include "workbench/host/ParameterText.h"

namespace {

constexpr size_t kAudioLayerParameter = 2;

TimeSpan WholeSound(const AudioClip* sound, double layerStart) {
  const double seconds =
      sound != nullptr ? static_cast<double>(sound->FrameCount()) / kClipSampleRateHz : 0.0;
  return {layerStart, layerStart + seconds};
}

Comp MakeComp(const StageOptions& options, const AudioClip* sound) {
  Comp comp;
  comp.width = options.size.width;
  comp.height = options.size.height;
  comp.timeScale = options.rate.scale;
  comp.timeStep = options.rate.step;
  const TimeSpan span = options.workArea.value_or(WholeSound(sound, options.layerStart));
  comp.workAreaStart = TicksAt(span.start, comp.timeScale);
  const int64_t end = TicksAt(span.end, comp.timeScale);
  comp.workAreaDuration =
      static_cast<int32_t>(std::min<int64_t>(end - comp.workAreaStart, INT32_MAX));
  return comp;
}

std::filesystem::path PluginPath(const StageOptions& options) {
  return options.plugin.empty() ? ExecutableFolder() / PluginFileName() : options.plugin;
}

std::string_view AsBytes(const std::vector<uint8_t>& record) {
  return {reinterpret_cast<const char*>(record.data()), record.size()};
}

}  // namespace

Stage::Stage(StageOptions stageOptions, const std::string& layerName,
             std::shared_ptr<const AudioClip> sound)
    : options(std::move(stageOptions)),
      comp(MakeComp(options, sound.get())),
      session(PluginPath(options)) {
  Layer& layer = comp.AddLayer(layerName, std::move(sound));
  layer.startTick = TicksAt(options.layerStart, comp.timeScale);
  std::optional<ProjectFile> project;
  if (!options.project.empty()) project = ReadProjectFile(options.project);
  instance = &session.AddInstance(layer, project ? project->record : std::nullopt);
  instance->chosenLayers[kAudioLayerParameter] = &layer;
  if (project) RestoreParameters(*project, options.project, session, *instance);
  ApplySettings(*instance);
}

EffectInstance& Stage::AddInstance() {
  Layer& layer = instance->EffectLayer();
  EffectInstance& added = session.AddInstance(layer);
  added.chosenLayers[kAudioLayerParameter] = &layer;
  ApplySettings(added);
  return added;
}

void Stage::ApplySettings(EffectInstance& target) {
  const ParameterList& parameters = session.Parameters();
  for (const std::string& setting : options.settings) {
    const size_t equals = setting.find('=');
    if (equals == std::string::npos) {
      throw UsageFailure(R"(--set takes NAME=VALUE, such as "Range 2/Active=on", not ")" + setting +
                         "\".");
    }
    const size_t index = parameters.Find(setting.substr(0, equals));
    SetFromText(target, parameters, index, setting.substr(equals + 1));
    session.UserChanged(target, index);
  }
}

void Stage::Finish(const std::function<void()>& publishFirst) {
  std::vector<uint8_t> record;
  std::string project;
  if (!options.record.empty() || !options.project.empty()) {
    record = session.FlattenedRecord(*instance);
  }
  if (!options.project.empty()) {
    project = ProjectFileText(session.Parameters(), *instance, record);
  }
  session.Close();
  // All files are whole before the first takes its name, so that a full disk leaves none.
  std::list<PartFile> files;
  const auto prepare = [&files](const std::filesystem::path& path, std::string_view bytes) {
    PartFile& file = files.emplace_back(path);
    file.Write(bytes);
    file.Close();
  };
  if (!options.record.empty()) prepare(options.record, AsBytes(record));
  if (!options.project.empty()) prepare(options.project, project);
  if (publishFirst) publishFirst();
  for (PartFile& file : files) file.Publish();
}
