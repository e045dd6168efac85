// The slow drawing. Its arithmetic, its loops and its font are its own; only the records are
// shared.
#include "PlainGraph.h"

#include <cmath>
#include <map>

namespace {

constexpr int64_t kMost = 2147483647;

// Toward zero, as far as 32 bits go.
int64_t Whole(double value) {
  if (std::isnan(value)) return 0;
  if (value >= static_cast<double>(kMost)) return kMost;
  if (value <= -static_cast<double>(kMost) - 1.0) return -kMost - 1;
  return static_cast<int64_t>(std::trunc(value));
}

int64_t WholeOfSingle(float value) {
  return Whole(static_cast<double>(value));
}

uint8_t Byte(float entry) {
  const int64_t value = WholeOfSingle(entry * 255.0F);
  return static_cast<uint8_t>(value < 0 ? 0 : value > 255 ? 255 : value);
}

// Rows from the top, then the backing: last row and last column, both from -1 on.
struct Letter {
  std::array<std::string, 5> rows;
  int backingRows, backingColumns;
};

const std::map<char, Letter> kFont = {
    {'A', {{"###.", "...#", "####", "#..#", "#..#"}, 5, 4}},
    {'C', {{".###", "#...", "#...", "#...", ".###"}, 5, 4}},
    {'E', {{".###", "#...", ".###", "#...", ".###"}, 5, 4}},
    {'G', {{".###", "#...", "#.##", "#..#", ".###"}, 5, 4}},
    {'M', {{"#...#", "##.##", "#.#.#", "#...#", "#...#"}, 5, 5}},
    {'N', {{"###.", "#..#", "#..#", "#..#", "#..#"}, 4, 5}},
    {'O', {{".##.", "#..#", "#..#", "#..#", ".##."}, 4, 5}},
    {'P', {{"###.", "...#", "###.", "#...", "#..."}, 5, 4}},
    {'R', {{"###.", "...#", "###.", "#..#", "#..#"}, 5, 4}},
    {'S', {{".###", "#...", ".##.", "...#", "###."}, 5, 4}},
    {'T', {{"#####", ".....", "..#..", "..#..", "..#.."}, 5, 5}},
    {'U', {{"#..#", "#..#", "#..#", "#..#", ".##."}, 4, 5}},
    {'+', {{"...", ".#.", "###", ".#.", "..."}, 5, 5}},
    {'1', {{".#.", "##.", ".#.", ".#.", "###"}, 5, 3}},
    {'2', {{".##.", "#..#", "..#.", ".#..", "####"}, 5, 4}},
    {'3', {{"###.", "...#", ".##.", "...#", "###."}, 5, 4}},
};

}  // namespace

PlainGraph::PlainGraph(GuardedWorld& guardedWorld)
    : world(guardedWorld),
      w(world.shape.width),
      h(world.shape.height),
      top(Whole(0.1 * static_cast<double>(h))),
      bottom(Whole(0.9 * static_cast<double>(h))),
      left(Whole(0.1 * static_cast<double>(w))),
      right(Whole(0.7 * static_cast<double>(w))),
      graphHeight(bottom - top),
      bandWidth(static_cast<double>(right - left) * 0.03125) {}

void PlainGraph::Draw(const GraphInputs& in) {
  const GraphSettings& s = in.settings;
  if (s.spectrum) DrawBars(in);
  if (s.spectrum && s.quantize) DrawGaps(in);
  if (s.spectrum && s.logarithmicScale) {
    DrawText("SPECTRUM+RANGES", {0, 5, 10, 15, 20, 26, 31, 36, 44, 50, 55, 60, 65, 70, 75}, left,
             top - 8);
  }
  if (s.output) DrawText("OUTPUTS", {0, 5, 10, 16, 21, 26, 32}, right, top - 8);
  if (s.logarithmicScale) DrawGrid();
  DrawRanges(in);
  if (s.output) DrawOutput(in);
}

