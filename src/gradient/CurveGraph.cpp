// The graph under the mouse.
#include "gradient/CurveGraph.h"

#include <algorithm>

#include "gradient/CurveChain.h"
#include "gradient/CurvePoints.h"
#include "gradient/EvolutionPanel.h"
#include "platform/Truncate.h"
#include "toolkit/TopControlPane.h"

namespace {

constexpr int32_t kNone = -1;
constexpr int32_t kDeleteKey = 127;
constexpr int32_t kArrowCursor = 0;
constexpr int32_t kAddPointCursor = 14;
constexpr float kMarkReach = 3.0F;  // of a point's mark, up and down
constexpr int32_t kPressReach = 4;  // beyond the mark
constexpr float kPressReachAcross = 7.0F;

float PositionOf(int32_t x) {
  return static_cast<float>(std::clamp(x, 0, CurvePositionEnd));
}

float ValueAt(int32_t y, int32_t height) {
  return ValueOfRow(static_cast<float>(y), height);
}

}  // namespace

CurveGraph::CurveGraph(ControlPane* ownerPane, const Rect& initialBounds,
                       EvolutionPanel* ownerPanel)
    : ControlPane(ownerPane, initialBounds), panel(ownerPanel) {}

void CurveGraph::OnMouseDown(WindowContext* /*context*/, const Point& point) {
  if (curve == nullptr) return;
  const ControlWatch self(this);
  if (panel != nullptr) panel->NoteEdit();
  if (!self) return;
  if (TopControlPane* const root = GetTopOwnerPtr()) root->SetFocus(this, true);
  if (!self || curve == nullptr) return;
  lastPoint = point;
  const int32_t pressed = freehand ? kNone : FindPoint(point);
  if (pressed != kNone && pressed == selectedPoint) {
    ClearSelection();
    return;
  }
  const bool edits =
      freehand || pressed != kNone || FindPlaceFor(*curve, PositionOf(point.x)) != CurveNoPoint;
  if (edits && panel != nullptr) panel->PushUndo();
  if (!self || curve == nullptr) return;
  if (freehand) {
    DrawLine(point, point);
  } else {
    selectedPoint = pressed != kNone ? pressed : AddPoint(point);
  }
  const bool tracks = freehand || selectedPoint >= 0;
  if (tracks) SetTrackingMode(kTrackMove);
  Publish("mouseDown", tracks);
}

int32_t CurveGraph::AddPoint(const Point& point) {
  const int32_t added = InsertPoint(*curve, PositionOf(point.x), ValueAt(point.y, Height()));
  return added != CurveNoPoint ? added : kNone;
}

int32_t CurveGraph::FindPoint(const Point& point) const {
  const int32_t count = CountPoints(*curve);
  for (int32_t i = 0; i < count; ++i) {
    const auto x = static_cast<float>(point.x);
    if (!(x >= curve->pointX[i] - kPressReachAcross && x < curve->pointX[i] + kPressReachAcross)) {
      continue;
    }
    const float row = RowOfValue(curve->pointY[i], Height());
    const auto top = Truncate<int32_t>(row - kMarkReach + 1.0F) - kPressReach;
    const auto bottom = Truncate<int32_t>(row + kMarkReach + 1.0F) + kPressReach;
    if (point.y >= top && point.y < bottom) return i;
  }
  return kNone;
}

void CurveGraph::DragMove(WindowContext* /*context*/, const Point& point) {
  if (curve == nullptr) return;
  bool changed = false;
  if (freehand) {
    changed = DrawLine(lastPoint, point);
  } else if (selectedPoint >= 0) {
    MovePoint(*curve, selectedPoint, PositionOf(point.x), ValueAt(point.y, Height()));
    changed = true;
  }
  lastPoint = point;
  if (changed) Publish("", true);
}

// One column after the other from a place to another; tells whether a sample became another. What
// lies beside the graph is left out, so that it takes no time. A row is rounded towards 0: the one
// above the graph counts as its first.
bool CurveGraph::DrawLine(const Point& from, const Point& to) {
  const double across = static_cast<double>(to.x) - from.x;
  const double down = static_cast<double>(to.y) - from.y;
  const int32_t first = std::max(std::min(from.x, to.x), 0);
  const int32_t last = std::min(std::max(from.x, to.x), CurvePositionEnd);
  const int32_t height = Height();
  bool changed = false;
  for (int32_t x = first; x <= last; ++x) {
    const double exact =
        across == 0.0 ? to.y : from.y + (static_cast<double>(x) - from.x) * (down / across);
    const auto row = Truncate<int32_t>(exact + 0.5);
    if (row < 0 || row >= height) continue;
    const float value = ValueAt(row, height);
    changed = changed || curve->samples[x] != value;
    curve->samples[x] = value;
  }
  return changed;
}

void CurveGraph::OnMouseUp(WindowContext* /*context*/, const Point& /*point*/) {
  SetTrackingMode(kTrackNone);
  Publish("", true);
}

bool CurveGraph::OnKeyDown(WindowContext* /*context*/, int32_t key,
                           const Modifiers& /*modifiers*/) {
  const ControlWatch self(this);
  if (key == kDeleteKey) DeleteSelectedPoint();
  if (self) Publish("", true);
  return key == kDeleteKey;
}

int32_t CurveGraph::GetCursorAt(WindowContext* /*context*/, const Point& point,
                                const Modifiers& /*modifiers*/) {
  if (freehand) return kArrowCursor;
  return curve != nullptr && FindPoint(point) != kNone ? kArrowCursor : kAddPointCursor;
}
