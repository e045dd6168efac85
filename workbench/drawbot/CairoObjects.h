// Cairo's objects, which go when their scope ends, and what every painting begins with.
#pragma once

#include <cairo.h>

#include <memory>

#include "workbench/drawbot/Canvas.h"

struct CairoDeleter {
  void operator()(cairo_t* context) const { cairo_destroy(context); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
};
using CairoContext = std::unique_ptr<cairo_t, CairoDeleter>;
using CairoSurface = std::unique_ptr<cairo_surface_t, CairoDeleter>;
using CairoFontOptions = std::unique_ptr<cairo_font_options_t, CairoDeleter>;

// Cairo counts in 24.8 bits. What lies this far out is drawn at the limit, off every picture.
constexpr double kFarthestPixel = 1e6;

inline cairo_matrix_t AsCairo(const DrawMatrix& m) {
  return {m.xx, m.yx, m.xy, m.yy, m.x0, m.y0};
}

// Paints `text` through `matrix`, which leads to pixels and is regular.
void PaintText(cairo_t* context, const DrawMatrix& matrix, const PlacedText& text);
