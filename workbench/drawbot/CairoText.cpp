// Text in one font, so that pictures are alike wherever it is installed, cut to its width.
#include <cmath>

#include "workbench/drawbot/CairoObjects.h"

namespace {

constexpr const char* kEllipsis = "\xE2\x80\xA6";

// Glyphs larger than this, in pixels, are a surface's size and more.
constexpr double kLargestGlyph = 4096.0;

double WidthOf(cairo_t* context, const std::string& text) {
  cairo_text_extents_t extents{};
  cairo_text_extents(context, text.c_str(), &extents);
  return extents.x_advance;
}

bool IsInsideLetter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// Takes away the letter that begins before `place`. Returns where it began.
size_t EraseLetterBefore(std::string& text, size_t place) {
  size_t begin = place - 1;
  while (begin > 0 && IsInsideLetter(text[begin])) --begin;
  text.erase(begin, place - begin);
  return begin;
}

size_t MiddleOf(const std::string& text) {
  size_t middle = (text.size() + 1) / 2;
  while (middle < text.size() && IsInsideLetter(text[middle])) ++middle;
  return middle;
}

// Takes letters off the end, or off the middle where both ends of a path are to be seen.
std::string Truncated(cairo_t* context, const PlacedText& text) {
  std::string left = text.utf8;
  if (text.truncation == kDRAWBOT_TextTruncation_None ||
      WidthOf(context, left) <= text.truncationWidth) {
    return left;
  }
  const bool cutsMiddle = text.truncation == kDRAWBOT_TextTruncation_PathEllipsis;
  const char* mark = text.truncation == kDRAWBOT_TextTruncation_End ? "" : kEllipsis;
  std::string shown = left;
  while (!left.empty()) {
    const size_t place = EraseLetterBefore(left, cutsMiddle ? MiddleOf(left) : left.size());
    shown = left;
    shown.insert(place, mark);
    if (WidthOf(context, shown) <= text.truncationWidth) return shown;
  }
  return {};
}

double ShiftOf(DRAWBOT_TextAlignment alignment, double width) {
  if (alignment == kDRAWBOT_TextAlignment_Center) return -width / 2.0;
  return alignment == kDRAWBOT_TextAlignment_Right ? -width : 0.0;
}

// Outlines are taken as they are, so that a picture enlarged is the same picture.
void ChooseFont(cairo_t* context, float size) {
  const CairoFontOptions options(cairo_font_options_create());
  cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
  cairo_set_font_options(context, options.get());
  cairo_select_font_face(context, "DejaVu Sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(context, size);
}

}  // namespace

void PaintText(cairo_t* context, const DrawMatrix& matrix, const PlacedText& text) {
  const DrawPoint origin = matrix.Apply({text.origin.x, text.origin.y});
  const double norm = std::hypot(matrix.xx, matrix.xy) + std::hypot(matrix.yx, matrix.yy);
  const bool isNear = std::abs(origin.x) <= kFarthestPixel && std::abs(origin.y) <= kFarthestPixel;
  if (!isNear || !(norm * text.fontSize <= kLargestGlyph)) return;
  const cairo_matrix_t toPixels{matrix.xx, matrix.yx, matrix.xy, matrix.yy, origin.x, origin.y};
  cairo_set_matrix(context, &toPixels);
  ChooseFont(context, text.fontSize);
  const std::string shown = Truncated(context, text);
  cairo_move_to(context, ShiftOf(text.alignment, WidthOf(context, shown)), 0.0);
  cairo_show_text(context, shown.c_str());
}
