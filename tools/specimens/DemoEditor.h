// The colour map's panel with all that the host's side gives it: a map, a clipboard, an undo,
// events.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <tuple>

#include "drawing/ImageBuffer.h"
#include "gradient/GradientCallbacks.h"
#include "gradient/GradientClipboard.h"
#include "gradient/GradientPanel.h"
#include "gradient/GradientUndo.h"
#include "shell/GlobalRecord.h"
#include "toolkit/Clock.h"
#include "tools/specimens/StillWindow.h"

// While it is there, so is the screen buffer, at scale 2, and a clock that does not wait.
class DemoEditor : private Clock {
 public:
  // Places of the panel, in the middle of what they name.
  static constexpr Point kUndo = {244, 14}, kRedo = {264, 14}, kReset = {289, 14};
  static constexpr Point kPresets = {265, 39}, kCopy = {264, 69}, kPaste = {264, 95};
  static constexpr Point kRandomize = {98, 79}, kFlip = {156, 79}, kFreePlace = {20, 110};
  static constexpr Point OnStrip(int32_t x, int32_t y) { return {13 + x, 29 + y}; }
  // The row of a preset in the menu that is open.
  static constexpr Point RowOf(int32_t preset) { return {265, 14 + preset * 20}; }

  // The map is not owned.
  explicit DemoEditor(GradientRecord& firstMap);
  ~DemoEditor() override;
  DemoEditor(const DemoEditor&) = delete;
  DemoEditor& operator=(const DemoEditor&) = delete;

  // Delivers an event to the panel, armed for the map at hand. Nothing happens without a panel.
  void Event(const std::function<void(GradientPanel&)>& deliver);
  void Over(const Point& point);
  void Press(const Point& point, bool isDouble = false);
  void Drag(const Point& point);
  void Release(const Point& point);
  void Click(const Point& point);
  // From the menu.
  void Choose(int32_t preset);
  // Paints the whole panel with its top left at a logical pixel of the picture.
  void Paint(ImageBuffer& picture, const Point& place);

  GradientRecord* map;
  GlobalRecord global;
  std::unique_ptr<GradientPanel> panel;
  // The callbacks that were called, a letter each: n noted, p pushed, u r undone and redone, c v
  // copied and pasted, k a colour picked, g the map changed.
  std::string calls;
  std::function<void(char)> onCall;
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
