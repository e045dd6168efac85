// Values of a control that move over time.
#include <cmath>

#include "platform/Truncate.h"
#include "toolkit/Clock.h"
#include "toolkit/ControlPane.h"
#include "toolkit/ControlWatch.h"
#include "toolkit/RectAlgebra.h"

namespace {

double NowSeconds() {
  return CurrentClock().Milliseconds() / 1000.0;
}

TweenedValue Starting(double from, double to) {
  return {from, to, from};
}

void Step(TweenedValue& value, double t, double duration) {
  // A time that isn't a number ends the tween as well.
  const bool underway = t >= 0.0 && t < duration;
  value.current = underway ? value.from + (value.to - value.from) * t / duration : value.to;
}

int32_t Rounded(double value) {
  return Truncate<int32_t>(std::round(value));
}

}  // namespace

void ControlPane::AnimateBounds(const Rect& target, double seconds) {
  boundsTween = {true,
                 NowSeconds(),
                 seconds,
                 Starting(bounds.left, target.left),
                 Starting(bounds.top, target.top),
                 Starting(bounds.right, target.right),
                 Starting(bounds.bottom, target.bottom)};
}

void ControlPane::AnimateOpacity(double target, double seconds) {
  opacityTween = {true, NowSeconds(), seconds, Starting(opacity, target)};
}

void ControlPane::StepAnimations() {
  if (!boundsTween.active && !opacityTween.active) return;
  const double now = NowSeconds();
  const ControlWatch self(this);
  if (boundsTween.active) StepBoundsTween(now);
  if (self && opacityTween.active) StepOpacityTween(now);
}

void ControlPane::StepBoundsTween(double now) {
  const double t = now - boundsTween.startTime;
  for (TweenedValue* const edge :
       {&boundsTween.left, &boundsTween.top, &boundsTween.right, &boundsTween.bottom}) {
    Step(*edge, t, boundsTween.duration);
  }
  const bool ended = !(t >= 0.0 && t < boundsTween.duration);
  if (ended) boundsTween.active = false;
  const Rect stepped = {Rounded(boundsTween.left.current), Rounded(boundsTween.top.current),
                        Rounded(boundsTween.right.current), Rounded(boundsTween.bottom.current)};
  const ControlWatch self(this);
  if (stepped != bounds) {
    Rect changed = UnionOf(bounds, stepped);
    SetBounds(stepped);
    OwnerToLocalRect(&changed);
    RedrawThroughRoot(changed);
  }
  if (ended && self) OnBoundsAnimationDone();
}

void ControlPane::StepOpacityTween(double now) {
  const double t = now - opacityTween.startTime;
  Step(opacityTween.opacity, t, opacityTween.duration);
  const bool ended = !(t >= 0.0 && t < opacityTween.duration);
  if (ended) opacityTween.active = false;
  const ControlWatch self(this);
  if (opacityTween.opacity.current != opacity) {
    SetOpacity(opacityTween.opacity.current);
    RedrawSelf();
  }
  if (ended && self) OnOpacityAnimationDone();
}

void ControlPane::OnBoundsAnimationDone() {}

void ControlPane::OnOpacityAnimationDone() {}

Rect ControlPane::GetTargetBounds() const {
  const auto target = [](const TweenedValue& edge) { return Truncate<int32_t>(edge.to + 0.5); };
  return {target(boundsTween.left), target(boundsTween.top), target(boundsTween.right),
          target(boundsTween.bottom)};
}

double ControlPane::GetTargetOpacity() const {
  return opacityTween.opacity.to;
}

bool ControlPane::IsBoundsAnimating() const {
  return boundsTween.active;
}

bool ControlPane::IsOpacityAnimating() const {
  return opacityTween.active;
}
