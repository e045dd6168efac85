// The curve editor with all that the host's side gives it: curves, a clipboard, an undo, events.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "gradient/EvolutionCallbacks.h"
#include "gradient/EvolutionPanel.h"
#include "tools/specimens/DemoEvents.h"
#include "tools/specimens/StillWindow.h"

class DemoCurveEditor : public DemoEvents<EvolutionPanel> {
 public:
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

  // Gives the panel its record and its callbacks, as the host does before each event.
  void Arm();
  void Event(const std::function<void(EvolutionPanel&)>& deliver) override;
  // From the menu.
  void Choose(int32_t preset);

  EvolutionRecord record;
  std::unique_ptr<EvolutionPanel> panel = std::make_unique<EvolutionPanel>(13, "Evolution");
  std::optional<CurveRecord> clipboard;
  std::optional<Kept> undo, redo;

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
