// Draws the glyphs of an outline font, fitted to whole pixels.
#pragma once

#include <ft2build.h>
#include FT_FREETYPE_H

#include <string>

#include "tools/fonts/Glyph.h"
#include "tools/fonts/Recipes.h"

class Face {
 public:
  // Throws std::runtime_error where the file can't be read.
  Face(const std::string& file, const Recipe& fontRecipe);
  ~Face();
  Face(const Face&) = delete;
  Face& operator=(const Face&) = delete;

  // Throws std::runtime_error where the glyph doesn't fit between the first and the last row.
  Glyph Draw(int code);

 private:
  struct Edges {
    double left;
    double right;
    double advance;
  };
  // As designed, in pixels: without fitting.
  Edges DesignedEdges(int code);
  double MeanLeftBearing();

  const Recipe& recipe;
  FT_Library library = nullptr;
  FT_Face face = nullptr;
  double leftBearing = 0;
};
