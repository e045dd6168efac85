// The parameter record: what an effect declares, and what the host hands back with each command.
#pragma once

#include "AE_EffectParamFlags.h"
#include "AE_EffectWorld.h"

struct PF_SliderDef {
  PF_ParamValue value;
  A_char value_str[32];
  A_char value_desc[32];
  A_long valid_min;
  A_long valid_max;
  A_long slider_min;
  A_long slider_max;
  A_long dephault;
};

static_assert(offsetof(PF_SliderDef, value) == 0);
static_assert(offsetof(PF_SliderDef, value_str) == 4);
static_assert(offsetof(PF_SliderDef, value_desc) == 36);
static_assert(offsetof(PF_SliderDef, valid_min) == 68);
static_assert(offsetof(PF_SliderDef, valid_max) == 72);
static_assert(offsetof(PF_SliderDef, slider_min) == 76);
static_assert(offsetof(PF_SliderDef, slider_max) == 80);
static_assert(offsetof(PF_SliderDef, dephault) == 84);
static_assert(sizeof(PF_SliderDef) == 88);

// precision  digits after the point that the host shows
struct PF_FixedSliderDef {
  PF_Fixed value;
  A_char value_str[32];
  A_char value_desc[32];
  PF_Fixed valid_min;
  PF_Fixed valid_max;
  PF_Fixed slider_min;
  PF_Fixed slider_max;
  PF_Fixed dephault;
  A_short precision;
  PF_ValueDisplayFlags display_flags;
};

static_assert(offsetof(PF_FixedSliderDef, value) == 0);
static_assert(offsetof(PF_FixedSliderDef, value_str) == 4);
static_assert(offsetof(PF_FixedSliderDef, value_desc) == 36);
static_assert(offsetof(PF_FixedSliderDef, valid_min) == 68);
static_assert(offsetof(PF_FixedSliderDef, valid_max) == 72);
static_assert(offsetof(PF_FixedSliderDef, slider_min) == 76);
static_assert(offsetof(PF_FixedSliderDef, slider_max) == 80);
static_assert(offsetof(PF_FixedSliderDef, dephault) == 84);
static_assert(offsetof(PF_FixedSliderDef, precision) == 88);
static_assert(offsetof(PF_FixedSliderDef, display_flags) == 90);
static_assert(sizeof(PF_FixedSliderDef) == 92);

struct PF_FloatSliderDef {
  PF_FpLong value;
  PF_FpLong phase;
  A_char value_desc[32];
  PF_FpShort valid_min;
  PF_FpShort valid_max;
  PF_FpShort slider_min;
  PF_FpShort slider_max;
  PF_FpShort dephault;
  A_short precision;
  PF_ValueDisplayFlags display_flags;
  PF_FSliderFlags fs_flags;
  PF_FpShort curve_tolerance;
  PF_Boolean useExponent;
  PF_FpShort exponent;
};

static_assert(offsetof(PF_FloatSliderDef, value) == 0);
static_assert(offsetof(PF_FloatSliderDef, phase) == 8);
static_assert(offsetof(PF_FloatSliderDef, value_desc) == 16);
static_assert(offsetof(PF_FloatSliderDef, valid_min) == 48);
static_assert(offsetof(PF_FloatSliderDef, valid_max) == 52);
static_assert(offsetof(PF_FloatSliderDef, slider_min) == 56);
static_assert(offsetof(PF_FloatSliderDef, slider_max) == 60);
static_assert(offsetof(PF_FloatSliderDef, dephault) == 64);
static_assert(offsetof(PF_FloatSliderDef, precision) == 68);
static_assert(offsetof(PF_FloatSliderDef, display_flags) == 70);
static_assert(offsetof(PF_FloatSliderDef, fs_flags) == 72);
static_assert(offsetof(PF_FloatSliderDef, curve_tolerance) == 76);
static_assert(offsetof(PF_FloatSliderDef, useExponent) == 80);
static_assert(offsetof(PF_FloatSliderDef, exponent) == 84);
static_assert(sizeof(PF_FloatSliderDef) == 88);

struct PF_AngleDef {
  PF_Fixed value;
  PF_Fixed dephault;
  PF_Fixed valid_min;
  PF_Fixed valid_max;
};

static_assert(offsetof(PF_AngleDef, value) == 0);
static_assert(offsetof(PF_AngleDef, dephault) == 4);
static_assert(offsetof(PF_AngleDef, valid_min) == 8);
static_assert(offsetof(PF_AngleDef, valid_max) == 12);
static_assert(sizeof(PF_AngleDef) == 16);

// u.nameptr  the text beside the box; the host copies it when the parameter is added
struct PF_CheckBoxDef {
  PF_ParamValue value;
  PF_Boolean dephault;
  A_char reserved;
  A_short reserved1;
  union {
    const A_char* nameptr;
  } u;
};

static_assert(offsetof(PF_CheckBoxDef, value) == 0);
static_assert(offsetof(PF_CheckBoxDef, dephault) == 4);
static_assert(offsetof(PF_CheckBoxDef, reserved) == 5);
static_assert(offsetof(PF_CheckBoxDef, reserved1) == 6);
static_assert(offsetof(PF_CheckBoxDef, u) == 8);
static_assert(sizeof(PF_CheckBoxDef) == 16);

struct PF_ColorDef {
  PF_Pixel value;
  PF_Pixel dephault;
};

