// The curve editor between a curve, an undo and the mouse.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "gradient/EvolutionPanel.h"
#include "tests/gradient/StoredCurve.h"
#include "tools/specimens/StillWindow.h"

class CurveEditor {
 public:
  // All three curves of the record are this one.
  CurveEditor(const std::vector<float>& points, bool freehand)
      : stored(points), view(stored.View()) {
    record.curves.fill(view);
    record.freehandFlags = freehand ? 7 : 0;
    panel->SetWindowContext(&window);
    panel->GetGraph().AddListener(
        [this](CurveGraph&, const char* action) { actions += std::string(action) + ' '; });
    Arm();
  }

  // Local to the graph.
  void Press(int32_t x, int32_t y) { PressAt({21 + x, 28 + y}); }
  void Drag(int32_t x, int32_t y) {
    Arm();
    if (panel) panel->MouseDrag({21 + x, 28 + y}, 0, 0, {}, kLeftButton);
  }
  void Release(const Point& point = {}) {
    Arm();
    if (panel) panel->MouseUp(point, kLeftButton);
  }
  void Key(int32_t key) {
    Arm();
    if (panel) panel->KeyDown(key, {});
  }
  void PressAt(const Point& point, bool shift = false) {
    Arm();
    if (panel) panel->MouseDown(point, {.shift = shift}, false, kLeftButton);
  }
  void Click(const Point& point, bool shift = false) {
    PressAt(point, shift);
    Release(point);
  }
  std::string Calls() { return std::exchange(calls, {}); }
  std::string Actions() { return std::exchange(actions, {}); }

  // As the host does before each event.
  void Arm() {
    if (!panel) return;
    EvolutionCallbacks callbacks;
    callbacks.copyCurve = [](void* c) { Hear(c, 'c'); };
    callbacks.pasteCurve = [](void* c) { Hear(c, 'v'); };
    callbacks.canPaste = [](void*) { return true; };
    callbacks.undo = [](void* c) {
      std::swap(From(c).stored.record, From(c).kept);
      Hear(c, 'u');
    };
    callbacks.redo = callbacks.undo;
    callbacks.canUndo = callbacks.canRedo = callbacks.canPaste;
    callbacks.pushUndo = [](void* c) {
      From(c).kept = From(c).stored.record;
      Hear(c, 'p');
    };
    callbacks.noteEdit = [](void* c) { Hear(c, 'n'); };
    callbacks.curveChanged = [](void* c) { Hear(c, 'g'); };
    callbacks.context = this;
    panel->SetPanelCallbacks(&callbacks);
    panel->SetPanelData(&record);
  }

  StoredCurve stored;
  CurveView view;
  CurveRecord kept;
  EvolutionRecord record;
  std::unique_ptr<EvolutionPanel> panel = std::make_unique<EvolutionPanel>(13, "Evolution");
  std::function<void(char)> onCall;

 private:
  static CurveEditor& From(void* context) { return *static_cast<CurveEditor*>(context); }
  static void Hear(void* context, char call) {
    From(context).calls += call;
    if (From(context).onCall) From(context).onCall(call);
  }

  std::string calls;    // one letter each
  std::string actions;  // a space behind each
  StillWindow window;
};

inline constexpr Point kUndoPlace = {244, 14}, kResetPlace = {289, 14}, kPresetsPlace = {265, 39};
inline constexpr Point kSmoothPlace = {50, 164}, kRandomizePlace = {120, 164},
                       kFlipPlace = {180, 164};
inline constexpr Point kCopyPlace = {264, 69}, kPastePlace = {264, 95};
inline constexpr Point kCurveModePlace = {252, 121}, kFreehandModePlace = {277, 121};
