// Drawing with the host's own drawing suites.
#pragma once

#include <cstdint>
#include <memory>

#include "host/PluginGui_DrawUtilsApi.h"

struct PanelImage {
  int32_t width = 0;
  int32_t height = 0;
  std::unique_ptr<uint8_t[]> pixels;  // B, G, R, A; rows without gaps
};

class PluginGui_DrawUtils final : public PluginGui_DrawUtilsApi {
 public:
  void DrawPixels(PluginGui_API* gui, float x, float y, const PanelImage* image) override;
  void LineTo(PluginGui_API* gui, float x, float y) override;
  void MoveTo(PluginGui_API* gui, float x, float y) override;
  void SetPen(PluginGui_API* gui, const Color16* color, float width) override;
  void DrawString(PluginGui_API* gui, float x, float y, const char* text, int32_t reserved,
                  const Color16* color) override;
  void DrawPixelsAlpha(PluginGui_API* gui, float x, float y, const PanelImage* image) override;
  void FillRect(PluginGui_API* gui, const Rect16& rect, const Color16& color) override;
  void DrawPixelsAt(PluginGui_API* gui, int32_t left, int32_t top,
                    const PanelImage* image) override;
  PanelImage* NewImage(int32_t width, int32_t height, const uint8_t* pixels,
                       const uint8_t* mask) override;
  void DisposeImage(PanelImage* image) override;
  void CurveTo(PluginGui_API* gui, const float (&points)[8]) override;
};
