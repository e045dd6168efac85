// The panel command.
#include "workbench/cli/PanelCommand.h"

#include <iostream>
#include <list>
#include <map>
#include <memory>

#include "workbench/Failure.h"
#include "workbench/audio/AudioDecoder.h"
#include "workbench/cli/EventScript.h"
#include "workbench/cli/KeyframeRun.h"
#include "workbench/cli/LoudestFrame.h"
#include "workbench/cli/RowFile.h"
#include "workbench/cli/Stage.h"
#include "workbench/drawbot/PictureCanvas.h"
#include "workbench/export/FrameAsPng.h"
#include "workbench/export/Ground.h"
#include "workbench/export/PartFile.h"

namespace {

using Kind = ScriptEvent::Kind;

constexpr Kind kRowEvents[] = {Kind::kClick,  Kind::kDrag,     Kind::kRelease, Kind::kMove,
                               Kind::kDraw,   Kind::kSnapshot, Kind::kCalls,   Kind::kFrame,
                               Kind::kAnswer, Kind::kInstance};

// A frame as the host keeps it: good until the effect asks for it anew.
struct ShownFrame {
  int64_t number = 0;
  int64_t rerenderCount = 0;  // when it was rendered
  std::string png;
};

// A row of one instance, as the user sees it, and the frame beside it.
struct ShownRow {
  EffectInstance* instance = nullptr;
  std::unique_ptr<PictureCanvas> canvas;
  std::unique_ptr<PanelRow> row;
  std::optional<ShownFrame> frame;
};

ShownRow OpenRow(Stage& stage, EffectInstance& instance, const PanelOptions& options) {
  ShownRow shown{&instance, nullptr, stage.Session().OpenRow(instance, options.row), {}};
  const PF_UnionableRect& frame = shown.row->pane.Frame();
  const CanvasArea area{frame.left, frame.top, frame.right - frame.left, frame.bottom - frame.top,
                        options.zoom};
  if (area.width < 1 || area.height < 1) {
    throw JobFailure("The row \"" + std::string(options.row) + "\" is " +
                     std::to_string(area.width) + " x " + std::to_string(area.height) +
                     " pixels, so there is nothing to see of it.");
  }
  shown.canvas = NewPictureCanvas(area, options.color);
  shown.row->canvas = shown.canvas.get();  // none: what is drawn is recorded alone
  shown.row->screenScale = static_cast<float>(options.zoom);
  shown.row->Draw();
  return shown;
}

std::string RenderAsPng(Stage& stage, EffectInstance& instance, int64_t number, Ground ground) {
  const Comp& comp = stage.ProjectComp();
  OutputWorld world(comp.width, comp.height);
  stage.Session().RenderFrame(instance, number, world);
  std::vector<PF_Pixel8> room;
  return FrameAsPng(LayOver(
      ground, {world.Row(0).data(), world.RowBytes(), world.Width(), world.Height()}, room));
}

// The panel while a script is replayed in it.
class PanelReplay {
 public:
  // loudest   the number of the frame that is shown where a script names none
  PanelReplay(Stage& replayStage, const PanelOptions& panelOptions, int64_t loudest)
      : stage(replayStage), options(panelOptions), loudestFrame(loudest) {
    Switch(1);
  }

  void Replay(const ScriptEvent& event) {
    switch (event.kind) {
      case Kind::kClick:
        return Row().Click(event.point, event.modifiers, event.clicks);
      case Kind::kDrag:
        return Row().Drag(event.point, event.modifiers);
      case Kind::kRelease:
        return Row().Release(event.point, event.modifiers);
      case Kind::kMove:
        return Move(event);
      case Kind::kKey:  // none of a row's events
        return;
      case Kind::kDraw:
        Row().pane.Invalidate(nullptr);
        return Row().Draw();
      case Kind::kSnapshot:
      case Kind::kCalls:
        Row().DrawIfInvalid();
        return AddRow(event.file);
      case Kind::kFrame:
        return Add(event.file, FrameOf(rows[current], event.frame.value_or(loudestFrame)));
      case Kind::kAnswer:
        return Row().pane.colorAnswers.push_back(event.color);
      case Kind::kInstance:
        return Switch(event.number);
    }
  }

  // Draws once more, and prepares the files.
  void Finish() {
    Row().pane.Invalidate(nullptr);
    Row().Draw();
    AddRow(options.out);
    if (!options.recordCalls.empty()) Add(options.recordCalls, CallLines());
    if (!options.keyframes.empty()) {
      const KeyframeTable table = TableOf(stage, Row().lastRun);
      Add(options.keyframes, WriterFor("--keyframes", options.keyframes)(table));
    }
    for (auto& [number, shown] : rows) {
      drawCount += shown.row->drawCount;
      rerenderCount += shown.row->rerenderCount;
    }
    keyframeCount = Row().lastRun.size();
    rows.clear();
  }

