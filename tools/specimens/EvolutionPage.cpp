// The curve editor in both modes, in the states that its events bring it to, and with its presets.
#include <functional>
#include <memory>
#include <vector>

#include "drawing/Labeler.h"
#include "gradient/CurvePoints.h"
#include "gradient/EvolutionPanel.h"
#include "toolkit/SharedBuffers.h"
#include "tools/specimens/Pages.h"
#include "tools/specimens/StillWindow.h"

namespace {

constexpr Point kPresets = {265, 39};
constexpr Point kFirstRow = {265, 64};  // of the open menu, its middle
constexpr int32_t kRowHeight = 20;
constexpr Point kSmooth = {50, 164};
constexpr Point kRandomize = {120, 164};
constexpr Point kCurveMode = {252, 121};
constexpr Point kFreehandMode = {277, 121};
constexpr Point kPaste = {264, 95};

// A panel with a curve of its own.
class Editor {
 public:
  Editor() {
    panel.SetWindowContext(&window);
    const CurveView view = ViewOf(curve);
    ClearPoints(view);
    record.curves.fill(view);
    record.freehandFlags = 7;
    Arm();
  }

  void Over(const Point& point) { panel.MouseOver(point, {}); }
  void Press(const Point& point) {
    Over(point);
    panel.MouseDown(point, {}, false, kLeftButton);
    Arm();
  }
  void Drag(const Point& point) {
    panel.MouseDrag(point, 0, 0, {}, kLeftButton);
    Arm();
  }
  void Click(const Point& point) {
    Press(point);
    panel.MouseUp(point, kLeftButton);
    Over({-1, -1});
    Arm();
  }
  void Choose(int32_t preset) {
    Click(kPresets);
    Click({kFirstRow.x, kFirstRow.y + preset * kRowHeight});
  }
  void Paint(ImageBuffer& page, const Point& place) {
    panel.DrawTree(panel.GetLocalBounds(), {-place.x, -place.y}, page);
  }

  EvolutionPanel panel{13, "Evolution"};
  EvolutionRecord record;
  CurveRecord curve;

 private:
  void Arm() {
    EvolutionCallbacks callbacks;
    callbacks.canUndo = [](void*) { return true; };
    panel.SetPanelCallbacks(&callbacks);
    panel.SetPanelData(&record);
  }

  StillWindow window;
};

// A point of the graph: `x` and `y` are local to it.
constexpr Point OnGraph(int32_t x, int32_t y) {
  return {21 + x, 28 + y};
}

using State = std::function<void(Editor&)>;

const std::vector<State> kModes = {
    [](Editor& editor) {
      editor.Press(OnGraph(0, 90));
      editor.Drag(OnGraph(60, 10));
      editor.Drag(OnGraph(120, 70));
      editor.Drag(OnGraph(170, 20));
      editor.Over(kPaste);
    },
    [](Editor& editor) {
      editor.Choose(3);
      editor.Click(kCurveMode);
      editor.Press(OnGraph(110, 40));
      editor.Drag(OnGraph(112, 80));
    },
    [](Editor& editor) {
      editor.Click(kRandomize);
      editor.Click(kSmooth);
      editor.Press(kSmooth);
    },
    [](Editor& editor) {
      editor.Choose(1);
      editor.Click(kCurveMode);
      editor.Over(kFreehandMode);
    },
};

const std::vector<State> kEnds = {
    [](Editor& editor) {
      editor.Choose(2);
      editor.panel.SetEnabled(false);
    },
    [](Editor& editor) {
      editor.Choose(2);
      editor.Click(kCurveMode);
      editor.panel.SetEnabled(false);
    },
    [](Editor& editor) {
      editor.Click(kPresets);
      editor.Over({kFirstRow.x, kFirstRow.y + 2 * kRowHeight});
    },
    [](Editor& editor) {
      editor.Click(kCurveMode);
      ClearPoints(editor.record.curves[1]);
      for (int32_t i = 0; i < 26; ++i) editor.Click(OnGraph(4 + 8 * i, i % 2 == 0 ? 20 : 75));
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
    Editor editor;
    reach(editor);
    editor.Paint(picture, {7 + index % 2 * 320, 7 + index / 2 * 195});
    ++index;
  }
}

// Panels are always painted at the screen buffer's scale; a screen of scale 1 gets them reduced.
// The picture isn't the screen buffer, which events paint on.
void DrawAtScreenScale(ImageBuffer& page, const std::function<void(ImageBuffer&)>& draw) {
  NativeImageBuffer& screen = MakeScreenBuffer(1280, 800);
  screen.SetScale(2.0F);
  screen.SetScaleAware(true);
  SetScreenScale(screen.Scale());
  ImageBuffer picture;
  picture.Allocate(1280, 800, false);
  picture.SetScale(screen.Scale());
  picture.SetScaleAware(true);
  draw(picture);
  picture.ScaleTo(page, picture.Bounds(), page.Bounds(), nullptr, {.boxFilter = true});
  SetScreenScale(1.0F);
  DestroyScreenBuffer();
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