void PlainGraph::DrawBars(const GraphInputs& in) {
  const auto height = static_cast<double>(graphHeight);
  for (int i = 0; i < 32; ++i) {
    double v = in.levels[static_cast<size_t>(i)];
    if (!(v >= 0.0)) v = 0.0;
    if (v > 1.0) v = 1.0;
    int64_t H = Whole(height * v);
    if (in.settings.quantize) {
      const int64_t value = in.settings.quantizeValue;
      const int64_t segment = value == 0 ? 0 : graphHeight / value;
      const float parts = segment == 0 ? 0.0F : static_cast<float>(H) / static_cast<float>(segment);
      H = WholeOfSingle(parts + 0.5F) * segment;
    }
    const int64_t x0 = Whole(i * bandWidth + static_cast<double>(left));
    const int64_t x1 = Whole(i * bandWidth + static_cast<double>(left) + bandWidth);
    for (int64_t row = bottom; row > bottom - H && row >= 0; --row) {
      std::array<uint8_t, 4> lanes = {255, 255, 255, 255};
      if (in.settings.colormap) {
        int64_t index = 0;
        if (in.settings.gradient == 1) {
          index = WholeOfSingle(static_cast<float>(i) * 200.0F * 0.03125F + 0.5F);
        } else {
          const float t = top == bottom
                              ? 0.0F
                              : static_cast<float>(row - top) / static_cast<float>(graphHeight);
          index = WholeOfSingle((1.0F - t) * 200.0F + 0.5F);
        }
        const auto entry = static_cast<size_t>(index > 200 ? 200 : index);
        lanes = {255, Byte(in.colorMap.colorMapRed[entry]), Byte(in.colorMap.colorMapGreen[entry]),
                 Byte(in.colorMap.colorMapBlue[entry])};
      }
      for (int64_t x = x0; x < x1; ++x) Store(x, row, lanes);
    }
  }
}

void PlainGraph::DrawGaps(const GraphInputs& in) {
  const int64_t value = in.settings.quantizeValue;
  const int64_t segment = value == 0 ? 0 : graphHeight / value;
  const int64_t gap =
      segment - WholeOfSingle(static_cast<float>(segment) * in.settings.fillSegment + 0.5F);
  const int64_t halfGap = gap / 2;
  for (int64_t k = 0; segment != 0 && k < value; ++k) {
    for (int64_t n = 0; n < halfGap; ++n) {
      const int64_t row = bottom - k * segment - n;
      for (int64_t x = left; x < right; ++x) Store(x, row, {0, 0, 0, 0});
      if (row <= top) break;
    }
  }
  for (int64_t row = bottom; row > bottom - graphHeight; --row) {
    for (int i = 0; i < 32; ++i) {
      const int64_t x0 = Whole(i * bandWidth + static_cast<double>(left));
      const int64_t x1 = x0 + 4 < right ? x0 + 4 : right - 1;
      for (int64_t x = x0; x < x1; ++x) Store(x, row, {0, 0, 0, 0});
    }
  }
}

void PlainGraph::DrawGrid() {
  const int64_t x0 = Whole(0.05 * static_cast<double>(w));
  const int64_t x1 = Whole(0.95 * static_cast<double>(w));
  int64_t row = top;
  double s = 1.3333333333333333;
  while (row < bottom) {
    for (int64_t x = x0; x <= x1; ++x) Blue(x, row);
    s = s * 1.5;
    row = Whole(static_cast<double>(row) + s);
  }
  for (int64_t x = x0; x <= x1; ++x) Blue(x, bottom);
  for (int64_t y = top; y <= bottom; ++y) {
    Blue(left, y);
    Blue(right, y);
  }
}

void PlainGraph::DrawRanges(const GraphInputs& in) {
  const auto height = static_cast<double>(graphHeight);
  for (size_t n = 0; n < 3; ++n) {
    const auto& [firstBand, lastBand] = in.geometry.bands[n];
    const auto& [lowerLevel, upperLevel] = in.geometry.levels[n];
    if (!in.settings.active[n]) continue;
    if (static_cast<uint32_t>(firstBand) > 31U || static_cast<uint32_t>(lastBand) > 31U) continue;
    const int64_t bottomRow = Whole(static_cast<double>(bottom) - lowerLevel * height);
    const int64_t x = Whole(firstBand * bandWidth + static_cast<double>(left));
    if (in.settings.selectionRanges) {
      const int64_t topRow = Whole(static_cast<double>(bottom) - upperLevel * height);
      const int64_t rightColumn =
          Whole((lastBand + 1) * bandWidth + static_cast<double>(left) - 1.0);
      DrawOutline(topRow, bottomRow, x, rightColumn);
    }
    if (in.settings.output) DrawGlyph("123"[n], x, bottomRow + 2);
  }
}

