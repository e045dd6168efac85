// The host's drawing suites: legal during PF_Event_DRAW only.
#pragma once

#include "DrawbotTypes.h"
#include "SPBasic.h"

inline constexpr char kDRAWBOT_DrawSuite[] = "DRAWBOT Draw Suite";
inline constexpr int kDRAWBOT_DrawSuite_Version1 = 1;

struct DRAWBOT_DrawbotSuite1 {
  SPErr (*GetSupplier)(DRAWBOT_DrawRef draw, DRAWBOT_SupplierRef* supplier);
  SPErr (*GetSurface)(DRAWBOT_DrawRef draw, DRAWBOT_SurfaceRef* surface);
};

static_assert(offsetof(DRAWBOT_DrawbotSuite1, GetSupplier) == 0);
static_assert(offsetof(DRAWBOT_DrawbotSuite1, GetSurface) == 8);
static_assert(sizeof(DRAWBOT_DrawbotSuite1) == 16);

inline constexpr char kDRAWBOT_SupplierSuite[] = "DRAWBOT Supplier Suite";
inline constexpr int kDRAWBOT_SupplierSuite_Version1 = 1;

// row_bytes  bytes from one row of data to the next
struct DRAWBOT_SupplierSuite1 {
  SPErr (*NewPen)(DRAWBOT_SupplierRef supplier, const DRAWBOT_ColorRGBA* color, float size,
                  DRAWBOT_PenRef* pen);
  SPErr (*NewBrush)(DRAWBOT_SupplierRef supplier, const DRAWBOT_ColorRGBA* color,
                    DRAWBOT_BrushRef* brush);
  SPErr (*SupportsText)(DRAWBOT_SupplierRef supplier, DRAWBOT_Boolean* supports);
  SPErr (*GetDefaultFontSize)(DRAWBOT_SupplierRef supplier, float* size);
  SPErr (*NewDefaultFont)(DRAWBOT_SupplierRef supplier, float size, DRAWBOT_FontRef* font);
  SPErr (*NewImageFromBuffer)(DRAWBOT_SupplierRef supplier, int width, int height, int row_bytes,
                              DRAWBOT_PixelLayout layout, const void* data,
                              DRAWBOT_ImageRef* image);
  SPErr (*NewPath)(DRAWBOT_SupplierRef supplier, DRAWBOT_PathRef* path);
  SPErr (*SupportsPixelLayoutBGRA)(DRAWBOT_SupplierRef supplier, DRAWBOT_Boolean* supports);
  SPErr (*PrefersPixelLayoutBGRA)(DRAWBOT_SupplierRef supplier, DRAWBOT_Boolean* prefers);
  SPErr (*SupportsPixelLayoutARGB)(DRAWBOT_SupplierRef supplier, DRAWBOT_Boolean* supports);
  SPErr (*PrefersPixelLayoutARGB)(DRAWBOT_SupplierRef supplier, DRAWBOT_Boolean* prefers);
  SPErr (*RetainObject)(DRAWBOT_ObjectRef object);
  SPErr (*ReleaseObject)(DRAWBOT_ObjectRef object);
};

static_assert(offsetof(DRAWBOT_SupplierSuite1, NewPen) == 0);
static_assert(offsetof(DRAWBOT_SupplierSuite1, NewBrush) == 8);
static_assert(offsetof(DRAWBOT_SupplierSuite1, SupportsText) == 16);
static_assert(offsetof(DRAWBOT_SupplierSuite1, GetDefaultFontSize) == 24);
static_assert(offsetof(DRAWBOT_SupplierSuite1, NewDefaultFont) == 32);
static_assert(offsetof(DRAWBOT_SupplierSuite1, NewImageFromBuffer) == 40);
static_assert(offsetof(DRAWBOT_SupplierSuite1, NewPath) == 48);
static_assert(offsetof(DRAWBOT_SupplierSuite1, SupportsPixelLayoutBGRA) == 56);
static_assert(offsetof(DRAWBOT_SupplierSuite1, PrefersPixelLayoutBGRA) == 64);
static_assert(offsetof(DRAWBOT_SupplierSuite1, SupportsPixelLayoutARGB) == 72);
static_assert(offsetof(DRAWBOT_SupplierSuite1, PrefersPixelLayoutARGB) == 80);
static_assert(offsetof(DRAWBOT_SupplierSuite1, RetainObject) == 88);
static_assert(offsetof(DRAWBOT_SupplierSuite1, ReleaseObject) == 96);
static_assert(sizeof(DRAWBOT_SupplierSuite1) == 104);

inline constexpr char kDRAWBOT_SurfaceSuite[] = "DRAWBOT Surface Suite";
inline constexpr int kDRAWBOT_SurfaceSuite_Version2 = 2;

