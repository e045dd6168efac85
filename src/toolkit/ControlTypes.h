// Small types that all controls share.
#pragma once

#include <cstdint>

// Keys that were down; one byte each.
struct Modifiers {
  bool shift = false;
  bool alt = false;
  bool command = false;
  bool control = false;
  bool space = false;
};

enum ControlState : int32_t {
  kStateNormal = 0,
  kStateSelected = 1,
  kStateDisabled = 2,
  kStateHidden = 3,
};

// What a control does with the drags that follow a press.
enum TrackingMode : int32_t {
  kTrackNone = 0,
  kTrackPress = 1,
  kTrackMove = 2,
  kTrackResize = 3,
};

enum MouseButton : int32_t { kLeftButton = 0, kRightButton = 1 };

// Answers of GetCursorAt beside the ids of cursors: a negative id keeps the pointer for its
// control, and this one does so with the cursor 0.
inline constexpr int32_t kKeepPointerWithCursor0 = -100000;