static_assert(offsetof(PF_ColorDef, value) == 0);
static_assert(offsetof(PF_ColorDef, dephault) == 4);
static_assert(sizeof(PF_ColorDef) == 8);

// Values are pixels, defaults percentages of the layer's size.
struct PF_PointDef {
  PF_Fixed x_value;
  PF_Fixed y_value;
  A_char reserved[3];
  PF_Boolean restrict_bounds;
  PF_Fixed x_dephault;
  PF_Fixed y_dephault;
};

static_assert(offsetof(PF_PointDef, x_value) == 0);
static_assert(offsetof(PF_PointDef, y_value) == 4);
static_assert(offsetof(PF_PointDef, reserved) == 8);
static_assert(offsetof(PF_PointDef, restrict_bounds) == 11);
static_assert(offsetof(PF_PointDef, x_dephault) == 12);
static_assert(offsetof(PF_PointDef, y_dephault) == 16);
static_assert(sizeof(PF_PointDef) == 20);

// value, dephault  1 is the first choice
// u.namesptr       the choices, parted by '|'; the host copies it when the parameter is added
struct PF_PopupDef {
  PF_ParamValue value;
  A_short num_choices;
  A_short dephault;
  union {
    const A_char* namesptr;
  } u;
};

static_assert(offsetof(PF_PopupDef, value) == 0);
static_assert(offsetof(PF_PopupDef, num_choices) == 4);
static_assert(offsetof(PF_PopupDef, dephault) == 6);
static_assert(offsetof(PF_PopupDef, u) == 8);
static_assert(sizeof(PF_PopupDef) == 16);

struct PF_ArbitraryDef {
  A_short id;
  A_short pad;
  PF_Handle dephault;
  PF_Handle value;
  void* refconPV;
};

static_assert(offsetof(PF_ArbitraryDef, id) == 0);
static_assert(offsetof(PF_ArbitraryDef, pad) == 2);
static_assert(offsetof(PF_ArbitraryDef, dephault) == 8);
static_assert(offsetof(PF_ArbitraryDef, value) == 16);
static_assert(offsetof(PF_ArbitraryDef, refconPV) == 24);
static_assert(sizeof(PF_ArbitraryDef) == 32);

struct PF_PathDef {
  A_u_long path_id;
  A_long reserved0;
  A_long dephault;
};

static_assert(offsetof(PF_PathDef, path_id) == 0);
static_assert(offsetof(PF_PathDef, reserved0) == 4);
static_assert(offsetof(PF_PathDef, dephault) == 8);
static_assert(sizeof(PF_PathDef) == 12);

struct PF_ButtonDef {
  PF_ParamValue value;
  union {
    const A_char* namesptr;
  } u;
};

static_assert(offsetof(PF_ButtonDef, value) == 0);
static_assert(offsetof(PF_ButtonDef, u) == 8);
static_assert(sizeof(PF_ButtonDef) == 16);

struct PF_Point3DDef {
  PF_FpLong x_value;
  PF_FpLong y_value;
  PF_FpLong z_value;
  PF_FpLong x_dephault;
  PF_FpLong y_dephault;
  PF_FpLong z_dephault;
  A_u_char reserved[16];
};

static_assert(offsetof(PF_Point3DDef, x_value) == 0);
static_assert(offsetof(PF_Point3DDef, y_value) == 8);
static_assert(offsetof(PF_Point3DDef, z_value) == 16);
static_assert(offsetof(PF_Point3DDef, x_dephault) == 24);
static_assert(offsetof(PF_Point3DDef, y_dephault) == 32);
static_assert(offsetof(PF_Point3DDef, z_dephault) == 40);
static_assert(offsetof(PF_Point3DDef, reserved) == 48);
static_assert(sizeof(PF_Point3DDef) == 64);

// PF_ParamDef::param_type tells which member is set.
union PF_ParamDefUnion {
  PF_LayerDef ld;
  PF_SliderDef sd;
  PF_FixedSliderDef fd;
  PF_FloatSliderDef fs_d;
  PF_AngleDef ad;
  PF_CheckBoxDef bd;
  PF_ColorDef cd;
  PF_PointDef td;
  PF_PopupDef pd;
  PF_ArbitraryDef arb_d;
  PF_PathDef path_d;
  PF_ButtonDef button_d;
  PF_Point3DDef point3d_d;
};

static_assert(sizeof(PF_ParamDefUnion) == 120);

// uu.id            on the way to the host
// uu.change_flags  on the way back from a change that the effect makes itself
struct PF_ParamDef {
  union {
    A_long id;
    PF_ChangeFlags change_flags;
  } uu;
  PF_ParamUIFlags ui_flags;
  A_short ui_width;
  A_short ui_height;
  PF_ParamType param_type;
  A_char name[32];
  PF_ParamFlags flags;
  A_long unused;
  PF_ParamDefUnion u;
};

static_assert(offsetof(PF_ParamDef, uu) == 0);
static_assert(offsetof(PF_ParamDef, ui_flags) == 4);
static_assert(offsetof(PF_ParamDef, ui_width) == 8);
static_assert(offsetof(PF_ParamDef, ui_height) == 10);
static_assert(offsetof(PF_ParamDef, param_type) == 12);
static_assert(offsetof(PF_ParamDef, name) == 16);
static_assert(offsetof(PF_ParamDef, flags) == 48);
static_assert(offsetof(PF_ParamDef, unused) == 52);
static_assert(offsetof(PF_ParamDef, u) == 56);
static_assert(sizeof(PF_ParamDef) == 176);
