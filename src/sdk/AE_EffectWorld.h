// A layer's pixels as the host hands them to an effect.
#pragma once

#include "AE_EffectTypes.h"

using PF_WorldFlags = A_long;
enum : PF_WorldFlags { PF_WorldFlag_DEEP = 1 << 0, PF_WorldFlag_WRITEABLE = 1 << 1 };

enum : A_long { PF_LayerDefault_MYSELF = -1, PF_LayerDefault_NONE = 0 };

// data      height rows of width pixels, from the top; the host's memory
// rowbytes  bytes from one row to the next, at least 4 * width at 8 bits a channel
// dephault  of a layer parameter: a PF_LayerDefault_ value
struct PF_LayerDef {
  void* reserved0;
  void* reserved1;
  PF_WorldFlags world_flags;
  PF_PixelPtr data;
  A_long rowbytes;
  A_long width;
  A_long height;
  PF_LRect extent_hint;
  void* platform_ref;
  A_long reserved_long1;
  void* reserved_long4;
  PF_RationalScale pix_aspect_ratio;
  void* reserved_long2;
  A_long origin_x;
  A_long origin_y;
  A_long reserved_long3;
  A_long dephault;
};
using PF_EffectWorld = PF_LayerDef;

static_assert(offsetof(PF_LayerDef, reserved0) == 0);
static_assert(offsetof(PF_LayerDef, reserved1) == 8);
static_assert(offsetof(PF_LayerDef, world_flags) == 16);
static_assert(offsetof(PF_LayerDef, data) == 24);
static_assert(offsetof(PF_LayerDef, rowbytes) == 32);
static_assert(offsetof(PF_LayerDef, width) == 36);
static_assert(offsetof(PF_LayerDef, height) == 40);
static_assert(offsetof(PF_LayerDef, extent_hint) == 44);
static_assert(offsetof(PF_LayerDef, platform_ref) == 64);
static_assert(offsetof(PF_LayerDef, reserved_long1) == 72);
static_assert(offsetof(PF_LayerDef, reserved_long4) == 80);
static_assert(offsetof(PF_LayerDef, pix_aspect_ratio) == 88);
static_assert(offsetof(PF_LayerDef, reserved_long2) == 96);
static_assert(offsetof(PF_LayerDef, origin_x) == 104);
static_assert(offsetof(PF_LayerDef, origin_y) == 108);
static_assert(offsetof(PF_LayerDef, reserved_long3) == 112);
static_assert(offsetof(PF_LayerDef, dephault) == 116);
static_assert(sizeof(PF_LayerDef) == 120);
