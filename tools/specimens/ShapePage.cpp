// Filled shapes and lines: round corners, triangles, curves, overlaps, hairlines.
#include <array>
#include <cstddef>
#include <cstdint>

#include "drawing/SharedPainter.h"
#include "tools/specimens/Pages.h"

namespace {

constexpr ColorBGRA kPlate(0xFF5A5A5A);
constexpr ColorBGRA kFrame(0xFFC8C8C8);
constexpr ColorBGRA kAccent(0xFF1C73AE);
constexpr int32_t kOpaque = 256;

void Draw(ImageBuffer& page, ColorBGRA color, int32_t opacity, double lineWidth) {
  SharedRasterizer().DrawPath(SharedPath(), page, color, opacity, false, nullptr, nullptr,
                              lineWidth);
}

// Radii from left to right, line widths from top to bottom; the first row is filled.
void DrawPlates(ImageBuffer& page) {
  constexpr std::array<double, 6> kRadii = {0, 1, 3, 5, 8, 14};
  constexpr std::array<double, 4> kLineWidths = {0, 0.5, 1, 3};
  for (int32_t row = 0; row < 4; ++row) {
    for (int32_t column = 0; column < 6; ++column) {
      const int32_t left = 16 + column * 66;
      const int32_t top = 16 + row * 40;
      SharedPath().SetRoundRect({left, top, left + 54, top + 30},
                                kRadii[static_cast<size_t>(column)], true, true, true, true);
      Draw(page, row == 0 ? kPlate : kFrame, kOpaque, kLineWidths[static_cast<size_t>(row)]);
    }
  }
}

// Plates as buttons wear them, some corners square; a menu's plate that lets the ground through.
void DrawButtons(ImageBuffer& page) {
  for (int32_t i = 0; i < 4; ++i) {
    const int32_t left = 424 + (i % 2) * 104;
    const int32_t top = 16 + (i / 2) * 40;
    SharedPath().SetRoundRect({left, top, left + 92, top + 30}, 6.0, i != 1, i != 3, i != 2,
                              i == 0);
    Draw(page, kPlate, kOpaque, 0);
    Draw(page, kFrame, kOpaque, 1);
  }
  SharedPath().SetRoundRect({424, 96, 620, 160}, 3.0, true, true, true, true);
  Draw(page, kAccent, 120, 0);
  Draw(page, kAccent, kOpaque, 1);
}

// The arrow of a popup and larger ones, each radius filled and as a line.
void DrawTriangles(ImageBuffer& page) {
  PathBuilder& path = SharedPath();
  for (int32_t i = 0; i < 5; ++i) {
    const double left = 16 + i * 70.0;
    const double radius = i * 2.0;
    path.SetRoundTriangle({left, 186}, {left + 10, 186}, {left + 5, 195}, radius / 2);
    Draw(page, kFrame, kOpaque, 0);
    path.SetRoundTriangle({left + 16, 186}, {left + 60, 186}, {left + 38, 224}, radius);
    Draw(page, kPlate, kOpaque, 0);
    Draw(page, kFrame, kOpaque, 1);
  }
}

// Circles of four arcs each, down to the smallest, and a spiral whose radius grows along the arc.
void DrawArcs(ImageBuffer& page) {
  PathBuilder& path = SharedPath();
  int32_t left = 376;
  for (const int32_t diameter : {2, 4, 6, 10, 16, 24, 40}) {
    path.SetRoundRect({left, 184, left + diameter, 184 + diameter}, diameter / 2.0, true, true,
                      true, true);
    Draw(page, kFrame, kOpaque, 0);
    left += diameter + 6;
  }
  path.Clear();
  path.MoveTo({570, 204});
  constexpr std::array<PathPoint, 8> kTurns = {{{570, 196},
                                                {582, 204},
                                                {570, 218},
                                                {552, 204},
                                                {570, 184},
                                                {592, 204},
                                                {570, 228},
                                                {540, 204}}};
  for (const PathPoint& end : kTurns) path.ArcTo({570, 204}, end);
  path.ClosePath();
  Draw(page, kAccent, kOpaque, 1.5);
}

// A wave and a closed curve of cubics.
void DrawCurves(ImageBuffer& page) {
  PathBuilder& path = SharedPath();
  path.Clear();
  path.MoveTo({16, 270});
  path.CubicTo({66, 210}, {106, 330}, {156, 270});
  path.ClosePath();
  Draw(page, kFrame, kOpaque, 2);
  path.Clear();
  path.MoveTo({230, 260});
  path.CubicTo({200, 220}, {170, 280}, {230, 306});
  path.CubicTo({290, 280}, {260, 220}, {230, 260});
  path.ClosePath();
  Draw(page, ColorBGRA(0xFFB03A3A), kOpaque, 0);
}

void AddRectangle(PathBuilder& path, const Rect& rect, bool clockwise) {
  const double left = clockwise ? rect.left : rect.right;
  const double right = clockwise ? rect.right : rect.left;
  path.MoveTo({left, static_cast<double>(rect.top)});
  path.LineTo({right, static_cast<double>(rect.top)});
  path.LineTo({right, static_cast<double>(rect.bottom)});
  path.LineTo({left, static_cast<double>(rect.bottom)});
  path.LineTo({left, static_cast<double>(rect.top)});
  path.ClosePath();
}

// Two rectangles of one winding, at half opacity: one shade. The other way round leaves a hole. A
// star whose lines cross is solid.
void DrawOverlaps(ImageBuffer& page) {
  PathBuilder& path = SharedPath();
  path.Clear();
  AddRectangle(path, {290, 246, 340, 286}, true);
  AddRectangle(path, {314, 262, 364, 302}, true);
  Draw(page, kAccent, 128, 0);
  path.Clear();
  AddRectangle(path, {380, 246, 440, 302}, true);
  AddRectangle(path, {396, 260, 424, 288}, false);
  Draw(page, kAccent, 128, 0);
  constexpr std::array<PathPoint, 6> kStar = {
      {{486, 244}, {504, 302}, {456, 266}, {516, 266}, {468, 302}, {486, 244}}};
  path.Clear();
  path.MoveTo(kStar[0]);
  for (size_t i = 1; i < kStar.size(); ++i) path.LineTo(kStar[i]);
  path.ClosePath();
  Draw(page, ColorBGRA(0xFFD8A030), kOpaque, 0);
}

// Lines of two points in all directions, and down to a tenth of a pixel.
void DrawHairlines(ImageBuffer& page) {
  PathBuilder& path = SharedPath();
  const auto line = [&](const PathPoint& from, const PathPoint& to, double lineWidth) {
    path.Clear();
    path.MoveTo(from);
    path.LineTo(to);
    path.ClosePath();
    Draw(page, kFrame, kOpaque, lineWidth);
  };
  constexpr std::array<PathPoint, 8> kEnds = {
      {{60, 352}, {56, 334}, {36, 322}, {16, 334}, {12, 352}, {16, 370}, {36, 382}, {56, 370}}};
  for (const PathPoint& end : kEnds) line({36, 352}, end, 1);
  double top = 322;
  for (const double lineWidth : {0.1, 0.25, 0.5, 1.0, 2.0}) {
    line({90, top}, {290, top}, lineWidth);
    line({310, top}, {620, top + 8}, lineWidth);
    top += 14;
  }
}

}  // namespace

void DrawShapePage(ImageBuffer& page) {
  page.FillRect({0, 0, 640, 400}, ColorBGRA(0xFF262626), kOpaque, nullptr);
  DrawPlates(page);
  DrawButtons(page);
  DrawTriangles(page);
  DrawArcs(page);
  DrawCurves(page);
  DrawOverlaps(page);
  DrawHairlines(page);
}
