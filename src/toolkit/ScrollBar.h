// A thumb on a track that moves a view over its content.
#pragma once

#include "toolkit/ScrollStrip.h"
#include "toolkit/StockControl.h"
#include "toolkit/ThumbTrack.h"

// Horizontal if wider than high. The listener hears of each change of the position, the owner of
// the press and of the release. A press beside the thumb goes one view on.
class ScrollBar : public StockControl {
 public:
  ScrollBar(ControlPane* ownerPane, const Rect& initialBounds);

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  void OnMouseDown(WindowContext* context, const Point& point) override;
  void OnMouseDrag(WindowContext* context, const Point& point) override;
  void OnMouseUp(WindowContext* context, const Point& point) override;

  // Lengths in pixels along the bar; less than 0 counts as 0. The position is brought into what is
  // left. Nobody is told.
  void SetExtent(int32_t newContent, int32_t newView);
  // 0 up to MostPosition; nobody is told.
  void SetPosition(int32_t newPosition);
  int32_t GetPosition() const { return scrollPosition; }
  // What of the content doesn't fit the view.
  int32_t MostPosition() const { return content > view ? content - view : 0; }

 private:
  bool IsHorizontal() const;
  ThumbTrack Track() const;
  double Fraction() const;
  int32_t AlongTrack(const Point& point) const { return IsHorizontal() ? point.x : point.y; }
  // Tells whether this control is still there.
  bool ScrollTo(int64_t wanted);

  int32_t content = 0;
  int32_t view = 0;
  int32_t scrollPosition = 0;
  bool dragging = false;
  bool pressed = false;
  int64_t grabOffset = 0;  // from the thumb's near edge to where it was taken
  ScrollStrip trackStrip;
  ScrollStrip thumbStrip;
};
