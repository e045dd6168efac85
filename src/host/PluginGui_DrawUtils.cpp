// Pens, paths, brushes and strings of the host, each held no longer than it is needed.
#include "host/PluginGui_DrawUtils.h"

#include <cstring>

#include "host/PluginGui_AE_Impl.h"
#include "platform/MultiByteText.h"

namespace {

// Longer strings are cut; the row's own have five letters at most.
constexpr size_t kMaxTextLength = 256;

constexpr Color16 kWhite{0xFFFF, 0xFFFF, 0xFFFF};

// Whoever draws on the host's surface stands behind this interface with this class.
PanelDrawContext& ContextOf(PluginGui_API* gui) {
  return static_cast<PluginGui_AE_Impl*>(gui)->Context();
}

DRAWBOT_ColorRGBA ToHost(const Color16& color) {
  constexpr float kFull = 65535.0F;
  return {static_cast<float>(color.red) / kFull, static_cast<float>(color.green) / kFull,
          static_cast<float>(color.blue) / kFull, 1.0F};
}

DrawbotObject<DRAWBOT_PathRef> NewPath(const PanelDrawContext& context) {
  DRAWBOT_PathRef path = nullptr;
  const SPErr error = context.suites.supplierSuite->NewPath(context.supplier, &path);
  return {context.suites.supplierSuite, error, path};
}

DrawbotObject<DRAWBOT_BrushRef> NewBrush(const PanelDrawContext& context, const Color16& color) {
  const DRAWBOT_ColorRGBA hostColor = ToHost(color);
  DRAWBOT_BrushRef brush = nullptr;
  const SPErr error = context.suites.supplierSuite->NewBrush(context.supplier, &hostColor, &brush);
  return {context.suites.supplierSuite, error, brush};
}

// The path that gathers lines, begun at the pen's position where there is none; null if the host
// gives none.
DRAWBOT_PathRef CurrentPath(PanelDrawContext& context) {
  if (!context.HasSurface()) return nullptr;
  if (!context.currentPath) {
    context.currentPath = NewPath(context);
    if (!context.currentPath) return nullptr;
    context.suites.pathSuite->MoveTo(context.currentPath.Get(), context.penX, context.penY);
  }
  return context.currentPath.Get();
}

void PutPenAt(PanelDrawContext& context, float x, float y) {
  context.penX = x;
  context.penY = y;
}

// The host's own call for this is StrokePath.
void FramePath(const PanelDrawContext& context) {
  context.suites.surfaceSuite->StrokePath(context.surface, context.currentPen.Get(),
                                          context.currentPath.Get());
}

DRAWBOT_FontRef DefaultFont(PanelDrawContext& context) {
  if (context.defaultFont) return context.defaultFont.Get();
  const DRAWBOT_SupplierSuite1& supplier = *context.suites.supplierSuite;
  float size = 0.0F;
  if (supplier.GetDefaultFontSize(context.supplier, &size) != 0) return nullptr;
  DRAWBOT_FontRef font = nullptr;
  const SPErr error = supplier.NewDefaultFont(context.supplier, size, &font);
  context.defaultFont = {&supplier, error, font};
  return context.defaultFont.Get();
}

bool SupportsText(const PanelDrawContext& context) {
  DRAWBOT_Boolean supports = 0;
  return context.suites.supplierSuite->SupportsText(context.supplier, &supports) == 0 &&
         supports != 0;
}

void DrawImage(PanelDrawContext& context, float x, float y, const PanelImage* image,
               DRAWBOT_PixelLayout layout) {
  if (!context.HasSurface() || image == nullptr) return;
  const DRAWBOT_SupplierSuite1& supplier = *context.suites.supplierSuite;
  DRAWBOT_ImageRef reference = nullptr;
  const SPErr error =
      supplier.NewImageFromBuffer(context.supplier, image->width, image->height, image->width * 4,
                                  layout, image->pixels.get(), &reference);
  const DrawbotObject<DRAWBOT_ImageRef> picture(&supplier, error, reference);
  if (!picture) return;
  const DRAWBOT_PointF32 place{x, y};
  context.suites.surfaceSuite->DrawImage(context.surface, picture.Get(), &place, 1.0F);
}

}  // namespace

void PluginGui_DrawUtils::DrawPixels(PluginGui_API* gui, float x, float y,
                                     const PanelImage* image) {
  DrawImage(ContextOf(gui), x, y, image, kDRAWBOT_PixelLayout_32BGR);
}

void PluginGui_DrawUtils::LineTo(PluginGui_API* gui, float x, float y) {
  PanelDrawContext& context = ContextOf(gui);
  const DRAWBOT_PathRef path = CurrentPath(context);
  if (path != nullptr) context.suites.pathSuite->LineTo(path, x, y);
  PutPenAt(context, x, y);
}

void PluginGui_DrawUtils::MoveTo(PluginGui_API* gui, float x, float y) {
  PanelDrawContext& context = ContextOf(gui);
  const DRAWBOT_PathRef path = CurrentPath(context);
  if (path != nullptr) context.suites.pathSuite->MoveTo(path, x, y);
  PutPenAt(context, x, y);
}

