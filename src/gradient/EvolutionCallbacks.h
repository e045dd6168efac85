// What the curve editor asks of those around it: the clipboard, the undo, the host.
#pragma once

// Filled anew for each event and valid during it. Any function may be null; each is handed the
// context.
struct EvolutionCallbacks {
  // The current curve, samples and points, into the clipboard and out of it.
  void (*copyCurve)(void* context) = nullptr;
  void (*pasteCurve)(void* context) = nullptr;
  bool (*canPaste)(void* context) = nullptr;
  // Exchange the current curve for the one that was kept.
  void (*undo)(void* context) = nullptr;
  void (*redo)(void* context) = nullptr;
  bool (*canUndo)(void* context) = nullptr;
  bool (*canRedo)(void* context) = nullptr;
  // Comes before each edit.
  void (*pushUndo)(void* context) = nullptr;
  // The user begins to work on the curve, or has edited it.
  void (*noteEdit)(void* context) = nullptr;
  // The curve is another than before.
  void (*curveChanged)(void* context) = nullptr;
  void* context = nullptr;
};
