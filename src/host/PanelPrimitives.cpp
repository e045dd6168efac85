// Plain functions over the one surface that is being drawn on.
#include "host/PanelPrimitives.h"

namespace {

PluginGui_API* currentGui = nullptr;
PluginGui_DrawUtilsApi* currentDrawUtils = nullptr;

bool IsDrawing() {
  return currentGui != nullptr && currentDrawUtils != nullptr;
}

void SetCurrent(PluginGui_API* gui) {
  currentGui = gui;
  currentDrawUtils = gui != nullptr ? gui->GetDrawUtils() : nullptr;
}

}  // namespace

PanelDrawing::PanelDrawing(PluginGui_API* gui) : drawnOn(gui) {
  SetCurrent(gui);
  try {
    gui->BeginDraw();
  } catch (...) {
    SetCurrent(nullptr);
    throw;
  }
}

PanelDrawing::~PanelDrawing() {
  drawnOn->EndDraw();
  SetCurrent(nullptr);
}

void GetPanelBackColor(Color16* color) {
  constexpr A_long kMiddle = 0x80;
  A_long red = kMiddle;
  A_long green = kMiddle;
  A_long blue = kMiddle;
  if (currentGui != nullptr) currentGui->GetAppColor(0, &red, &green, &blue);
  *color = {static_cast<uint16_t>(red << 8), static_cast<uint16_t>(green << 8),
            static_cast<uint16_t>(blue << 8)};
}

void PaintPanelRect(const Rect16& rect, const Color16& color) {
  if (IsDrawing()) currentDrawUtils->FillRect(currentGui, rect, color);
}

void FramePanelRect(const Rect16& rect, const Color16& color) {
  if (!IsDrawing()) return;
  currentDrawUtils->SetPen(currentGui, &color, 1.0F);
  currentDrawUtils->MoveTo(currentGui, rect.left, rect.top);
  currentDrawUtils->LineTo(currentGui, rect.right, rect.top);
  currentDrawUtils->LineTo(currentGui, rect.right, rect.bottom);
  currentDrawUtils->LineTo(currentGui, rect.left, rect.bottom);
  currentDrawUtils->LineTo(currentGui, rect.left, rect.top);
}

void DrawPanelLine(float x0, float y0, float x1, float y1, const Color16& color) {
  if (!IsDrawing()) return;
  currentDrawUtils->SetPen(currentGui, &color, 1.0F);
  currentDrawUtils->MoveTo(currentGui, x0, y0);
  currentDrawUtils->LineTo(currentGui, x1, y1);
}

void DrawPanelText(float x, float y, const Color16& color, const char* text) {
  if (IsDrawing()) currentDrawUtils->DrawString(currentGui, x, y, text, 0, &color);
}
