// Text from bitmap fonts: kerning by the facing edges of two glyphs, measuring, drawing.
#include "drawing/Labeler.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "drawing/ClippedPlacement.h"
#include "drawing/CoveragePaint.h"
#include "engine/ExceptionInfo.h"
#include "platform/SaturatedInt.h"
#include "platform/Truncate.h"

namespace {

constexpr int32_t kScaledThreshold = 64;
constexpr int32_t kScaledLimit = 2;
constexpr int32_t kSolidContact = 255;

float screenScale = 1.0F;

bool IsLetter(int32_t code) {
  return (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z');
}

bool IsWideOverhang(int32_t code) {
  return code == 'T' || code == 'Y';
}

std::string_view Bytes(const char* text) {
  return text == nullptr ? "" : text;
}

int32_t Code(char byte) {
  return static_cast<unsigned char>(byte);
}

// What two columns of the strip have in common, and whether both have ink in 2 rows or more.
// A column beyond the strip's ends is empty: narrow glyphs at an end have too few neighbours.
struct ColumnContact {
  int64_t sum = 0;
  bool solid = false;
};

ColumnContact CompareColumns(const Font& font, int32_t a, int32_t b) {
  const int32_t stride = font.Record().stride;
  if (a < 0 || b < 0 || a >= stride || b >= stride) return {};
  int64_t sum = 0;
  int32_t inkedRowsOfA = 0;
  int32_t inkedRowsOfB = 0;
  for (int32_t row = 0; row < font.Rows(); ++row) {
    const int32_t p = *font.Coverage(row, a);
    const int32_t q = *font.Coverage(row, b);
    inkedRowsOfA += p != 0 ? 1 : 0;
    inkedRowsOfB += q != 0 ? 1 : 0;
    if (p * q != 0) sum += Truncate<int32_t>(std::sqrt(static_cast<double>(p * q)));
  }
  return {sum, inkedRowsOfA >= 2 && inkedRowsOfB >= 2};
}

// How much two glyphs would touch if they were slid `count` columns together.
int64_t EdgeContact(const Font& font, int32_t a, int32_t b, int32_t count) {
  int64_t sum = 0;
  int32_t solidPairs = 0;
  for (int32_t k = 0; k < count; ++k) {
    const ColumnContact contact = CompareColumns(font, a + k, b + k);
    sum += contact.sum;
    solidPairs += contact.solid ? 1 : 0;
  }
  return solidPairs >= 3 ? kSolidContact : sum;
}

// Between the background and the colour by the coverage; alpha stays.
void StoreMix(const CoverageRun& run, const TextStyle& style, int32_t opacity) {
  for (int32_t i = 0; i < run.count; ++i) {
    const int32_t alpha = (run.coverage[i] * opacity) >> 8;
    const auto mix = [alpha](uint8_t from, uint8_t to) {
      return alpha == 255 ? to : static_cast<uint8_t>((((to - from) * alpha) >> 8) + from);
    };
    ColorBGRA& pixel = run.pixels[i];
    pixel.blue = mix(style.background.blue, style.color.blue);
    pixel.green = mix(style.background.green, style.color.green);
    pixel.red = mix(style.background.red, style.color.red);
  }
}

// The style's clip is in physical pixels here. A place beyond int32 is as unseen as the last one
// inside.
void DrawGlyph(ImageBuffer& buffer, const Font& font, int32_t code, int64_t x, int32_t y,
               const TextStyle& style) {
  if (!Font::HasGlyph(code)) return;
  const int32_t first = font.FirstColumn(code);
  const int32_t width = font.EndColumn(code) - first;
  const auto place = ClipPlacement({0, 0, width, font.Rows()}, width, font.Rows(), SaturatedInt(x),
                                   y, buffer.ClippedBounds(style.clip));
  if (!place) return;
  const int32_t opacity = std::clamp(style.opacity, 0, 256);
  const Rect& part = place->source;
  for (int32_t row = part.top; row < part.bottom; ++row) {
    const CoverageRun run = {font.Coverage(row, first + part.left),
                             buffer.Row(place->y + row - part.top) + place->x,
                             part.right - part.left};
    if (style.blend) {
      PaintCoverage(run, style.color, opacity);
    } else {
      StoreMix(run, style, opacity);
    }
  }
}

}  // namespace

void SetScreenScale(float scale) {
  screenScale = scale;
}

void Labeler::SetFont(const Font* font, int32_t kernThreshold, int32_t kernLimit, bool allowTwin) {
  FontTwin choice{font, 1.0F};
  if (font != nullptr && allowTwin && screenScale != 1.0F) choice = TwinAtScale(*font, screenScale);
  selected = choice.font;
  spacing = selected == nullptr ? 0 : selected->Record().spacing;
  threshold = kernThreshold;
  limit = kernLimit;
  scaled = choice.font != font;
  fontScale = choice.ratio;
}

int32_t Labeler::GetCharWidth(int32_t code) const {
  const Font& font = Selected();
  return Font::HasGlyph(code) ? font.EndColumn(code) - font.FirstColumn(code) : 0;
}

int32_t Labeler::GetKerning(int32_t left, int32_t right) const {
  const Font& font = Selected();
  if (!IsLetter(left) || !IsLetter(right)) return spacing;
  const int32_t contactEnough = scaled ? kScaledThreshold : threshold;
  // Further than the strip is wide nothing is left to touch.
  const int64_t furthest =
      std::min<int64_t>(scaled ? kScaledLimit : int64_t{limit} + 1, font.Record().stride);
  int32_t lastOfLeft = font.EndColumn(left) - 1;
  const int32_t firstOfRight = font.FirstColumn(right);
  int32_t together = 1;
  while (together <= furthest || together == 1) {
    if (EdgeContact(font, lastOfLeft, firstOfRight, together) >= contactEnough) {
      --together;
      break;
    }
    ++together;
    --lastOfLeft;
  }
  if ((IsWideOverhang(left) || IsWideOverhang(right)) && together > 1) together /= 2;
  return together < 1 ? spacing : spacing - together;
}

int32_t Labeler::GetLineHeight() const {
  const int32_t rows = Selected().Rows();
  return scaled ? Truncate<int32_t>(static_cast<float>(rows) / fontScale + 0.5F) : rows;
}

int32_t Labeler::MeasureString(const char* text, int32_t tracking) const {
  int64_t sum = 0;
  int32_t previous = -1;
  for (const char byte : Bytes(text)) {
    const int32_t code = Code(byte);
    if (previous >= 0) sum += int64_t{GetKerning(previous, code)} + tracking;
    sum += GetCharWidth(code);
    previous = code;
  }
  if (!scaled) return SaturatedInt(sum);
  return Truncate<int32_t>(static_cast<float>(sum) / fontScale + 0.5F);
}

void Labeler::DrawChar(ImageBuffer& buffer, int32_t code, int32_t x, int32_t y,
                       const TextStyle& style) const {
  DrawGlyph(buffer, Selected(), code, x, y, style);
}

void Labeler::DrawString(ImageBuffer& buffer, const char* text, int32_t x, int32_t y,
                         TextAlignment alignment, const TextStyle& style) const {
  const std::string_view bytes = Bytes(text);
  if (bytes.empty()) return;
  const Font& font = Selected();
  TextStyle physical = style;
  Rect physicalClip;
  if (style.clip != nullptr) {
    physicalClip = buffer.ToPhysical(*style.clip);
    physical.clip = &physicalClip;
  }
  const int32_t physicalY = buffer.ToPhysical(y);
  int64_t pen = buffer.ToPhysical(x);
  const auto step = [&](size_t left) {
    return int64_t{GetKerning(Code(bytes[left]), Code(bytes[left + 1]))} + style.tracking;
  };
  if (alignment == TextAlignment::kRight) {
    for (size_t i = bytes.size(); i-- > 0;) {
      pen -= GetCharWidth(Code(bytes[i]));
      DrawGlyph(buffer, font, Code(bytes[i]), pen, physicalY, physical);
      if (i > 0) pen -= step(i - 1);
    }
    return;
  }
  for (size_t i = 0; i < bytes.size(); ++i) {
    DrawGlyph(buffer, font, Code(bytes[i]), pen, physicalY, physical);
    pen += GetCharWidth(Code(bytes[i]));
    if (i + 1 < bytes.size()) pen += step(i);
  }
}

void Labeler::DrawStringInRect(ImageBuffer& buffer, const char* text, const Rect& rect,
                               TextAlignment alignment, const TextStyle& style) const {
  if (Bytes(text).empty()) return;
  const int64_t slack = int64_t{rect.bottom} - rect.top - GetLineHeight();
  const int64_t y = int64_t{rect.top} + 1 + (slack >> 1);
  int64_t x = alignment == TextAlignment::kRight ? rect.right : rect.left;
  if (alignment == TextAlignment::kCentre) {
    x += (int64_t{rect.right} - rect.left - MeasureString(text, style.tracking)) / 2;
  }
  DrawString(buffer, text, SaturatedInt(x), SaturatedInt(y), alignment, style);
}

const Font& Labeler::Selected() const {
  if (selected == nullptr) throw App::ExceptionInfo{App::kOutOfMemory, nullptr};
  return *selected;
}

Labeler& SharedLabeler() {
  static Labeler labeler;
  return labeler;
}
