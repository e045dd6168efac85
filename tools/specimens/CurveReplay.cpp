// Replays a script of events in the curve editor.
#include "tools/specimens/CurveReplay.h"

#include <cstdio>

#include "tools/specimens/DemoCurveEditor.h"
#include "tools/specimens/DemoPicture.h"
#include "tools/specimens/DemoScreen.h"
#include "workbench/cli/EventScript.h"

namespace {

using Kind = ScriptEvent::Kind;

constexpr Kind kEditorEvents[] = {Kind::kClick, Kind::kDrag, Kind::kRelease, Kind::kMove,
                                  Kind::kKey,   Kind::kDraw, Kind::kSnapshot};

Point PointOf(const ScriptEvent& event) {
  return {event.point.h, event.point.v};
}

Modifiers ModifiersOf(const ScriptEvent& event) {
  const auto has = [&event](PF_Modifiers key) { return (event.modifiers & key) != 0; };
  const bool command = has(PF_Mod_CMD_CTRL_KEY);
  return {has(PF_Mod_SHIFT_KEY), has(PF_Mod_OPT_ALT_KEY), command, command, false};
}

void Picture(DemoCurveEditor& editor, ImageBuffer& picture) {
  MakeDemoPicture(picture, EvolutionPanel::kWidth, EvolutionPanel::kHeight, DemoScreen::kScale);
  editor.Paint(picture, {0, 0});
}

void WriteSnapshot(DemoCurveEditor& editor, const std::filesystem::path& file) {
  ImageBuffer picture;
  Picture(editor, picture);
  WriteDemoPicture(picture, file);
  std::printf("%s\n", file.string().c_str());
}

void Replay(DemoCurveEditor& editor, const ScriptEvent& event,
            const std::filesystem::path& folder) {
  switch (event.kind) {
    case Kind::kClick:
      return editor.Press(PointOf(event), ModifiersOf(event), event.clicks > 1);
    case Kind::kDrag:
      return editor.Drag(PointOf(event), ModifiersOf(event));
    case Kind::kRelease:
      return editor.Release(PointOf(event));
    case Kind::kMove:
      std::printf("Line %d: cursor %d\n", event.line,
                  editor.Over(PointOf(event), ModifiersOf(event)));
      return;
    case Kind::kKey:
      return editor.Key(event.number, ModifiersOf(event));
    case Kind::kDraw: {
      ImageBuffer picture;
      return Picture(editor, picture);
    }
    case Kind::kSnapshot:
      return WriteSnapshot(editor, folder / event.file);
    case Kind::kCalls:  // none of the editor's events
    case Kind::kFrame:
    case Kind::kAnswer:
    case Kind::kInstance:
      return;
  }
}

}  // namespace

void ReplayInCurveEditor(const std::filesystem::path& script, const std::filesystem::path& folder) {
  const std::vector<ScriptEvent> events = ReadEventScript(script, kEditorEvents);
  std::filesystem::create_directories(folder);
  const DemoScreen screen;
  CurveRecord curve;
  DemoCurveEditor editor(ViewOf(curve), true);
  for (const ScriptEvent& event : events) Replay(editor, event, folder);
}
