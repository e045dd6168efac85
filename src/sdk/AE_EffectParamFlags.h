// The kinds of parameters, and how each may change, look and be shown.
#pragma once

#include "AE_EffectTypes.h"

using PF_ParamType = A_long;
enum : PF_ParamType {
  PF_Param_RESERVED = -1,
  PF_Param_LAYER = 0,
  PF_Param_SLIDER = 1,
  PF_Param_FIX_SLIDER = 2,
  PF_Param_ANGLE = 3,
  PF_Param_CHECKBOX = 4,
  PF_Param_COLOR = 5,
  PF_Param_POINT = 6,
  PF_Param_POPUP = 7,
  PF_Param_CUSTOM = 8,
  PF_Param_NO_DATA = 9,
  PF_Param_FLOAT_SLIDER = 10,
  PF_Param_ARBITRARY_DATA = 11,
  PF_Param_PATH = 12,
  PF_Param_GROUP_START = 13,
  PF_Param_GROUP_END = 14,
  PF_Param_BUTTON = 15,
  PF_Param_RESERVED2 = 16,
  PF_Param_RESERVED3 = 17,
  PF_Param_POINT_3D = 18,
};

using PF_ParamFlags = A_long;
enum : PF_ParamFlags {
  PF_ParamFlag_RESERVED1 = 1 << 0,
  PF_ParamFlag_CANNOT_TIME_VARY = 1 << 1,
  PF_ParamFlag_CANNOT_INTERP = 1 << 2,
  PF_ParamFlag_RESERVED2 = 1 << 3,
  PF_ParamFlag_RESERVED3 = 1 << 4,
  PF_ParamFlag_COLLAPSE_TWIRLY = 1 << 5,
  PF_ParamFlag_START_COLLAPSED = PF_ParamFlag_COLLAPSE_TWIRLY,
  PF_ParamFlag_SUPERVISE = 1 << 6,
  PF_ParamFlag_USE_VALUE_FOR_OLD_PROJECTS = 1 << 7,
  PF_ParamFlag_LAYER_PARAM_IS_TRACKMATTE = PF_ParamFlag_USE_VALUE_FOR_OLD_PROJECTS,
  PF_ParamFlag_EXCLUDE_FROM_HAVE_INPUTS_CHANGED = 1 << 8,
  PF_ParamFlag_SKIP_REVEAL_WHEN_UNHIDDEN = 1 << 9,
};

using PF_ParamUIFlags = A_long;
enum : PF_ParamUIFlags {
  PF_PUI_NONE = 0,
  PF_PUI_TOPIC = 1 << 0,
  PF_PUI_CONTROL = 1 << 1,
  PF_PUI_STD_CONTROL_ONLY = 1 << 2,
  PF_PUI_NO_ECW_UI = 1 << 3,
  PF_PUI_ECW_SEPARATOR = 1 << 4,
  PF_PUI_DISABLED = 1 << 5,
  PF_PUI_DONT_ERASE_TOPIC = 1 << 6,
  PF_PUI_DONT_ERASE_CONTROL = 1 << 7,
  PF_PUI_RADIO_BUTTON = 1 << 8,
  PF_PUI_INVISIBLE = 1 << 9,
};

using PF_ValueDisplayFlags = A_short;
enum : PF_ValueDisplayFlags {
  PF_ValueDisplayFlag_NONE = 0,
  PF_ValueDisplayFlag_PERCENT = 1 << 0,
  PF_ValueDisplayFlag_PIXEL = 1 << 1,
  PF_ValueDisplayFlag_RESERVED1 = 1 << 2,
  PF_ValueDisplayFlag_REVERSE = 1 << 3,
};

using PF_FSliderFlags = A_u_long;

using PF_ChangeFlags = A_long;
enum : PF_ChangeFlags { PF_ChangeFlag_NONE = 0, PF_ChangeFlag_CHANGED_VALUE = 1 };
