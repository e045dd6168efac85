// What the colour map's panel asks of those around it: the clipboard, the undo, the host.
#pragma once

// Filled anew for each event and valid during it. Any function may be null; each is handed the
// context.
struct GradientCallbacks {
  // Lets the user choose a colour, beginning with the one given; 1.0 is full. Returns whether the
  // user accepted, and then the arguments hold the choice, which may be any numbers.
  bool (*pickColor)(float* red, float* green, float* blue, void* context) = nullptr;
  // The stops of the current map, into the clipboard and out of it. Neither touches the ramp.
  void (*copyStops)(void* context) = nullptr;
  void (*pasteStops)(void* context) = nullptr;
  bool (*canPaste)(void* context) = nullptr;
  // Exchange the stops of the current map for those kept; the ramp is left as it is.
  void (*undo)(void* context) = nullptr;
  void (*redo)(void* context) = nullptr;
  bool (*canUndo)(void* context) = nullptr;
  bool (*canRedo)(void* context) = nullptr;
  // Comes before each edit.
  void (*pushUndo)(void* context) = nullptr;
  // The user begins to work on the map.
  void (*noteEdit)(void* context) = nullptr;
  // The map is another than before.
  void (*gradientChanged)(void* context) = nullptr;
  void* context = nullptr;
};
