// The effect's 64 parameters of its own, as data.
#pragma once

#include <span>

#include "AE_Effect.h"

// Limits and first value of a slider: 16.16 for PF_Param_FIX_SLIDER, whole for PF_Param_SLIDER.
struct SliderRange {
  A_long validMin = 0;
  A_long validMax = 0;
  A_long sliderMin = 0;
  A_long sliderMax = 0;
  A_long initial = 0;
  A_short precision = 0;  // digits behind the point
  A_short displayFlags = 0;
};

struct PopupChoices {
  const char* names = nullptr;  // separated by '|'
  A_short count = 0;
  A_short initial = 0;  // 1-based
};

// 16.16 percent of the layer's width and height.
struct PointPercent {
  PF_Fixed x = 0;
  PF_Fixed y = 0;
};

struct ParameterRow {
  A_long id = 0;
  PF_ParamType type = PF_Param_NO_DATA;
  const char* name = "";
  PF_ParamFlags flags = 0;
  PF_ParamUIFlags uiFlags = 0;
  A_short uiWidth = 0;  // logical pixels, of a row that the effect draws itself
  A_short uiHeight = 0;
  SliderRange slider = {};
  PopupChoices popup = {};
  PointPercent point = {};
  bool checked = false;
};

// Rows 1 to 64 of params[], in order; row 0 is the host's input layer.
std::span<const ParameterRow> ParameterRows();
