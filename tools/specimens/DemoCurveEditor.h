// The curve editor with all that the host's side gives it: curves, a clipboard, an undo, events.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "drawing/ImageBuffer.h"
#include "gradient/EvolutionCallbacks.h"
#include "gradient/EvolutionPanel.h"
#include "tools/specimens/StillWindow.h"

class DemoCurveEditor {
 public:
  // Places of the panel, in the middle of what they name.
  static constexpr Point kUndo = {244, 14}, kRedo = {264, 14}, kReset = {289, 14};
  static constexpr Point kPresets = {265, 39}, kCopy = {264, 69}, kPaste = {264, 95};
  static constexpr Point kCurveMode = {252, 121}, kFreehandMode = {277, 121};
  static constexpr Point kSmooth = {50, 164}, kRandomize = {120, 164}, kFlip = {180, 164};
  static constexpr Point OnGraph(int32_t x, int32_t y) { return {21 + x, 28 + y}; }
  // The row of a preset in the menu that is open.
  static constexpr Point RowOf(int32_t preset) { return {265, 64 + preset * 20}; }

  // What undo brings back: a curve, and whether it was drawn freehand.
  struct Kept {
    CurveRecord curve;
    uint32_t freehandFlags = 0;
  };

  // Every curve of its record is this one, which is not owned.
  DemoCurveEditor(const CurveView& shownCurve, bool freehand);
  ~DemoCurveEditor() = default;
  DemoCurveEditor(const DemoCurveEditor&) = delete;
  DemoCurveEditor& operator=(const DemoCurveEditor&) = delete;

  // Gives the panel its record and its callbacks, as the host does before each event.
  void Arm();
  // Deliver an event to the panel, armed. Nothing happens without a panel.
  void Event(const std::function<void(EvolutionPanel&)>& deliver);
  // Returns the number of the cursor.
  int32_t Over(const Point& point, const Modifiers& modifiers = {});
  void Press(const Point& point, const Modifiers& modifiers = {}, bool isDouble = false);
  void Drag(const Point& point, const Modifiers& modifiers = {});
  void Release(const Point& point);
  void Key(int32_t key, const Modifiers& modifiers = {});
  void Click(const Point& point, const Modifiers& modifiers = {});
  // From the menu.
  void Choose(int32_t preset);
  // Paints the whole panel with its top left at a logical pixel of the picture.
  void Paint(ImageBuffer& picture, const Point& place);

  EvolutionRecord record;
  std::unique_ptr<EvolutionPanel> panel = std::make_unique<EvolutionPanel>(13, "Evolution");
  std::optional<CurveRecord> clipboard;
  std::optional<Kept> undo, redo;
  // The callbacks that were called, a letter each: n noted, p pushed, u r undone and redone, c v
  // copied and pasted, g the curve changed.
  std::string calls;
  std::function<void(char)> onCall;

 private:
  // A callback that does `kAct` and is then heard.
  template <char kCall, auto kAct>
  static void Act(void* context);
  template <auto kKept>
  static bool Has(void* context);
  Kept Present() const;
  void PutCurve(const CurveRecord& curve);
  void Paste();
  void Exchange(std::optional<Kept>& kept, std::optional<Kept>& opposite);

  StillWindow window;
};
