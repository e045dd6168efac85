// The apply command.
#include "workbench/cli/ApplyCommand.h"

#include <iostream>
#include <memory>

#include "workbench/audio/AudioDecoder.h"
#include "workbench/cli/KeyframeRun.h"
#include "workbench/cli/Progress.h"
#include "workbench/cli/RunSummary.h"
#include "workbench/export/PartFile.h"

int RunApply(const StageOptions& stageOptions, const ApplyOptions& options) {
  const KeyframeWriter writer = WriterFor("--out", options.out);
  const auto sound = std::make_shared<const AudioClip>(DecodeAudioFile(options.audio));
  Stage stage(stageOptions, options.audio.filename().string(), sound);
  RequireBoundedRun(stage.ProjectComp());
  {
    ProgressLine progress(stageOptions.quiet);
    stage.Session().Host().onInfoText = [&progress](const char* text) { progress.Show(text); };
    stage.Session().PressApply(stage.Instance());
    stage.Session().Host().onInfoText = nullptr;
  }
  for (const std::string& message : stage.Session().Messages()) std::cerr << message << '\n';
  const KeyframeTable table = TableOf(stage, stage.Instance().written);
  const std::string text = writer(table);
  PartFile file(options.out);
  file.Write(text);
  file.Close();
  stage.Finish([&file] { file.Publish(); });
  if (!stageOptions.quiet) std::cout << SummaryOf(table, options.out);
  return 0;
}
