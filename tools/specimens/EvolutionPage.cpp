// The curve editor in both modes, in the states that its events bring it to, and with its presets.
#include <functional>
#include <memory>
#include <vector>

#include "gradient/CurvePoints.h"
#include "tools/specimens/DemoCurveEditor.h"
#include "tools/specimens/DemoPicture.h"
#include "tools/specimens/DemoScreen.h"
#include "tools/specimens/Pages.h"
#include "tools/specimens/StillWindow.h"

namespace {

using Editor = DemoCurveEditor;
using State = std::function<void(Editor&)>;

const std::vector<State> kModes = {
    [](Editor& editor) {
      editor.Press(Editor::OnGraph(0, 90));
      editor.Drag(Editor::OnGraph(60, 10));
      editor.Drag(Editor::OnGraph(120, 70));
      editor.Drag(Editor::OnGraph(170, 20));
      editor.Over(Editor::kPaste);
    },
    [](Editor& editor) {
      editor.Choose(3);
      editor.Click(Editor::kCurveMode);
      editor.Press(Editor::OnGraph(110, 40));
      editor.Drag(Editor::OnGraph(112, 80));
    },
    [](Editor& editor) {
      editor.Click(Editor::kRandomize);
      editor.Click(Editor::kSmooth);
      editor.Press(Editor::kSmooth);
    },
    [](Editor& editor) {
      editor.Choose(1);
      editor.Click(Editor::kCurveMode);
      editor.Over(Editor::kFreehandMode);
    },
};

const std::vector<State> kEnds = {
    [](Editor& editor) {
      editor.Choose(2);
      editor.panel->SetEnabled(false);
    },
    [](Editor& editor) {
      editor.Choose(2);
      editor.Click(Editor::kCurveMode);
      editor.panel->SetEnabled(false);
    },
    [](Editor& editor) {
      editor.Click(Editor::kPresets);
      editor.Over(Editor::RowOf(2));
    },
    [](Editor& editor) {
      editor.Click(Editor::kCurveMode);
      ClearPoints(editor.record.curves[1]);
      for (int32_t i = 0; i < 26; ++i)
        editor.Click(Editor::OnGraph(4 + 8 * i, i % 2 == 0 ? 20 : 75));
    },
};

// A graph of each preset: as it is above, with its points below.
void DrawPresets(ImageBuffer& picture) {
  constexpr Point kStep = {213, 100};
  const CurvePresetSource source(92);
  StillWindow window;
  for (int32_t i = 0; i < source.GetPresetCount(); ++i) {
    for (const bool freehand : {true, false}) {
      CurveRecord copy = source.GetPreset(i);
      const CurveView view = ViewOf(copy);
      CustomPanel panel({0, 0, CurveSampleCount, 92}, 1);
      panel.SetWindowContext(&window);
      auto graph = std::make_unique<CurveGraph>(&panel, panel.GetBounds(), nullptr);
      graph->ShowMode(freehand);
      graph->SetCurve(&view);
      const Point place = {i % 3 * kStep.x + 6, (i / 3 * 2 + (freehand ? 0 : 1)) * kStep.y + 4};
      graph->DrawTree(graph->GetLocalBounds(), {-place.x, -place.y}, picture);
    }
  }
}

void DrawStates(ImageBuffer& picture, const std::vector<State>& states) {
  int32_t index = 0;
  for (const State& reach : states) {
    CurveRecord curve;
    Editor editor(ViewOf(curve), true);
    reach(editor);
    editor.Paint(picture, {7 + index % 2 * 320, 7 + index / 2 * 195});
    ++index;
  }
}

// Panels are always painted at the screen's scale; a picture of another one gets them brought to
// it. That isn't the screen buffer, which events paint on.
void DrawAtScreenScale(ImageBuffer& page, const std::function<void(ImageBuffer&)>& draw) {
  const DemoScreen screen;
  ImageBuffer picture;
  MakeDemoPicture(picture, 640, 400, DemoScreen::kScale);
  draw(picture);
  picture.ScaleTo(page, picture.Bounds(), page.Bounds(), nullptr, {.boxFilter = true});
}

}  // namespace

void DrawEvolutionPage(ImageBuffer& page) {
  DrawAtScreenScale(page, [](ImageBuffer& picture) { DrawStates(picture, kModes); });
}

void DrawEvolutionEndsPage(ImageBuffer& page) {
  DrawAtScreenScale(page, [](ImageBuffer& picture) { DrawStates(picture, kEnds); });
}

void DrawCurvePresetPage(ImageBuffer& page) {
  DrawAtScreenScale(page, DrawPresets);
}
