// The colour map's panel between a map, the library's record and an event script.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "drawing/Labeler.h"
#include "gradient/GradientClipboard.h"
#include "gradient/GradientPanel.h"
#include "gradient/GradientRamp.h"
#include "gradient/GradientUndo.h"
#include "shell/GlobalRecord.h"
#include "tests/gradient/StoredMap.h"
#include "toolkit/Clock.h"
#include "toolkit/SharedBuffers.h"
#include "tools/specimens/StillWindow.h"

// Places of the panel, right in the middle of what they name.
inline constexpr Point kStripOrigin = {13, 29};
inline constexpr Point kUndo = {244, 14}, kRedo = {264, 14}, kReset = {289, 14};
inline constexpr Point kPresets = {265, 39}, kCopy = {264, 69}, kPaste = {264, 95};
inline constexpr Point kRandomize = {98, 79}, kFlip = {156, 79}, kFreePlace = {20, 110};
inline constexpr int32_t kOwner = 12;

class Editor : private Clock {
 public:
  explicit Editor(std::vector<StoredMap> theMaps) : maps(std::move(theMaps)) {
    NativeImageBuffer& screen = MakeScreenBuffer(1024, 1024);
    screen.SetScale(2.0F);
    screen.SetScaleAware(true);
    panel = std::make_unique<GradientPanel>(kOwner, 306, 130, GradientPanel::Options{});
    UseClock(this);
  }
  ~Editor() override {
    DropSnapshots(Slots());
    UseClock(nullptr);
  }

  // Arms the panel for the map of the instance at hand, as the host's glue does at each event.
  void Event(const std::function<void(GradientPanel&)>& deliver) {
    if (panel == nullptr) return;
    GradientView view(Map());
    Armed armed{*this, view};
    const GradientCallbacks callbacks = Callbacks(armed);
    panel->SetWindowContext(&window);
    panel->SetPanelCallbacks(&callbacks);
    panel->SetPanelData(&view);
    deliver(*panel);
    if (panel != nullptr) panel->ClearWindowContext();
  }
  void Press(const Point& point, bool isDouble = false) {
    Event([&](GradientPanel& p) { p.MouseDown(point, {}, isDouble, kLeftButton); });
  }
  void Drag(const Point& point) {
    Event([&](GradientPanel& p) { p.MouseDrag(point, 0, 0, {}, kLeftButton); });
  }
  void Release(const Point& point) {
    Event([&](GradientPanel& p) { p.MouseUp(point, kLeftButton); });
  }
  void Click(const Point& point) {
    Press(point);
    Release(point);
  }
  // d x y press, D x y double press, m x y drag, u release; local to the strip.
  void Play(const std::string& script) {
    std::istringstream words(script);
    Point at = kStripOrigin;
    for (char event = 0; words >> event;) {
      if (event != 'u') {
        words >> at.x >> at.y;
        at = {at.x + kStripOrigin.x, at.y + kStripOrigin.y};
      }
      if (event == 'd' || event == 'D') Press(at, event == 'D');
      if (event == 'm') Drag(at);
      if (event == 'u') Release(at);
    }
  }

  GradientRecord& Map() { return maps[instance].Record(); }
  GradientSnapshot Stops() { return TakeSnapshot(GradientView(Map())); }
  bool RampIsThatOfItsStops() {
    GradientRecord rebuilt = Map();
    GradientView rebuiltView(rebuilt);
    RebuildRamp(rebuiltView);
    return std::memcmp(&rebuilt, &Map(), offsetof(GradientRecord, stopPosition)) == 0;
  }
  // A panel of its own size, painted at scale 2.
  void Paint(ImageBuffer& picture) {
    picture.Allocate(612, 260, false);
    picture.SetScale(2.0F);
    picture.SetScaleAware(true);
    Event([&](GradientPanel& p) { p.DrawTree(p.GetLocalBounds(), {0, 0}, picture); });
  }

  std::vector<StoredMap> maps;
  size_t instance = 0;
  GlobalRecord global;
  std::unique_ptr<GradientPanel> panel;
  // The callbacks that were called, one letter each.
  std::string calls;
  std::function<void(char)> onCall;
  std::tuple<float, float, float> pickedColor = {0.25F, 0.5F, 0.75F};
  bool accepts = true;

 private:
  // What the callbacks of one event work on; it goes with the event.
  struct Armed {
    Editor& editor;
    GradientView& view;
  };

  GradientUndoSlots Slots() { return {global.undoSnapshot, global.redoSnapshot, global.undoOwner}; }
  GradientClipboard Clipboard() { return {global.clipboard, global.clipboardFilled}; }
  uint32_t Milliseconds() override { return 0; }
  void Sleep(int32_t /*milliseconds*/) override {}

  // A callback that does `act` and is then heard.
  template <char kCall, auto kAct>
  static void Act(void* context) {
    const auto& armed = *static_cast<Armed*>(context);
    kAct(armed.editor, armed.view);
    armed.editor.calls += kCall;
    if (armed.editor.onCall) armed.editor.onCall(kCall);
  }
  template <auto kAsk>
  static bool Ask(void* context) {
    return kAsk(static_cast<Armed*>(context)->editor);
  }

  using View = GradientView;
  static GradientCallbacks Callbacks(Armed& armed) {
    return {.pickColor =
                [](float* red, float* green, float* blue, void* context) {
                  const Editor& editor = static_cast<Armed*>(context)->editor;
                  std::tie(*red, *green, *blue) = editor.pickedColor;
                  Act<'k', [](Editor&, View&) {}>(context);
                  return editor.accepts;
                },
            .copyStops = Act<'c', [](Editor& e, View& v) { CopyStops(v, e.Clipboard()); }>,
            .pasteStops = Act<'v', [](Editor& e, View& v) { PasteStops(e.Clipboard(), v); }>,
            .canPaste = Ask<[](Editor& e) { return CanPaste(e.Clipboard()); }>,
            .undo = Act<'u', [](Editor& e, View& v) { UndoStops(e.Slots(), v); }>,
            .redo = Act<'r', [](Editor& e, View& v) { RedoStops(e.Slots(), v); }>,
            .canUndo = Ask<[](Editor& e) { return CanUndo(e.Slots(), kOwner); }>,
            .canRedo = Ask<[](Editor& e) { return CanRedo(e.Slots(), kOwner); }>,
            .pushUndo = Act<'p', [](Editor& e, View& v) { PushUndo(e.Slots(), v, kOwner); }>,
            .noteEdit = Act<'n', [](Editor&, View&) {}>,
            .gradientChanged = Act<'g', [](Editor&, View&) {}>,
            .context = &armed};
  }

  StillWindow window;
};