void PluginGui_DrawUtils::SetPen(PluginGui_API* gui, const Color16* color, float width) {
  PanelDrawContext& context = ContextOf(gui);
  if (!context.HasSurface()) return;
  if (context.currentPath && context.currentPen) {
    FramePath(context);
    context.currentPath.Release();
  }
  context.currentPen.Release();
  if (color == nullptr) return;
  const DRAWBOT_ColorRGBA hostColor = ToHost(*color);
  DRAWBOT_PenRef pen = nullptr;
  context.status = context.suites.supplierSuite->NewPen(context.supplier, &hostColor, width, &pen);
  context.currentPen = {context.suites.supplierSuite, context.status, pen};
}

void PluginGui_DrawUtils::DrawString(PluginGui_API* gui, float x, float y, const char* text,
                                     int32_t /*reserved*/, const Color16* color) {
  PanelDrawContext& context = ContextOf(gui);
  if (!context.HasSurface()) return;
  const DRAWBOT_FontRef font = DefaultFont(context);
  if (font == nullptr || !SupportsText(context)) return;
  DRAWBOT_UTF16Char utf16[kMaxTextLength + 1];
  MultiByteToUtf16(text, utf16, kMaxTextLength + 1);
  const DrawbotObject<DRAWBOT_BrushRef> brush =
      NewBrush(context, color != nullptr ? *color : kWhite);
  if (!brush) return;
  const DRAWBOT_PointF32 origin{x, y};
  context.suites.surfaceSuite->DrawString(context.surface, brush.Get(), font, utf16, &origin,
                                          kDRAWBOT_TextAlignment_Left, kDRAWBOT_TextTruncation_None,
                                          0.0F);
}

void PluginGui_DrawUtils::DrawPixelsAlpha(PluginGui_API* gui, float x, float y,
                                          const PanelImage* image) {
  DrawImage(ContextOf(gui), x, y, image, kDRAWBOT_PixelLayout_32BGRA_Premul);
}

void PluginGui_DrawUtils::FillRect(PluginGui_API* gui, const Rect16& rect, const Color16& color) {
  const PanelDrawContext& context = ContextOf(gui);
  if (!context.HasSurface()) return;
  const DrawbotObject<DRAWBOT_PathRef> path = NewPath(context);
  const DrawbotObject<DRAWBOT_BrushRef> brush = NewBrush(context, color);
  if (!path || !brush) return;
  const DRAWBOT_RectF32 hostRect{static_cast<float>(rect.left), static_cast<float>(rect.top),
                                 static_cast<float>(rect.right - rect.left),
                                 static_cast<float>(rect.bottom - rect.top)};
  context.suites.pathSuite->AddRect(path.Get(), &hostRect);
  context.suites.surfaceSuite->FillPath(context.surface, brush.Get(), path.Get(),
                                        kDRAWBOT_FillType_Winding);
}

void PluginGui_DrawUtils::DrawPixelsAt(PluginGui_API* gui, int32_t left, int32_t top,
                                       const PanelImage* image) {
  DrawPixelsAlpha(gui, static_cast<float>(left), static_cast<float>(top), image);
}

PanelImage* PluginGui_DrawUtils::NewImage(int32_t width, int32_t height, const uint8_t* pixels,
                                          const uint8_t* mask) {
  // Rows of more bytes than an int holds can't be handed to the host.
  constexpr int32_t kMaxWidth = std::numeric_limits<int32_t>::max() / 4;
  if (width < 1 || height < 1 || width > kMaxWidth) return nullptr;
  const size_t size = static_cast<size_t>(width) * static_cast<size_t>(height) * 4;
  auto image = std::make_unique<PanelImage>();
  image->width = width;
  image->height = height;
  image->pixels = std::make_unique<uint8_t[]>(size);
  std::memcpy(image->pixels.get(), pixels, size);
  const uint8_t* alpha = mask != nullptr ? mask : pixels;
  for (size_t i = 0; i < size; i += 4) image->pixels[i + 3] = alpha[i];
  return image.release();
}

void PluginGui_DrawUtils::DisposeImage(PanelImage* image) {
  delete image;
}

void PluginGui_DrawUtils::CurveTo(PluginGui_API* gui, const float (&points)[8]) {
  PanelDrawContext& context = ContextOf(gui);
  const DRAWBOT_PathRef path = CurrentPath(context);
  if (path != nullptr) {
    const DRAWBOT_PointF32 control1{points[2], points[3]};
    const DRAWBOT_PointF32 control2{points[4], points[5]};
    const DRAWBOT_PointF32 end{points[6], points[7]};
    context.suites.pathSuite->MoveTo(path, points[0], points[1]);
    context.suites.pathSuite->BezierTo(path, &control1, &control2, &end);
  }
  PutPenAt(context, points[6], points[7]);
}
