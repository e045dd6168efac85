// The curve editor on one stored curve, with what its graph tells.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/gradient/StoredCurve.h"
#include "tools/specimens/DemoCurveEditor.h"

struct CurveEditorData {
  StoredCurve stored;
};

class CurveEditor : public CurveEditorData, public DemoCurveEditor {
 public:
  CurveEditor(const std::vector<float>& points, bool freehand)
      : CurveEditorData{StoredCurve(points)}, DemoCurveEditor(stored.View(), freehand) {
    panel->GetGraph().AddListener(
        [this](CurveGraph&, const char* action) { actions += std::string(action) + ' '; });
  }

  // Local to the graph.
  void PressGraph(int32_t x, int32_t y) { Press(OnGraph(x, y)); }
  void DragGraph(int32_t x, int32_t y) { Drag(OnGraph(x, y)); }
  std::string Calls() { return std::exchange(calls, {}); }
  std::string Actions() { return std::exchange(actions, {}); }

 private:
  std::string actions;  // a space behind each
};
