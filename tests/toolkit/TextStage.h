// A panel with a screen around it: a pointer that controls and the test move, keys, and a clock.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "tests/toolkit/RecordingTree.h"

struct ScreenWindow : public RecordingWindow {
  void ShowCursor(bool show) override { pointerShown = show; }
  void SetMousePosition(const Point& point) override { pointer = MovedBy(point, kAtX, kAtY); }
  Point GetMousePosition() const override { return MovedBy(pointer, -kAtX, -kAtY); }
  void SetScreenMousePosition(const Point& point) override { pointer = point; }
  Point GetScreenMousePosition() const override { return pointer; }
  Point GetScreenSize() const override { return {1000, 600}; }
  Modifiers GetModifiers() const override { return modifiers; }

  static constexpr int32_t kAtX = 300;
  static constexpr int32_t kAtY = 100;
  Point pointer;
  bool pointerShown = true;
  Modifiers modifiers;
};

class TextPanelStage : public CustomPanel {
 public:
  TextPanelStage() : CustomPanel({0, 0, 200, 100}, 1) { windowContext = &window; }

  void NotifyReleased(ControlPane* source) override {
    if (onReleased) onReleased(source);
  }
  void Press(const Point& point, const Modifiers& keys = {}, bool twice = false) {
    window.SetMousePosition(point);
    MouseDown(point, keys, twice, kLeftButton);
  }
  // The mouse moves by dx on the screen.
  void DragBy(int32_t dx) {
    window.pointer = MovedBy(window.pointer, dx, 0);
    MouseDrag(window.GetMousePosition(), 0, 0, window.modifiers, kLeftButton);
  }
  void Click(const Point& point, const Modifiers& keys = {}, bool twice = false) {
    Press(point, keys, twice);
    MouseUp(point, kLeftButton);
  }
  // '<' Backspace, '[' left, ']' right, '^' up, 'v' down, '!' Return, '~' Escape
  void Type(std::string_view keys) {
    constexpr std::string_view kNames = "<[]^v!~";
    constexpr int32_t kCodes[] = {8, 28, 29, 30, 31, 13, 27};
    for (const char key : keys) {
      const size_t named = kNames.find(key);
      const int32_t code = named == std::string_view::npos ? key : kCodes[named];
      KeyDown(code, window.modifiers);
      KeyUp(code, window.modifiers);
    }
  }
  void PassTime(uint32_t milliseconds) {
    clock.now += milliseconds;
    IdleTree();
  }

  HandClock clock;
  ScreenWindow window;
  std::function<void(ControlPane*)> onReleased;
};
