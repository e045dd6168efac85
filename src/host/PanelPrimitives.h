// What a row that draws itself draws with, during a draw event.
#pragma once

#include <cstdint>

#include "host/PanelShapes.h"
#include "host/PluginGui_API.h"
#include "host/PluginGui_DrawUtilsApi.h"

// Opens the surface of a draw event for the functions below and closes it with this object. Only
// one at a time, on the host's UI thread. Throws as BeginDraw does.
class PanelDrawing {
 public:
  explicit PanelDrawing(PluginGui_API* gui);
  ~PanelDrawing();
  PanelDrawing(const PanelDrawing&) = delete;
  PanelDrawing& operator=(const PanelDrawing&) = delete;

 private:
  PluginGui_API* drawnOn;
};

// The functions below draw nothing outside a PanelDrawing.

// The colour of the host's panel, or a middle grey where it has none.
void GetPanelBackColor(Color16* color);

void PaintPanelRect(const Rect16& rect, const Color16& color);
void FramePanelRect(const Rect16& rect, const Color16& color);
void DrawPanelLine(float x0, float y0, float x1, float y1, const Color16& color);
// y   of the baseline
void DrawPanelText(float x, float y, const Color16& color, const char* text);