void PlainGraph::DrawOutput(const GraphInputs& in) {
  constexpr std::array<double, 3> kPlaces = {0.8, 0.85, 0.9};
  const auto height = static_cast<double>(graphHeight);
  const int64_t stride = world.RowBytes() >> 2;
  for (size_t n = 0; n < 3; ++n) {
    if (!in.settings.active[n]) continue;
    const double X = kPlaces[n] * static_cast<double>(w);
    const int64_t rawHeight = Whole(height * in.raw[n]);
    const int64_t heldHeight = Whole(height * in.held[n]);
    const int64_t B = Whole(bandWidth);
    const auto markRow = [&](int64_t row, uint8_t green) {
      for (int64_t j = 0; j < B; ++j) {
        // The offset from the world's first pixel, fraction and all.
        const double offset =
            static_cast<double>(j) + X + static_cast<double>(row) * static_cast<double>(stride);
        if (row >= 0 && row < h) Green(Whole(offset) - row * stride, row, green);
      }
    };
    for (int64_t row = bottom; row > bottom - rawHeight; --row) markRow(row, 255);
    for (int64_t row = bottom - rawHeight; row >= top; --row) markRow(row, 100);
    if (heldHeight != rawHeight) markRow(bottom - heldHeight, 255);
    DrawGlyph("123"[n], Whole(X), bottom + 2);
  }
}

void PlainGraph::DrawText(const std::string& text, const std::array<int, 15>& offsets, int64_t x,
                          int64_t y) {
  for (size_t i = 0; i < text.size(); ++i) DrawGlyph(text[i], x + offsets[i], y);
}

void PlainGraph::DrawGlyph(char letter, int64_t x, int64_t y) {
  const auto& [rows, backingRows, backingColumns] = kFont.at(letter);
  for (int row = -1; row <= backingRows; ++row) {
    for (int column = -1; column <= backingColumns; ++column) Dim(x + column, y + row);
  }
  for (size_t row = 0; row < rows.size(); ++row) {
    for (size_t column = 0; column < rows[row].size(); ++column) {
      const bool lit = rows[row][column] == '#';
      if (lit) Plot(x + static_cast<int64_t>(column), y + static_cast<int64_t>(row));
    }
  }
}

void PlainGraph::DrawOutline(int64_t first, int64_t last, int64_t leftmost, int64_t rightmost) {
  for (int64_t x = leftmost; x <= rightmost; ++x) {
    Plot(x, first);
    Plot(x, last);
  }
  for (int64_t y = first; y <= last; ++y) {
    Plot(leftmost, y);
    Plot(rightmost, y);
  }
  DimFrame(first - 1, last + 1, leftmost - 1, rightmost + 1);
  DimFrame(first + 1, last - 1, leftmost + 1, rightmost - 1);
}

void PlainGraph::DimFrame(int64_t first, int64_t last, int64_t leftmost, int64_t rightmost) {
  for (int64_t x = leftmost; x <= rightmost; ++x) {
    Dim(x, first);
    Dim(x, last);
  }
  for (int64_t y = first; y <= last; ++y) {
    Dim(leftmost, y);
    Dim(rightmost, y);
  }
}

void PlainGraph::Store(int64_t x, int64_t y, std::array<uint8_t, 4> lanes) {
  if (x < 0 || x >= w || y < 0 || y >= h) return;
  for (size_t lane = 0; lane < 4; ++lane) world.At(x, y)[lane] = lanes[lane];
}

void PlainGraph::Green(int64_t x, int64_t y, uint8_t green) {
  if (x < 0 || x >= w || y < 0 || y >= h) return;
  world.At(x, y)[0] = 255;
  world.At(x, y)[2] = green;
}

void PlainGraph::Blue(int64_t x, int64_t y) {
  if (x < 0 || x >= w || y < 0 || y >= h) return;
  world.At(x, y)[0] = 255;
  world.At(x, y)[3] = 255;
}

void PlainGraph::Plot(int64_t x, int64_t y) {
  if (0 < x && 1 <= y) Green(x, y, 255);
}

void PlainGraph::Dim(int64_t x, int64_t y) {
  if (!(0 < x && x < w && 1 <= y && y < h)) return;
  world.At(x, y)[0] = static_cast<uint8_t>(Whole(world.At(x, y)[0] * 0.5));
}
