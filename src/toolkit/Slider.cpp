// A knob on a track that sets a number.
#include "toolkit/Slider.h"

#include <algorithm>
#include <cmath>

#include "toolkit/RectAlgebra.h"
#include "toolkit/ThemeColors.h"

namespace {

constexpr double kGridSteps = 5000.0;
constexpr int32_t kGrooveThickness = 4;
constexpr double kGrooveRadius = 2.0;

}  // namespace

Slider::Slider(ControlPane* ownerPane, const Rect& initialBounds, double lowest, double highest)
    : StockControl(ownerPane, initialBounds) {
  SetRange(lowest, highest);
  value = minimum;
}

bool Slider::SetRange(double lowest, double highest) {
  if (!(lowest < highest) || !std::isfinite(highest - lowest)) return false;
  if (minimum == lowest && maximum == highest) return true;
  minimum = lowest;
  maximum = highest;
  value = OnGrid(value);
  SetDirty(true);
  return true;
}

void Slider::SetValue(double newValue) {
  const double wanted = OnGrid(newValue);
  if (value == wanted) return;
  value = wanted;
  SetDirty(true);
}

void Slider::OnMouseDown(WindowContext* /*context*/, const Point& point) {
  pressed = true;
  const ThumbTrack track = Track();
  const int64_t place = AlongTrack(point);
  const bool onKnob = track.IsOnThumb(Fraction(), AlongTrack(point));
  grabOffset = onKnob ? place - track.ThumbStart(Fraction()) : track.thumb / 2;
  if (!onKnob && !MoveKnobTo(place - grabOffset)) return;
  RedrawAndTellPress();
}

void Slider::OnMouseDrag(WindowContext* /*context*/, const Point& point) {
  if (pressed) MoveKnobTo(int64_t{AlongTrack(point)} - grabOffset);
}

void Slider::OnMouseUp(WindowContext* /*context*/, const Point& /*point*/) {
  pressed = false;
  RedrawAndTellRelease();
}

void Slider::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaToPaint(rect, position);
  const PaintTarget target = TargetFor(buffer, area);
  const ThumbTrack track = Track();
  const int32_t start = track.ThumbStart(Fraction());
  const int64_t middle = int64_t{start} + track.thumb / 2;
  const int64_t near = int64_t{track.first} + track.thumb / 2;
  const int64_t far = int64_t{track.last} + track.thumb / 2;
  const Rect groove = Segment(area.bounds, near - 2, far + 2, kGrooveThickness);
  FillRound(target, groove, kGrooveRadius, ThemeColors::MenuFill);
  const bool across = IsHorizontal();
  const Rect covered =
      Segment(area.bounds, across ? near - 2 : middle, across ? middle : far + 2, kGrooveThickness);
  FillRound(target, covered, kGrooveRadius, StockColors::Accent);

  const Rect knob = Segment(area.bounds, start, int64_t{start} + track.thumb, track.thumb);
  const double radius = track.thumb / 2.0;
  // The knob hides the groove also while it is disabled.
  const PaintTarget solid = {buffer, area.clip};
  FillRound(solid, knob, radius, PlateColor(LookWhile(pressed), ThemeColors::MenuFrame));
  StrokeRound(target, knob, radius, ThemeColors::Gray25);
  PaintFocus(target, knob, radius);
}

bool Slider::IsHorizontal() const {
  return WidthOf(bounds) > HeightOf(bounds);
}

ThumbTrack Slider::Track() const {
  const Rect local = GetLocalBounds();
  return IsHorizontal() ? MakeSliderTrack(local.right, local.bottom)
                        : MakeSliderTrack(local.bottom, local.right);
}

double Slider::Fraction() const {
  const double share = (value - minimum) / (maximum - minimum);
  return IsHorizontal() ? share : 1.0 - share;
}

double Slider::OnGrid(double wanted) const {
  if (!(wanted > minimum)) return minimum;
  if (wanted >= maximum) return maximum;
  const double step = (maximum - minimum) / kGridSteps;
  return std::min(minimum + std::round((wanted - minimum) / step) * step, maximum);
}

bool Slider::MoveKnobTo(int64_t knobStart) {
  const double fraction = Track().FractionAt(knobStart);
  const double share = IsHorizontal() ? fraction : 1.0 - fraction;
  const double wanted = OnGrid(minimum + share * (maximum - minimum));
  if (wanted == value) return true;
  value = wanted;
  return RedrawAndTellListener();
}

Rect Slider::Segment(const Rect& place, int64_t from, int64_t to, int32_t thickness) const {
  if (IsHorizontal()) {
    const int64_t top = place.top + (HeightOf(place) - thickness) / 2;
    return {SaturatedInt(place.left + from), SaturatedInt(top), SaturatedInt(place.left + to),
            SaturatedInt(top + thickness)};
  }
  const int64_t left = place.left + (WidthOf(place) - thickness) / 2;
  return {SaturatedInt(left), SaturatedInt(place.top + from), SaturatedInt(left + thickness),
          SaturatedInt(place.top + to)};
}
