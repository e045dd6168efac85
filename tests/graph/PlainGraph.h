// The graph drawn the slow way, pixel by pixel and bar by bar: what the library's picture must be.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "GuardedWorld.h"
#include "analysis/RangeGeometry.h"
#include "gradient/GradientRecord.h"
#include "graph/GraphSettings.h"

// All that a picture depends on.
struct GraphInputs {
  GraphSettings settings;
  std::array<double, kBandCount> levels{};
  GradientRecord colorMap;
  RangeGeometry geometry;
  std::array<double, kRangeCount> raw{};
  std::array<double, kRangeCount> held{};
};

class PlainGraph {
 public:
  explicit PlainGraph(GuardedWorld& world);

  void Draw(const GraphInputs& inputs);
  void DrawText(const std::string& text, const std::array<int, 15>& offsets, int64_t x, int64_t y);

 private:
  void DrawBars(const GraphInputs& in);
  void DrawGaps(const GraphInputs& in);
  void DrawGrid();
  void DrawRanges(const GraphInputs& in);
  void DrawOutput(const GraphInputs& in);
  void DrawGlyph(char letter, int64_t x, int64_t y);
  void DrawOutline(int64_t first, int64_t last, int64_t leftmost, int64_t rightmost);
  void DimFrame(int64_t first, int64_t last, int64_t leftmost, int64_t rightmost);

  void Store(int64_t x, int64_t y, std::array<uint8_t, 4> lanes);
  void Green(int64_t x, int64_t y, uint8_t green);
  void Blue(int64_t x, int64_t y);
  void Plot(int64_t x, int64_t y);
  void Dim(int64_t x, int64_t y);

  GuardedWorld& world;
  int64_t w, h;
  int64_t top, bottom, left, right, graphHeight;
  double bandWidth;
};