  void Publish() {
    for (PartFile& file : files) file.Publish();
  }

  std::string Summary() const {
    return notes + "Drawn " + std::to_string(drawCount) + " time(s), asked for the frame anew " +
           std::to_string(rerenderCount) + " time(s), " + std::to_string(keyframeCount) +
           " keyframe(s) of the last run\nWritten to " + options.out.string() + "\n";
  }

 private:
  PanelRow& Row() { return *rows[current].row; }

  void Move(const ScriptEvent& event) {
    const PF_CursorType cursor = Row().Move(event.point, event.modifiers);
    notes += "Line " + std::to_string(event.line) + ": cursor " + std::to_string(cursor) + "\n";
  }

  const std::string& FrameOf(ShownRow& shown, int64_t number) {
    const int64_t rerenders = shown.row->rerenderCount;
    std::optional<ShownFrame>& frame = shown.frame;
    if (!frame || frame->number != number || frame->rerenderCount != rerenders) {
      frame = {number, rerenders, RenderAsPng(stage, *shown.instance, number, options.ground)};
    }
    return frame->png;
  }

  // Answers that wait for a colour picker go along.
  void Switch(int32_t number) {
    if (number == current) return;
    std::deque<std::optional<PF_PixelFloat>> answers;
    if (current != 0) answers.swap(Row().pane.colorAnswers);
    if (!rows.contains(number)) {
      EffectInstance& instance = number == 1 ? stage.Instance() : stage.AddInstance();
      rows.emplace(number, OpenRow(stage, instance, options));
    }
    current = number;
    Row().pane.colorAnswers = std::move(answers);
  }

  void Add(const std::filesystem::path& path, std::string_view bytes) {
    PartFile& file = files.emplace_back(path);
    file.Write(bytes);
    file.Close();
  }

  void AddRow(const std::filesystem::path& path) {
    Add(path, RowFileBytes(path, rows[current].canvas.get(), Row().lastCalls));
  }

  std::string CallLines() {
    std::string lines;
    for (const DrawCall& call : Row().lastCalls) lines += DrawCallText(call) + "\n";
    return lines;
  }

  Stage& stage;
  const PanelOptions& options;
  int64_t loudestFrame;
  std::map<int32_t, ShownRow> rows;  // by instance
  int32_t current = 0;
  std::list<PartFile> files;
  std::string notes;
  int64_t drawCount = 0;
  int64_t rerenderCount = 0;
  size_t keyframeCount = 0;
};

PF_App_Color InterfaceColor(const PF_Pixel8& color) {
  const auto wide = [](uint8_t channel) { return static_cast<uint16_t>(channel * 257); };
  return {wide(color.red), wide(color.green), wide(color.blue)};
}

std::shared_ptr<const AudioClip> SoundOf(const PanelOptions& options) {
  if (options.audio.empty()) return nullptr;
  return std::make_shared<const AudioClip>(DecodeAudioFile(options.audio));
}

}  // namespace

int RunPanel(const StageOptions& stageOptions, const PanelOptions& options) {
  if (!IsRowFile(options.out)) {
    throw UsageFailure("--out " + options.out.string() +
                       ": the file's name has to end in .png or .txt.");
  }
  RequirePaintable(options.out);
  if (!options.keyframes.empty()) WriterFor("--keyframes", options.keyframes);
  std::vector<ScriptEvent> script;
  if (!options.events.empty()) script = ReadEventScript(options.events, kRowEvents);
  for (const ScriptEvent& event : script) {
    if (event.kind == Kind::kSnapshot) RequirePaintable(event.file);
  }
  const std::string layerName = options.audio.empty() ? "Solid" : options.audio.filename().string();
  const std::shared_ptr<const AudioClip> sound = SoundOf(options);
  Stage stage(stageOptions, layerName, sound);
  RequireBoundedRun(stage.ProjectComp());
  stage.Session().Host().Profile().interfaceColor = InterfaceColor(options.color);
  const Layer& layer = stage.Instance().EffectLayer();
  PanelReplay replay(stage, options, sound != nullptr ? LoudestFrame(*sound, layer) : 0);
  for (const ScriptEvent& event : script) replay.Replay(event);
  replay.Finish();
  for (const std::string& message : stage.Session().Messages()) std::cerr << message << '\n';
  stage.Finish([&replay] { replay.Publish(); });
  if (!stageOptions.quiet) std::cout << replay.Summary();
  return 0;
}
