// Where a thumb stands on its track, and which value a place on the track means: along one axis.
#include "toolkit/ThumbTrack.h"

#include <algorithm>

#include "platform/Truncate.h"
#include "toolkit/RectAlgebra.h"

namespace {

constexpr int32_t kSmallestKnob = 10;
constexpr int32_t kKnobInset = 2;  // what the knob is smaller than the slider, across
constexpr int32_t kNearGap = 3;
constexpr int32_t kFarGap = 4;
constexpr int32_t kShortestThumb = 30;

}  // namespace

int32_t ThumbTrack::ThumbStart(double fraction) const {
  // Written so that NaN is 0.
  const double held = fraction > 0.0 ? std::min(fraction, 1.0) : 0.0;
  const auto room = static_cast<double>(int64_t{last} - first);
  return SaturatedInt(first + Truncate<int64_t>(held * room + 0.5));
}

double ThumbTrack::FractionAt(int64_t thumbStart) const {
  if (last <= first) return 0.0;
  const int64_t held = std::clamp<int64_t>(thumbStart, first, last);
  return static_cast<double>(held - first) / static_cast<double>(int64_t{last} - first);
}

bool ThumbTrack::IsOnThumb(double fraction, int32_t place) const {
  const int64_t start = ThumbStart(fraction);
  return place >= start && place < start + thumb;
}

ThumbTrack MakeSliderTrack(int32_t length, int32_t cross) {
  const int32_t knob = SaturatedInt(std::max<int64_t>(int64_t{cross} - kKnobInset, kSmallestKnob));
  const int64_t half = knob / 2;
  // The knob's middle goes from the near gap and half a knob to as much short of the far end.
  const int64_t last = int64_t{length} - kFarGap - 2 * half;
  return {kNearGap, SaturatedInt(std::max<int64_t>(last, kNearGap)), knob};
}

ThumbTrack MakeScrollTrack(int32_t length, int32_t content, int32_t view) {
  const int32_t room = std::max(length, 0);
  const int32_t shown = std::max(view, 0);
  if (content <= shown) return {0, 0, room};
  const int64_t share = int64_t{room} * shown / content;
  const int32_t thumb =
      SaturatedInt(std::min<int64_t>(std::max<int64_t>(share, kShortestThumb), room));
  return {0, room - thumb, thumb};
}
