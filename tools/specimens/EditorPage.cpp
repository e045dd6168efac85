// The colour map's panel in the states that its events bring it to.
#include <functional>
#include <vector>

#include "gradient/GradientStops.h"
#include "tools/specimens/DemoEditor.h"
#include "tools/specimens/Pages.h"

namespace {

constexpr int32_t kColumnStep = 320;
constexpr int32_t kRowStep = 133;
constexpr Point kOrigin = {7, 1};

using Editor = DemoEditor;
using State = std::function<void(Editor& editor)>;

const std::vector<State> kStates = {
    [](Editor&) {},
    [](Editor& editor) {
      editor.Over(Editor::kPaste);
      editor.Over(Editor::kCopy);
    },
    [](Editor& editor) {
      editor.Press(Editor::OnStrip(54, 24));
      editor.Drag(Editor::OnStrip(132, 20));
    },
    [](Editor& editor) {
      editor.Press(Editor::OnStrip(104, 24));
      editor.Drag(Editor::OnStrip(104, 60));
    },
    [](Editor& editor) {
      editor.Click(Editor::kPresets);
      editor.Over(Editor::RowOf(2));
    },
    [](Editor& editor) {
      GradientView view(*editor.map);
      for (int32_t position = 3; position < 200; position += 9) {
        InsertStop(view, position, 0.5F, 0.5F, 0.5F);
      }
      editor.Click(Editor::kCopy);
      editor.Click(Editor::kFlip);
      editor.Press(Editor::kRandomize);
    },
};

const std::vector<State> kMoreStates = {
    [](Editor& editor) {
      editor.Click(Editor::kCopy);
      editor.Click(Editor::kFlip);
      editor.Click(Editor::kUndo);
      editor.Over(Editor::kFlip);
    },
    [](Editor& editor) { editor.panel->SetEnabled(false); },
    [](Editor& editor) {
      for (const int32_t position : {0, 50, 100, 150, 200}) {
        editor.Press(Editor::OnStrip(4 + position, 24));
        editor.Drag(Editor::OnStrip(4 + position, 99));
      }
    },
    [](Editor& editor) {
      GradientView view(*editor.map);
      ClearStops(view);
      for (int32_t i = 0; i < GradientStopLimit; ++i) {
        const auto share = static_cast<float>(i) / 49.0F;
        InsertStop(view, i * 4, share, 1.0F - share, 0.5F);
      }
      editor.Press(Editor::OnStrip(60, 4));
      editor.Drag(Editor::OnStrip(61, 4));
    },
    [](Editor& editor) {
      editor.Choose(3);
      editor.Press(Editor::kFlip);
    },
    [](Editor& editor) {
      editor.Choose(5);
      editor.Over(Editor::kReset);
    },
};

// Panels are always painted at scale 2; a screen of scale 1 gets them reduced.
void DrawPage(ImageBuffer& page, const std::vector<State>& states) {
  ImageBuffer picture;
  picture.Allocate(1280, 800, false);
  picture.SetScale(2.0F);
  picture.SetScaleAware(true);
  int32_t index = 0;
  for (const State& reach : states) {
    GradientRecord map;
    InitRecord(map);
    Editor editor(map);
    reach(editor);
    editor.Paint(picture, {kOrigin.x + index % 2 * kColumnStep, kOrigin.y + index / 2 * kRowStep});
    ++index;
  }
  picture.ScaleTo(page, picture.Bounds(), page.Bounds(), nullptr, {.boxFilter = true});
}

}  // namespace

void DrawEditorPage(ImageBuffer& page) {
  DrawPage(page, kStates);
}

void DrawEditorEndsPage(ImageBuffer& page) {
  DrawPage(page, kMoreStates);
}
