// A knob on a track that sets a number.
#pragma once

#include "toolkit/StockControl.h"
#include "toolkit/ThumbTrack.h"

// Horizontal if wider than high, the least value at the left; else the least value is at the
// bottom. Values stand on a grid of a 5000th of the range. The listener hears of each change, the
// owner of the press and of the release.
class Slider : public StockControl {
 public:
  // A range that SetRange refuses is 0 to 1.
  Slider(ControlPane* ownerPane, const Rect& initialBounds, double lowest, double highest);

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  // A press beside the knob brings the knob there.
  void OnMouseDown(WindowContext* context, const Point& point) override;
  void OnMouseDrag(WindowContext* context, const Point& point) override;
  void OnMouseUp(WindowContext* context, const Point& point) override;

  // False, and nothing changes, unless both are finite, lowest is below highest, and their
  // difference is finite too. The value is brought into the new range.
  bool SetRange(double lowest, double highest);
  // The nearest value of the grid; NaN counts as the least. Nobody is told.
  void SetValue(double newValue);
  double GetValue() const { return value; }

 private:
  bool IsHorizontal() const;
  ThumbTrack Track() const;
  // How far the knob has gone along the track, from the left or from the top.
  double Fraction() const;
  int32_t AlongTrack(const Point& point) const { return IsHorizontal() ? point.x : point.y; }
  double OnGrid(double wanted) const;
  // Tells whether this control is still there.
  bool MoveKnobTo(int64_t knobStart);
  // From `from` to `to` along the track, `thickness` in its middle; both in the buffer.
  Rect Segment(const Rect& place, int64_t from, int64_t to, int32_t thickness) const;

  double minimum = 0.0;
  double maximum = 1.0;
  double value = 0.0;
  bool pressed = false;
  int64_t grabOffset = 0;  // from the knob's near edge to where it was taken
};
