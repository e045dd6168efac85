// The surface of one draw event: its states, the objects made for it, and the record of its calls.
#pragma once

#include <string_view>
#include <vector>

#include "workbench/drawbot/Canvas.h"
#include "workbench/drawbot/DrawCall.h"
#include "workbench/drawbot/DrawObjects.h"
#include "workbench/drawbot/DrawState.h"

class Drawing {
 public:
  // canvas   where the calls land; null: they are recorded alone. Outlives the drawing
  // area     what may be drawn on, in surface coordinates
  // scale    physical pixels for each logical one, as the effect is told
  explicit Drawing(Canvas* drawingCanvas, const ClipBox& area, float scale = 1.0F);
  Drawing(const Drawing&) = delete;
  Drawing& operator=(const Drawing&) = delete;

  // The host's own references, which are never released.
  DRAWBOT_DrawRef DrawRef() { return Reference<DRAWBOT_DrawRef>(marks[0]); }
  DRAWBOT_SupplierRef Supplier() { return Reference<DRAWBOT_SupplierRef>(marks[1]); }
  DRAWBOT_SurfaceRef Surface() { return Reference<DRAWBOT_SurfaceRef>(marks[2]); }
  bool Owns(DRAWBOT_DrawRef reference) { return reference == DrawRef(); }
  bool Owns(DRAWBOT_SupplierRef reference) { return reference == Supplier(); }
  bool Owns(DRAWBOT_SurfaceRef reference) { return reference == Surface(); }

  DrawState& State() { return states.back(); }
  void PushState() { states.push_back(states.back()); }
  // False where nothing is pushed.
  bool PopState();
  size_t PushedCount() const { return states.size() - 1; }

  float ScreenScale() const { return screenScale; }

  // Each lands on the canvas, if there is one. DrawString fills in the placed text's letters.
  void PaintRect(const DRAWBOT_ColorRGBA& color, const DRAWBOT_RectF32& rect);
  void FillPath(const DrawBrush& brush, const DrawPath& path, DRAWBOT_FillType fillType);
  void StrokePath(const DrawPen& pen, const DrawPath& path);
  void DrawString(const DrawBrush& brush, std::u16string_view text, PlacedText placed);
  void PlaceImage(const DrawImage& image, const DRAWBOT_PointF32& origin, float opacity);

  // Puts down a call that doesn't draw.
  void Note(const char* name, std::vector<double> numbers = {});

  DrawObjects objects;
  std::vector<DrawCall> calls;  // all that reached the surface, in order

 private:
  template <typename Ref>
  static Ref Reference(char& mark) {
    void* address = &mark;
    return static_cast<Ref>(address);
  }

  Canvas* canvas;
  float screenScale;
  std::vector<DrawState> states;  // the first is never popped
  char marks[3]{};                // their addresses are the host's references
};