// string  UTF-16, ends with a zero
struct DRAWBOT_SurfaceSuite2 {
  SPErr (*PushStateStack)(DRAWBOT_SurfaceRef surface);
  SPErr (*PopStateStack)(DRAWBOT_SurfaceRef surface);
  SPErr (*PaintRect)(DRAWBOT_SurfaceRef surface, const DRAWBOT_ColorRGBA* color,
                     const DRAWBOT_RectF32* rect);
  SPErr (*FillPath)(DRAWBOT_SurfaceRef surface, DRAWBOT_BrushRef brush, DRAWBOT_PathRef path,
                    DRAWBOT_FillType fill_type);
  SPErr (*StrokePath)(DRAWBOT_SurfaceRef surface, DRAWBOT_PenRef pen, DRAWBOT_PathRef path);
  SPErr (*Clip)(DRAWBOT_SurfaceRef surface, DRAWBOT_SupplierRef supplier,
                const DRAWBOT_Rect32* rect);
  SPErr (*GetClipBounds)(DRAWBOT_SurfaceRef surface, DRAWBOT_Rect32* rect);
  SPErr (*IsWithinClipBounds)(DRAWBOT_SurfaceRef surface, const DRAWBOT_Rect32* rect,
                              DRAWBOT_Boolean* within);
  SPErr (*Transform)(DRAWBOT_SurfaceRef surface, const DRAWBOT_MatrixF32* matrix);
  SPErr (*DrawString)(DRAWBOT_SurfaceRef surface, DRAWBOT_BrushRef brush, DRAWBOT_FontRef font,
                      const DRAWBOT_UTF16Char* string, const DRAWBOT_PointF32* origin,
                      DRAWBOT_TextAlignment alignment, DRAWBOT_TextTruncation truncation,
                      float truncation_width);
  SPErr (*DrawImage)(DRAWBOT_SurfaceRef surface, DRAWBOT_ImageRef image,
                     const DRAWBOT_PointF32* origin, float alpha);
  SPErr (*SetInterpolationPolicy)(DRAWBOT_SurfaceRef surface, DRAWBOT_InterpolationPolicy policy);
  SPErr (*GetInterpolationPolicy)(DRAWBOT_SurfaceRef surface, DRAWBOT_InterpolationPolicy* policy);
  SPErr (*SetAntiAliasPolicy)(DRAWBOT_SurfaceRef surface, DRAWBOT_AntiAliasPolicy policy);
  SPErr (*GetAntiAliasPolicy)(DRAWBOT_SurfaceRef surface, DRAWBOT_AntiAliasPolicy* policy);
  SPErr (*Flush)(DRAWBOT_SurfaceRef surface);
  SPErr (*GetTransformToScreenScale)(DRAWBOT_SurfaceRef surface, float* scale);
};

static_assert(offsetof(DRAWBOT_SurfaceSuite2, PushStateStack) == 0);
static_assert(offsetof(DRAWBOT_SurfaceSuite2, PopStateStack) == 8);
static_assert(offsetof(DRAWBOT_SurfaceSuite2, PaintRect) == 16);
static_assert(offsetof(DRAWBOT_SurfaceSuite2, FillPath) == 24);
static_assert(offsetof(DRAWBOT_SurfaceSuite2, StrokePath) == 32);
static_assert(offsetof(DRAWBOT_SurfaceSuite2, Clip) == 40);
static_assert(offsetof(DRAWBOT_SurfaceSuite2, GetClipBounds) == 48);
static_assert(offsetof(DRAWBOT_SurfaceSuite2, IsWithinClipBounds) == 56);
static_assert(offsetof(DRAWBOT_SurfaceSuite2, Transform) == 64);
static_assert(offsetof(DRAWBOT_SurfaceSuite2, DrawString) == 72);
static_assert(offsetof(DRAWBOT_SurfaceSuite2, DrawImage) == 80);
static_assert(offsetof(DRAWBOT_SurfaceSuite2, SetInterpolationPolicy) == 88);
static_assert(offsetof(DRAWBOT_SurfaceSuite2, GetInterpolationPolicy) == 96);
static_assert(offsetof(DRAWBOT_SurfaceSuite2, SetAntiAliasPolicy) == 104);
static_assert(offsetof(DRAWBOT_SurfaceSuite2, GetAntiAliasPolicy) == 112);
static_assert(offsetof(DRAWBOT_SurfaceSuite2, Flush) == 120);
static_assert(offsetof(DRAWBOT_SurfaceSuite2, GetTransformToScreenScale) == 128);
static_assert(sizeof(DRAWBOT_SurfaceSuite2) == 136);

inline constexpr char kDRAWBOT_PathSuite[] = "DRAWBOT Path Suite";
inline constexpr int kDRAWBOT_PathSuite_Version1 = 1;

struct DRAWBOT_PathSuite1 {
  SPErr (*MoveTo)(DRAWBOT_PathRef path, float x, float y);
  SPErr (*LineTo)(DRAWBOT_PathRef path, float x, float y);
  SPErr (*BezierTo)(DRAWBOT_PathRef path, const DRAWBOT_PointF32* control1,
                    const DRAWBOT_PointF32* control2, const DRAWBOT_PointF32* end);
  SPErr (*AddRect)(DRAWBOT_PathRef path, const DRAWBOT_RectF32* rect);
  SPErr (*AddArc)(DRAWBOT_PathRef path, const DRAWBOT_PointF32* center, float radius,
                  float start_angle, float sweep);
  SPErr (*Close)(DRAWBOT_PathRef path);
};

static_assert(offsetof(DRAWBOT_PathSuite1, MoveTo) == 0);
static_assert(offsetof(DRAWBOT_PathSuite1, LineTo) == 8);
static_assert(offsetof(DRAWBOT_PathSuite1, BezierTo) == 16);
static_assert(offsetof(DRAWBOT_PathSuite1, AddRect) == 24);
static_assert(offsetof(DRAWBOT_PathSuite1, AddArc) == 32);
static_assert(offsetof(DRAWBOT_PathSuite1, Close) == 40);
static_assert(sizeof(DRAWBOT_PathSuite1) == 48);
