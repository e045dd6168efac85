// Glyphs of an outline font: hinted in height, and widened or narrowed to whole pixels across.
#include "tools/fonts/Face.h"

#include FT_BBOX_H
#include FT_OUTLINE_H

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string_view>

namespace {

constexpr int kFontUnit = 64;  // FreeType's units to the pixel
constexpr double kLeastSpaceInEms = 0.09;

int RoundToInt(double value) {
  return static_cast<int>(std::lround(value));
}

void Check(FT_Error error, const std::string& what) {
  if (error != 0) throw std::runtime_error("can't " + what);
}

// A stem in the middle of a glyph stands on whole pixels where the widths of both are even or odd.
int WholeWidth(double ink, int code, int stem) {
  const bool hasMiddleStem =
      std::string_view("TYm+").find(static_cast<char>(code)) != std::string_view::npos;
  if (!hasMiddleStem) return std::max(RoundToInt(ink), 1);
  return stem + 2 * RoundToInt((ink - stem) / 2);
}

// Stretches the outline so that its outer edges stand on whole pixels, and its left one on 0.
void FitAcross(FT_Outline& outline, int inkWidth) {
  FT_BBox box{};
  FT_Outline_Get_BBox(&outline, &box);
  const FT_Pos width = std::max<FT_Pos>(box.xMax - box.xMin, 1);
  for (int i = 0; i < outline.n_points; ++i) {
    outline.points[i].x = (outline.points[i].x - box.xMin) * inkWidth * kFontUnit / width;
  }
}

// A mark that stands a little too high or low is moved in by whole rows.
void FitInHeight(FT_Outline& outline, const Recipe& recipe, int code) {
  FT_Outline_Translate(&outline, 0, (recipe.rows - recipe.baseline) * kFontUnit);
  FT_BBox box{};
  FT_Outline_Get_BBox(&outline, &box);
  const FT_Pos tooHigh = (box.yMax - recipe.rows * kFontUnit + kFontUnit - 1) / kFontUnit;
  const FT_Pos tooLow = (-box.yMin + kFontUnit - 1) / kFontUnit;
  const FT_Pos shift = tooHigh > 0 ? -tooHigh : std::max<FT_Pos>(tooLow, 0);
  const bool isMark = std::isalnum(code) == 0;
  if (shift != 0 && (!isMark || (tooHigh > 0 && tooLow > 0) || std::abs(shift) > 1)) {
    throw std::runtime_error(std::string(recipe.name) + ": \"" + static_cast<char>(code) +
                             "\" doesn't fit its rows");
  }
  FT_Outline_Translate(&outline, 0, shift * kFontUnit);
}

}  // namespace

Face::Face(const std::string& file, const Recipe& fontRecipe) : recipe(fontRecipe) {
  Check(FT_Init_FreeType(&library), "start FreeType");
  Check(FT_New_Face(library, file.c_str(), 0, &face), "read the face " + file);
  Check(FT_Set_Char_Size(face, RoundToInt(recipe.pixelsPerEm * kFontUnit), 0, 72, 72),
        "set a size");
  leftBearing = MeanLeftBearing();
}

Face::~Face() {
  FT_Done_Face(face);
  FT_Done_FreeType(library);
}

Glyph Face::Draw(int code) {
  const Edges edges = DesignedEdges(code);
  const double ink = edges.right - edges.left;
  if (ink <= 0) return {RoundToInt(edges.advance), 0, recipe.rows};
  const int inkWidth = WholeWidth(ink, code, recipe.stem);
  const int leastSpace = RoundToInt(recipe.pixelsPerEm * kLeastSpaceInEms);
  const int space = std::max(RoundToInt(edges.advance - edges.right + leftBearing), leastSpace);
  Check(FT_Load_Char(face, static_cast<FT_ULong>(code), FT_LOAD_TARGET_LIGHT), "load a glyph");
  FT_Outline& outline = face->glyph->outline;
  FitAcross(outline, inkWidth);
  FitInHeight(outline, recipe, code);
  Glyph glyph(inkWidth + space, inkWidth, recipe.rows);
  FT_Bitmap bitmap{};
  bitmap.rows = static_cast<unsigned>(glyph.rows);
  bitmap.width = static_cast<unsigned>(glyph.width);
  bitmap.pitch = glyph.width;
  bitmap.buffer = glyph.coverage.data();
  bitmap.num_grays = 256;
  bitmap.pixel_mode = FT_PIXEL_MODE_GRAY;
  Check(FT_Outline_Get_Bitmap(library, &outline, &bitmap), "draw a glyph");
  return glyph;
}

Face::Edges Face::DesignedEdges(int code) {
  Check(FT_Load_Char(face, static_cast<FT_ULong>(code), FT_LOAD_NO_HINTING), "load a glyph");
  FT_BBox box{};
  FT_Outline_Get_BBox(&face->glyph->outline, &box);
  return {static_cast<double>(box.xMin) / kFontUnit, static_cast<double>(box.xMax) / kFontUnit,
          static_cast<double>(face->glyph->linearHoriAdvance) / 65536.0};
}

// What a letter has on its left on the average: where all of a cell's space stands on the right,
// each one carries it for its neighbour.
double Face::MeanLeftBearing() {
  double sum = 0;
  for (int code = 'a'; code <= 'z'; ++code) sum += DesignedEdges(code).left;
  return sum / 26;
}
