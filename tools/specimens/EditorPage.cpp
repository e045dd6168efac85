// The colour map's panel in the states that its events bring it to.
#include <functional>
#include <vector>

#include "drawing/Labeler.h"
#include "gradient/GradientClipboard.h"
#include "gradient/GradientPanel.h"
#include "gradient/GradientStops.h"
#include "gradient/GradientUndo.h"
#include "toolkit/SharedBuffers.h"
#include "tools/specimens/Pages.h"
#include "tools/specimens/StillWindow.h"

namespace {

constexpr int32_t kColumnStep = 320;
constexpr int32_t kRowStep = 133;
constexpr Point kOrigin = {7, 1};

constexpr Point kPresets = {265, 39};
constexpr Point kCopy = {264, 69};
constexpr Point kPaste = {264, 95};
constexpr Point kFlip = {156, 79};
constexpr Point kRandomize = {98, 79};
constexpr Point kUndo = {244, 14};
constexpr Point kReset = {289, 14};
constexpr int32_t kFirstRow = 14;  // of the open menu, its middle
constexpr int32_t kRowHeight = 20;

// A panel with a map, a clipboard and an undo of its own.
class Editor {
 public:
  Editor() {
    panel.SetWindowContext(&window);
    InitRecord(record);
    Arm();
  }
  ~Editor() { DropSnapshots(Slots()); }
  Editor(const Editor&) = delete;
  Editor& operator=(const Editor&) = delete;

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
    Click({kPresets.x, kFirstRow + preset * kRowHeight});
  }
  void Paint(ImageBuffer& page, const Point& place) {
    panel.DrawTree(panel.GetLocalBounds(), {-place.x, -place.y}, page);
  }

  GradientPanel panel{12, 306, 130, {}};
  GradientRecord record;
  GradientView view{record};

 private:
  GradientUndoSlots Slots() { return {undo, redo, owner}; }
  GradientClipboard Clipboard() { return {copied, filled}; }
  static Editor& From(void* context) { return *static_cast<Editor*>(context); }

  void Arm() {
    GradientCallbacks callbacks;
    callbacks.copyStops = [](void* c) { CopyStops(From(c).view, From(c).Clipboard()); };
    callbacks.pasteStops = [](void* c) { PasteStops(From(c).Clipboard(), From(c).view); };
    callbacks.canPaste = [](void* c) { return CanPaste(From(c).Clipboard()); };
    callbacks.undo = [](void* c) { UndoStops(From(c).Slots(), From(c).view); };
    callbacks.redo = [](void* c) { RedoStops(From(c).Slots(), From(c).view); };
    callbacks.canUndo = [](void* c) { return CanUndo(From(c).Slots(), 12); };
    callbacks.canRedo = [](void* c) { return CanRedo(From(c).Slots(), 12); };
    callbacks.pushUndo = [](void* c) { PushUndo(From(c).Slots(), From(c).view, 12); };
    callbacks.context = this;
    panel.SetPanelCallbacks(&callbacks);
    panel.SetPanelData(&view);
  }

  StillWindow window;
  GradientSnapshot copied;
  int32_t filled = 0;
  GradientSnapshot* undo = nullptr;
  GradientSnapshot* redo = nullptr;
  int32_t owner = -1;
};

// A point of the strip: `x` and `y` are local to it.
constexpr Point OnStrip(int32_t x, int32_t y) {
  return {13 + x, 29 + y};
}

using State = std::function<void(Editor&)>;

const std::vector<State> kStates = {
    [](Editor&) {},
    [](Editor& editor) {
      editor.Over(kPaste);
      editor.Over(kCopy);
    },
    [](Editor& editor) {
      editor.Press(OnStrip(54, 24));
      editor.Drag(OnStrip(132, 20));
    },
    [](Editor& editor) {
      editor.Press(OnStrip(104, 24));
      editor.Drag(OnStrip(104, 60));
    },
    [](Editor& editor) {
      editor.Click(kPresets);
      editor.Over({265, 60});
    },
    [](Editor& editor) {
      for (int32_t position = 3; position < 200; position += 9) {
        InsertStop(editor.view, position, 0.5F, 0.5F, 0.5F);
      }
      editor.Click(kCopy);
      editor.Click(kFlip);
      editor.Press(kRandomize);
    },
};

const std::vector<State> kMoreStates = {
    [](Editor& editor) {
      editor.Click(kCopy);
      editor.Click(kFlip);
      editor.Click(kUndo);
      editor.Over(kFlip);
    },
    [](Editor& editor) { editor.panel.SetEnabled(false); },
    [](Editor& editor) {
      for (const int32_t position : {0, 50, 100, 150, 200}) {
        editor.Press(OnStrip(4 + position, 24));
        editor.Drag(OnStrip(4 + position, 99));
      }
    },
    [](Editor& editor) {
      ClearStops(editor.view);
      for (int32_t i = 0; i < GradientStopLimit; ++i) {
        const auto share = static_cast<float>(i) / 49.0F;
        InsertStop(editor.view, i * 4, share, 1.0F - share, 0.5F);
      }
      editor.Press(OnStrip(60, 4));
      editor.Drag(OnStrip(61, 4));
    },
    [](Editor& editor) {
      editor.Choose(3);
      editor.Press(kFlip);
    },
    [](Editor& editor) {
      editor.Choose(5);
      editor.Over(kReset);
    },
};

void DrawStates(ImageBuffer& picture, const std::vector<State>& states) {
  int32_t index = 0;
  for (const State& reach : states) {
    Editor editor;
    reach(editor);
    editor.Paint(picture, {kOrigin.x + index % 2 * kColumnStep, kOrigin.y + index / 2 * kRowStep});
    ++index;
  }
}

// Panels are always painted at the screen buffer's scale; a screen of scale 1 gets them reduced.
void DrawPage(ImageBuffer& page, const std::vector<State>& states) {
  NativeImageBuffer& screen = MakeScreenBuffer(1280, 800);
  screen.SetScale(2.0F);
  screen.SetScaleAware(true);
  SetScreenScale(screen.Scale());
  DrawStates(screen, states);
  screen.ScaleTo(page, screen.Bounds(), page.Bounds(), nullptr, {.boxFilter = true});
  SetScreenScale(1.0F);
  DestroyScreenBuffer();
}

}  // namespace

void DrawEditorPage(ImageBuffer& page) {
  DrawPage(page, kStates);
}

void DrawEditorEndsPage(ImageBuffer& page) {
  DrawPage(page, kMoreStates);
}
