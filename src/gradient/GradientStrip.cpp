// The strip under the mouse.
#include "gradient/GradientStrip.h"

#include <algorithm>

#include "gradient/GradientPanel.h"
#include "gradient/GradientRamp.h"
#include "gradient/GradientStops.h"
#include "gradient/RampIndex.h"
#include "toolkit/TopControlPane.h"

namespace {

constexpr int32_t kNone = -1;
constexpr int32_t kRampLeft = 2;  // the x that stands for position 0 of a press or a drag
// How far round its marker a stop takes a press; x from kRampLeft + position, right and bottom
// excluded.
constexpr Rect kHitReach = {-4, -2, 11, 6};
constexpr int32_t kDragOffDistance = 10;  // below the strip

int32_t PositionAt(int32_t x) {
  return std::clamp(x, kRampLeft, kRampLeft + GradientPositionEnd) - kRampLeft;
}

}  // namespace

GradientStrip::GradientStrip(GradientPanel* ownerPanel, const Rect& initialBounds,
                             int32_t newBarHeight)
    : ControlPane(ownerPanel, initialBounds), panel(ownerPanel), barHeight(newBarHeight) {}

bool GradientStrip::PublishChange() {
  SetDirty(true);
  const ControlWatch self(this);
  for (size_t i = 0; self && i < listeners.size(); ++i) {
    if (listeners[i].control) listeners[i].listener->GradientChanged(this);
  }
  return self.Get() != nullptr;
}

void GradientStrip::OnMouseDown(WindowContext* /*context*/, const Point& point) {
  const ControlWatch self(this);
  panel->NoteEdit();
  if (!self) return;
  if (TopControlPane* const root = GetTopOwnerPtr()) root->SetFocus(this, true);
  if (!self) return;
  lastPoint = point;
  GradientView* const view = panel->GetGradient();
  if (view == nullptr) return;
  const int32_t index = FindStop(*view, point);
  panel->PushUndo();
  if (!self) return;
  if (index == kNone) {
    PressFreeSpace(*view, point.x);
  } else {
    PressStop(*view, index);
  }
}

int32_t GradientStrip::FindStop(const GradientView& view, const Point& point) const {
  if (point.y < kHitReach.top || point.y >= GetLocalBounds().bottom + kHitReach.bottom)
    return kNone;
  const int32_t stopCount = CountStops(view);
  for (int32_t i = 0; i < stopCount; ++i) {
    const int32_t place = kRampLeft + HoldToRamp(view.stopPosition[i]);
    if (point.x >= place + kHitReach.left && point.x < place + kHitReach.right) return i;
  }
  return kNone;
}

void GradientStrip::PressStop(GradientView& view, int32_t index) {
  if (IsDoubleClick()) {
    EditColor(view, index);
    return;
  }
  activeStop = index;
  SetTrackingMode(kTrackMove);
  PublishChange();
}

void GradientStrip::EditColor(GradientView& view, int32_t index) {
  float red = view.stopRed[index];
  float green = view.stopGreen[index];
  float blue = view.stopBlue[index];
  if (!panel->PickColor(&red, &green, &blue)) return;
  SetStopColor(view, index, red, green, blue);
  RebuildRamp(view);
  PublishChange();
}

// A full table takes no further stop: nothing is added, and there is nothing to drag.
void GradientStrip::PressFreeSpace(GradientView& view, int32_t x) {
  const int32_t position = PositionAt(x);
  const int32_t added = InsertStop(view, position, view.colorMapRed[position],
                                   view.colorMapGreen[position], view.colorMapBlue[position]);
  if (added == GradientNoStop) return;
  activeStop = added;
  RebuildRamp(view);
  if (PublishChange()) SetTrackingMode(kTrackMove);
}

void GradientStrip::DragMove(WindowContext* /*context*/, const Point& point) {
  GradientView* const view = panel->GetGradient();
  if (view == nullptr || point == lastPoint) return;
  if (activeStop >= CountStops(*view)) {
    // The map was exchanged under the drag; what is left of it moves nothing.
    activeStop = kNone;
    SetTrackingMode(kTrackPress);
    return;
  }
  DragStop(*view, point);
  RebuildRamp(*view);
  if (PublishChange()) lastPoint = point;
}

void GradientStrip::DragStop(GradientView& view, const Point& point) {
  const int32_t position = PositionAt(point.x);
  const int32_t limit = GetLocalBounds().bottom + kDragOffDistance;
  if (activeStop == kNone) {
    if (point.y >= limit) return;
    const int32_t added = InsertStop(view, position, heldRed, heldGreen, heldBlue);
    if (added != GradientNoStop) activeStop = added;
    return;
  }
  heldRed = view.stopRed[activeStop];
  heldGreen = view.stopGreen[activeStop];
  heldBlue = view.stopBlue[activeStop];
  if (point.y <= limit) {
    activeStop = MoveStop(view, activeStop, position);
  } else {
    RemoveStop(view, activeStop);
    activeStop = kNone;
  }
}

void GradientStrip::OnMouseUp(WindowContext* /*context*/, const Point& /*point*/) {
  activeStop = kNone;
  SetDirty(true);
  RedrawSelf();
}
