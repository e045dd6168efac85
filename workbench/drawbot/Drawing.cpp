// Records each call, and passes it on.
#include "workbench/drawbot/Drawing.h"

#include "workbench/drawbot/Utf16Text.h"

Drawing::Drawing(Canvas* drawingCanvas, const ClipBox& area, float scale)
    : canvas(drawingCanvas), screenScale(scale), states(1) {
  states.front().clip = area;
}

bool Drawing::PopState() {
  if (PushedCount() == 0) return false;
  states.pop_back();
  return true;
}

void Drawing::PaintRect(const DRAWBOT_ColorRGBA& color, const DRAWBOT_RectF32& rect) {
  const DrawPath path{{{PathStep::Kind::kRect, {rect.left, rect.top, rect.width, rect.height}}}};
  calls.push_back({"PaintRect", color, path.steps, {}, {}});
  if (canvas != nullptr) canvas->FillPath(State(), color, path, kDRAWBOT_FillType_Winding);
}

void Drawing::FillPath(const DrawBrush& brush, const DrawPath& path, DRAWBOT_FillType fillType) {
  calls.push_back({"FillPath", brush.color, path.steps, {}, {static_cast<double>(fillType)}});
  if (canvas != nullptr) canvas->FillPath(State(), brush.color, path, fillType);
}

void Drawing::StrokePath(const DrawPen& pen, const DrawPath& path) {
  calls.push_back({"StrokePath", pen.color, path.steps, {}, {pen.width}});
  if (canvas != nullptr) canvas->StrokePath(State(), pen, path);
}

void Drawing::DrawString(const DrawBrush& brush, std::u16string_view text, PlacedText placed) {
  calls.push_back(
      {"DrawString",
       brush.color,
       {},
       std::u16string(text),
       {placed.fontSize, placed.origin.x, placed.origin.y, static_cast<double>(placed.alignment),
        static_cast<double>(placed.truncation), placed.truncationWidth}});
  if (canvas == nullptr) return;
  placed.utf8 = Utf8From(text);
  canvas->PlaceText(State(), brush.color, placed);
}

void Drawing::PlaceImage(const DrawImage& image, const DRAWBOT_PointF32& origin, float opacity) {
  Note("DrawImage", {static_cast<double>(image.width), static_cast<double>(image.height), origin.x,
                     origin.y, opacity});
  calls.back().pixels = image.pixels;
  if (canvas != nullptr) canvas->PlaceImage(State(), image, origin, opacity);
}

void Drawing::Note(const char* name, std::vector<double> numbers) {
  calls.push_back({name, {}, {}, {}, std::move(numbers)});
}
