// What the host's drawing suites draw with: references, policies and geometry.
#pragma once

#include <cstddef>
#include <cstdint>

using DRAWBOT_Boolean = uint8_t;
using DRAWBOT_UTF16Char = uint16_t;

struct DRAWBOT_OpaqueDraw;
struct DRAWBOT_OpaqueSupplier;
struct DRAWBOT_OpaqueSurface;
struct DRAWBOT_OpaqueObject;
struct DRAWBOT_OpaquePen;
struct DRAWBOT_OpaqueBrush;
struct DRAWBOT_OpaqueFont;
struct DRAWBOT_OpaqueImage;
struct DRAWBOT_OpaquePath;

// Supplier and surface belong to the host. Pens, brushes, fonts, images and paths are objects: who
// asked the supplier for one releases it.
using DRAWBOT_DrawRef = DRAWBOT_OpaqueDraw*;
using DRAWBOT_SupplierRef = DRAWBOT_OpaqueSupplier*;
using DRAWBOT_SurfaceRef = DRAWBOT_OpaqueSurface*;
using DRAWBOT_ObjectRef = DRAWBOT_OpaqueObject*;
using DRAWBOT_PenRef = DRAWBOT_OpaquePen*;
using DRAWBOT_BrushRef = DRAWBOT_OpaqueBrush*;
using DRAWBOT_FontRef = DRAWBOT_OpaqueFont*;
using DRAWBOT_ImageRef = DRAWBOT_OpaqueImage*;
using DRAWBOT_PathRef = DRAWBOT_OpaquePath*;

// The letters are the channels in memory order.
enum DRAWBOT_PixelLayout : int32_t {
  kDRAWBOT_PixelLayout_24RGB = 0,
  kDRAWBOT_PixelLayout_24BGR = 1,
  kDRAWBOT_PixelLayout_32RGB = 2,  // A, R, G, B with A ignored
  kDRAWBOT_PixelLayout_32BGR = 3,  // B, G, R, A with A ignored
  kDRAWBOT_PixelLayout_32ARGB_Straight = 4,
  kDRAWBOT_PixelLayout_32ARGB_Premul = 5,
  kDRAWBOT_PixelLayout_32BGRA_Straight = 6,
  kDRAWBOT_PixelLayout_32BGRA_Premul = 7,
};

enum DRAWBOT_FillType : int32_t {
  kDRAWBOT_FillType_EvenOdd = 0,
  kDRAWBOT_FillType_Winding = 1,
};

enum DRAWBOT_TextAlignment : int32_t {
  kDRAWBOT_TextAlignment_Left = 0,
  kDRAWBOT_TextAlignment_Center = 1,
  kDRAWBOT_TextAlignment_Right = 2,
};

enum DRAWBOT_TextTruncation : int32_t {
  kDRAWBOT_TextTruncation_None = 0,
  kDRAWBOT_TextTruncation_End = 1,
  kDRAWBOT_TextTruncation_EndEllipsis = 2,
  kDRAWBOT_TextTruncation_PathEllipsis = 3,
};

enum DRAWBOT_InterpolationPolicy : int32_t {
  kDRAWBOT_InterpolationPolicy_None = 0,
  kDRAWBOT_InterpolationPolicy_Med = 1,
  kDRAWBOT_InterpolationPolicy_High = 2,
};

enum DRAWBOT_AntiAliasPolicy : int32_t {
  kDRAWBOT_AntiAliasPolicy_None = 0,
  kDRAWBOT_AntiAliasPolicy_Med = 1,
  kDRAWBOT_AntiAliasPolicy_High = 2,
};

// Channels from 0 to 1, straight alpha.
struct DRAWBOT_ColorRGBA {
  float red;
  float green;
  float blue;
  float alpha;
};

struct DRAWBOT_PointF32 {
  float x;
  float y;
};

struct DRAWBOT_RectF32 {
  float left;
  float top;
  float width;
  float height;
};

struct DRAWBOT_Rect32 {
  int left;
  int top;
  int width;
  int height;
};

struct DRAWBOT_MatrixF32 {
  float mat[3][3];
};

static_assert(offsetof(DRAWBOT_ColorRGBA, red) == 0);
static_assert(offsetof(DRAWBOT_ColorRGBA, green) == 4);
static_assert(offsetof(DRAWBOT_ColorRGBA, blue) == 8);
static_assert(offsetof(DRAWBOT_ColorRGBA, alpha) == 12);
static_assert(sizeof(DRAWBOT_ColorRGBA) == 16);

static_assert(sizeof(DRAWBOT_PointF32) == 8 && offsetof(DRAWBOT_PointF32, y) == 4);

static_assert(offsetof(DRAWBOT_RectF32, left) == 0);
static_assert(offsetof(DRAWBOT_RectF32, top) == 4);
static_assert(offsetof(DRAWBOT_RectF32, width) == 8);
static_assert(offsetof(DRAWBOT_RectF32, height) == 12);
static_assert(sizeof(DRAWBOT_RectF32) == 16);

static_assert(offsetof(DRAWBOT_Rect32, left) == 0);
static_assert(offsetof(DRAWBOT_Rect32, top) == 4);
static_assert(offsetof(DRAWBOT_Rect32, width) == 8);
static_assert(offsetof(DRAWBOT_Rect32, height) == 12);
static_assert(sizeof(DRAWBOT_Rect32) == 16);

static_assert(sizeof(DRAWBOT_MatrixF32) == 36);
