// The small types of the effect interface: scalars, points, rectangles, pixels, qualities.
#pragma once

#include "A.h"

using PF_Boolean = uint8_t;
using PF_FpLong = double;
using PF_FpShort = float;
using PF_Fixed = int32_t;    // 16.16
using PF_UFixed = uint32_t;  // 16.16
using PF_ParamIndex = A_long;
using PF_ParamValue = A_long;
using PF_PixelFormat = A_long;

// A movable block of the host's memory: lock it before use, and keep no pointer past the unlock.
using PF_Handle = A_char**;

// Stands for the effect instance in calls to the host.
struct PF_ProgressInfo;
using PF_ProgPtr = PF_ProgressInfo*;

struct PF_OpaqueLayerAudio;
using PF_LayerAudio = PF_OpaqueLayerAudio*;
using PF_SndSamplePtr = void*;

using PF_InFlags = A_long;

using PF_Quality = A_long;
enum : PF_Quality { PF_Quality_LO = 0, PF_Quality_HI = 1 };

using PF_Field = A_long;
enum : PF_Field { PF_Field_FRAME = 0, PF_Field_UPPER = 1, PF_Field_LOWER = 2 };

struct PF_RationalScale {
  A_long num;
  A_u_long den;
};

struct PF_Point {
  A_long h;
  A_long v;
};

struct PF_FixedPoint {
  PF_Fixed x;
  PF_Fixed y;
};

// Right and bottom are exclusive.
struct PF_LRect {
  A_long left;
  A_long top;
  A_long right;
  A_long bottom;
};
using PF_Rect = PF_LRect;
using PF_UnionableRect = PF_LRect;

// 8 bits a channel, straight alpha.
struct PF_Pixel {
  A_u_char alpha;
  A_u_char red;
  A_u_char green;
  A_u_char blue;
};
using PF_Pixel8 = PF_Pixel;
using PF_PixelPtr = PF_Pixel*;

// White is 32768.
struct PF_Pixel16 {
  A_u_short alpha;
  A_u_short red;
  A_u_short green;
  A_u_short blue;
};

struct PF_PixelFloat {
  PF_FpShort alpha;
  PF_FpShort red;
  PF_FpShort green;
  PF_FpShort blue;
};

// A colour of the host's own window, 16 bits a channel.
struct PF_App_Color {
  A_u_short red;
  A_u_short green;
  A_u_short blue;
};

struct PF_FloatMatrix {
  A_FpLong mat[3][3];
};

struct PF_SpecVersion {
  A_short major;
  A_short minor;
};

// Of the effect interface that these headers declare.
constexpr A_u_long PF_PLUG_IN_VERSION = 13;
constexpr A_u_long PF_PLUG_IN_SUBVERS = 25;

static_assert(sizeof(PF_RationalScale) == 8 && offsetof(PF_RationalScale, den) == 4);
static_assert(sizeof(PF_Point) == 8 && offsetof(PF_Point, h) == 0 && offsetof(PF_Point, v) == 4);
static_assert(sizeof(PF_FixedPoint) == 8 && offsetof(PF_FixedPoint, y) == 4);

static_assert(offsetof(PF_LRect, left) == 0);
static_assert(offsetof(PF_LRect, top) == 4);
static_assert(offsetof(PF_LRect, right) == 8);
static_assert(offsetof(PF_LRect, bottom) == 12);
static_assert(sizeof(PF_LRect) == 16);

static_assert(offsetof(PF_Pixel, alpha) == 0);
static_assert(offsetof(PF_Pixel, red) == 1);
static_assert(offsetof(PF_Pixel, green) == 2);
static_assert(offsetof(PF_Pixel, blue) == 3);
static_assert(sizeof(PF_Pixel) == 4);

static_assert(offsetof(PF_Pixel16, red) == 2);
static_assert(offsetof(PF_Pixel16, green) == 4);
static_assert(offsetof(PF_Pixel16, blue) == 6);
static_assert(sizeof(PF_Pixel16) == 8);

static_assert(offsetof(PF_PixelFloat, red) == 4);
static_assert(offsetof(PF_PixelFloat, green) == 8);
static_assert(offsetof(PF_PixelFloat, blue) == 12);
static_assert(sizeof(PF_PixelFloat) == 16);

static_assert(offsetof(PF_App_Color, red) == 0);
static_assert(offsetof(PF_App_Color, green) == 2);
static_assert(offsetof(PF_App_Color, blue) == 4);
static_assert(sizeof(PF_App_Color) == 6);

static_assert(sizeof(PF_FloatMatrix) == 72);
static_assert(sizeof(PF_SpecVersion) == 4 && offsetof(PF_SpecVersion, minor) == 2);
