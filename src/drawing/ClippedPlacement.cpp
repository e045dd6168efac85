// Cutting a part of a picture and its place, each direction by itself.
#include "drawing/ClippedPlacement.h"

#include <algorithm>

namespace {

// Columns, or rows, from `from` up to `to`, standing at `at`. Wide enough that no step overflows.
struct PlacedSpan {
  int64_t from = 0;
  int64_t to = 0;
  int64_t at = 0;

  bool IsEmpty() const { return to <= from; }
};

PlacedSpan Clip(PlacedSpan span, int64_t size, int64_t clipFrom, int64_t clipTo) {
  const auto advanceBy = [&span](int64_t count) {
    span.from += count;
    span.at += count;
  };
  if (span.from < 0) advanceBy(-span.from);
  if (span.at < clipFrom) advanceBy(clipFrom - span.at);
  span.to = std::min({span.to, size, span.from + (clipTo - span.at)});
  return span;
}

}  // namespace

std::optional<ClippedPlacement> ClipPlacement(const Rect& source, int32_t width, int32_t height,
                                              int32_t x, int32_t y, const Rect& clip) {
  const PlacedSpan columns = Clip({source.left, source.right, x}, width, clip.left, clip.right);
  const PlacedSpan rows = Clip({source.top, source.bottom, y}, height, clip.top, clip.bottom);
  if (columns.IsEmpty() || rows.IsEmpty()) return std::nullopt;
  const auto narrow = [](int64_t value) { return static_cast<int32_t>(value); };
  return ClippedPlacement{
      {narrow(columns.from), narrow(rows.from), narrow(columns.to), narrow(rows.to)},
      narrow(columns.at),
      narrow(rows.at)};
}
