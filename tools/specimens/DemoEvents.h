// Events of the mouse and of keys for an editor that a demonstration or a test shows.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "drawing/ImageBuffer.h"
#include "toolkit/ControlTypes.h"

template <typename Panel>
class DemoEvents {
 public:
  // Places of every editor, in the middle of what they name.
  static constexpr Point kUndo = {244, 14}, kRedo = {264, 14}, kReset = {289, 14};
  static constexpr Point kPresets = {265, 39}, kCopy = {264, 69}, kPaste = {264, 95};

  DemoEvents() = default;
  DemoEvents(const DemoEvents&) = delete;
  DemoEvents& operator=(const DemoEvents&) = delete;
  virtual ~DemoEvents() = default;

  // Delivers an event to the panel, armed. Nothing happens without a panel.
  virtual void Event(const std::function<void(Panel&)>& deliver) = 0;

  // Returns the number of the cursor.
  int32_t Over(const Point& point, const Modifiers& modifiers = {}) {
    int32_t cursor = 0;
    Event([&](Panel& panel) { cursor = panel.MouseOver(point, modifiers); });
    return cursor;
  }
  void Press(const Point& point, const Modifiers& modifiers = {}, bool isDouble = false) {
    Event([&](Panel& panel) { panel.MouseDown(point, modifiers, isDouble, kLeftButton); });
  }
  void Drag(const Point& point, const Modifiers& modifiers = {}) {
    Event([&](Panel& panel) { panel.MouseDrag(point, 0, 0, modifiers, kLeftButton); });
  }
  void Release(const Point& point) {
    Event([&](Panel& panel) { panel.MouseUp(point, kLeftButton); });
  }
  void Click(const Point& point, const Modifiers& modifiers = {}) {
    Press(point, modifiers);
    Release(point);
  }
  void Key(int32_t key, const Modifiers& modifiers = {}) {
    Event([&](Panel& panel) { panel.KeyDown(key, modifiers); });
  }
  // Paints the whole panel with its top left at a logical pixel of the picture.
  void Paint(ImageBuffer& picture, const Point& place) {
    Event([&](Panel& panel) {
      panel.DrawTree(panel.GetLocalBounds(), {-place.x, -place.y}, picture);
    });
  }

  // The callbacks that were called, a letter each: n noted, p pushed, u r undone and redone, c v
  // copied and pasted, k a colour picked, g the map or the curve changed.
  std::string calls;
  std::function<void(char)> onCall;

 protected:
  void Hear(char call) {
    calls += call;
    if (onCall) onCall(call);
  }
};
