// The mathematics, text and colour functions that the host lends to an effect.
#pragma once

#include "AE_EffectTypes.h"

struct PF_ANSICallbacks {
  A_FpLong (*atan)(A_FpLong x);
  A_FpLong (*atan2)(A_FpLong y, A_FpLong x);
  A_FpLong (*ceil)(A_FpLong x);
  A_FpLong (*cos)(A_FpLong x);
  A_FpLong (*exp)(A_FpLong x);
  A_FpLong (*fabs)(A_FpLong x);
  A_FpLong (*floor)(A_FpLong x);
  A_FpLong (*fmod)(A_FpLong x, A_FpLong y);
  A_FpLong (*hypot)(A_FpLong x, A_FpLong y);
  A_FpLong (*log)(A_FpLong x);
  A_FpLong (*log10)(A_FpLong x);
  A_FpLong (*pow)(A_FpLong x, A_FpLong y);
  A_FpLong (*sin)(A_FpLong x);
  A_FpLong (*sqrt)(A_FpLong x);
  A_FpLong (*tan)(A_FpLong x);
  int (*sprintf)(A_char* text, const A_char* format, ...);
  A_char* (*strcpy)(A_char* to, const A_char* from);
  A_FpLong (*asin)(A_FpLong x);
  A_FpLong (*acos)(A_FpLong x);
  A_long ansi_procs[1];
};

static_assert(offsetof(PF_ANSICallbacks, atan) == 0);
static_assert(offsetof(PF_ANSICallbacks, atan2) == 8);
static_assert(offsetof(PF_ANSICallbacks, ceil) == 16);
static_assert(offsetof(PF_ANSICallbacks, cos) == 24);
static_assert(offsetof(PF_ANSICallbacks, exp) == 32);
static_assert(offsetof(PF_ANSICallbacks, fabs) == 40);
static_assert(offsetof(PF_ANSICallbacks, floor) == 48);
static_assert(offsetof(PF_ANSICallbacks, fmod) == 56);
static_assert(offsetof(PF_ANSICallbacks, hypot) == 64);
static_assert(offsetof(PF_ANSICallbacks, log) == 72);
static_assert(offsetof(PF_ANSICallbacks, log10) == 80);
static_assert(offsetof(PF_ANSICallbacks, pow) == 88);
static_assert(offsetof(PF_ANSICallbacks, sin) == 96);
static_assert(offsetof(PF_ANSICallbacks, sqrt) == 104);
static_assert(offsetof(PF_ANSICallbacks, tan) == 112);
static_assert(offsetof(PF_ANSICallbacks, sprintf) == 120);
static_assert(offsetof(PF_ANSICallbacks, strcpy) == 128);
static_assert(offsetof(PF_ANSICallbacks, asin) == 136);
static_assert(offsetof(PF_ANSICallbacks, acos) == 144);
static_assert(offsetof(PF_ANSICallbacks, ansi_procs) == 152);
static_assert(sizeof(PF_ANSICallbacks) == 160);

struct PF_ColorCallbacks {
  void* RGBtoHLS;
  void* HLStoRGB;
  void* RGBtoYIQ;
  void* YIQtoRGB;
  void* Luminance;
  void* Hue;
  void* Lightness;
  void* Saturation;
};

static_assert(offsetof(PF_ColorCallbacks, RGBtoHLS) == 0);
static_assert(offsetof(PF_ColorCallbacks, HLStoRGB) == 8);
static_assert(offsetof(PF_ColorCallbacks, RGBtoYIQ) == 16);
static_assert(offsetof(PF_ColorCallbacks, YIQtoRGB) == 24);
static_assert(offsetof(PF_ColorCallbacks, Luminance) == 32);
static_assert(offsetof(PF_ColorCallbacks, Hue) == 40);
static_assert(offsetof(PF_ColorCallbacks, Lightness) == 48);
static_assert(offsetof(PF_ColorCallbacks, Saturation) == 56);
static_assert(sizeof(PF_ColorCallbacks) == 64);
