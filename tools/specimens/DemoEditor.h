// The colour map's panel with all that the host's side gives it: a map, a clipboard, an undo,
// events.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <tuple>

#include "gradient/GradientCallbacks.h"
#include "gradient/GradientClipboard.h"
#include "gradient/GradientPanel.h"
#include "gradient/GradientUndo.h"
#include "shell/GlobalRecord.h"
#include "toolkit/Clock.h"
#include "tools/specimens/DemoEvents.h"
#include "tools/specimens/StillWindow.h"

// While it is there, so is the screen buffer, at scale 2, and a clock that does not wait.
class DemoEditor : public DemoEvents<GradientPanel>, private Clock {
 public:
  // Places of the panel, in the middle of what they name.
  static constexpr Point kRandomize = {98, 79}, kFlip = {156, 79}, kFreePlace = {20, 110};
  static constexpr Point OnStrip(int32_t x, int32_t y) { return {13 + x, 29 + y}; }
  // The row of a preset in the menu that is open.
  static constexpr Point RowOf(int32_t preset) { return {265, 14 + preset * 20}; }

  // The map is not owned.
  explicit DemoEditor(GradientRecord& firstMap);
  ~DemoEditor() override;

  void Event(const std::function<void(GradientPanel&)>& deliver) override;
  // From the menu.
  void Choose(int32_t preset);

  GradientRecord* map;
  GlobalRecord global;
  std::unique_ptr<GradientPanel> panel;
  // What the user answers when asked for a colour.
  std::tuple<float, float, float> pickedColor = {0.25F, 0.5F, 0.75F};
  bool accepts = true;

 private:
  struct Armed;

  GradientUndoSlots Slots() { return {global.undoSnapshot, global.redoSnapshot, global.undoOwner}; }
  GradientClipboard Clipboard() { return {global.clipboard, global.clipboardFilled}; }
  static GradientCallbacks Callbacks(Armed& armed);
  uint32_t Milliseconds() override { return 0; }
  void Sleep(int32_t /*milliseconds*/) override {}

  StillWindow window;
};
