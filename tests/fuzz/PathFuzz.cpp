// Draws a path of any commands and coordinates: nothing outside the picture or the clip may change,
// and none may take long.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>

#include "drawing/ImageBuffer.h"
#include "drawing/PathBuilder.h"
#include "drawing/Rasterizer.h"
#include "drawing/SharedPainter.h"
#include "engine/ExceptionInfo.h"
#include "tests/fuzz/Input.h"

namespace {

// Any double at all, or a place in or near the picture.
double TakeCoordinate(Input& input) {
  return (input.Take<uint8_t>() & 7) == 0 ? input.Take<double>() : input.Take<int16_t>() / 256.0;
}

Rect TakeRect(Input& input) {
  const bool anywhere = (input.Take<uint8_t>() & 7) == 0;
  const auto edge = [&] { return anywhere ? input.Take<int32_t>() : input.Take<int8_t>(); };
  const int32_t left = edge();
  const int32_t top = edge();
  const int32_t right = edge();
  return {left, top, right, edge()};
}

void TakePath(Input& input, PathBuilder& path) {
  const uint8_t start = input.Take<uint8_t>();
  if ((start & 3) == 1) {
    const Rect rect = TakeRect(input);
    path.SetRoundRect(rect, TakeCoordinate(input), (start & 4) != 0, (start & 8) != 0,
                      (start & 16) != 0, (start & 32) != 0);
  }
  const auto point = [&] {
    const double x = TakeCoordinate(input);
    return PathPoint{x, TakeCoordinate(input)};
  };
  if ((start & 3) == 2) {
    const PathPoint a = point();
    const PathPoint b = point();
    const PathPoint c = point();
    path.SetRoundTriangle(a, b, c, TakeCoordinate(input));
  }
  while (!input.IsEmpty()) {
    const uint8_t step = input.Take<uint8_t>();
    // Mostly the commands that there are, with a number of points that may be wrong.
    const uint32_t command = (step & 0xF8) == 0xF8 ? input.Take<uint32_t>() : (step & 7) % 6;
    constexpr std::array<size_t, 6> kPoints = {0, 1, 1, 3, 2, 0};
    std::array<PathPoint, 3> points;
    size_t count = command < kPoints.size() ? kPoints[command] : 0;
    if ((step & 0xF0) == 0xE0) count = step & 3;
    std::generate_n(points.begin(), count, point);
    path.Append(command, points.data(), count);
  }
}

// Pixels outside `bounds` must be 0 as they were.
void RequireUntouchedOutside(const ImageBuffer& buffer, const Rect& bounds) {
  for (int32_t y = 0; y < buffer.Height(); ++y) {
    for (int32_t x = 0; x < buffer.Width(); ++x) {
      const bool within =
          x >= bounds.left && x < bounds.right && y >= bounds.top && y < bounds.bottom;
      if (!within && buffer.Row(y)[x] != ColorBGRA()) std::abort();
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Input input(data, size);
  ImageBuffer buffer;
  buffer.Allocate(input.Take<uint8_t>() % 80, input.Take<uint8_t>() % 80, false);
  const uint8_t options = input.Take<uint8_t>();
  const int32_t quality = input.Take<uint8_t>() % 8;
  const int32_t opacity = (options & 1) != 0 ? input.Take<int32_t>() : input.Take<int16_t>();
  const Rect clip = TakeRect(input);
  const double lineWidth = (options & 2) != 0 ? TakeCoordinate(input) : 0;
  buffer.SetScaleAware((options & 4) != 0);
  buffer.SetScale((options & 8) != 0 ? input.Take<float>() : 2.0F);
  const bool clips = (options & 16) != 0;
  PathBuilder path;
  TakePath(input, path);

  // The shared one keeps its tables from earlier inputs.
  std::optional<Rasterizer> ownRasterizer;
  if (quality < 5) ownRasterizer.emplace(quality);
  Rasterizer& rasterizer = ownRasterizer ? *ownRasterizer : SharedRasterizer();
  Rect bounds;
  try {
    rasterizer.DrawPath(path, buffer, ColorBGRA(0xFFFFFFFF), opacity, (options & 32) != 0,
                        clips ? &clip : nullptr, &bounds, lineWidth);
  } catch (const App::ExceptionInfo& failure) {
    if (failure.code != App::kOutOfMemory) std::abort();
    RequireUntouchedOutside(buffer, {});
    return 0;
  }
  if (clips) RequireUntouchedOutside(buffer, buffer.ToPhysical(clip));
  const bool mapsBack = !buffer.ConvertsCoordinates() || buffer.Scale() == 2.0F;
  if (mapsBack) RequireUntouchedOutside(buffer, buffer.ToPhysical(bounds));
  return 0;
}
