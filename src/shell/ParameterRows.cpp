// The parameter table.
#include "shell/ParameterRows.h"

#include <array>

#include "shell/ParameterTable.h"

namespace {

constexpr PF_ParamFlags kFixedOverTime = PF_ParamFlag_CANNOT_TIME_VARY;
constexpr PF_ParamFlags kTwirlyClosed = PF_ParamFlag_COLLAPSE_TWIRLY;
constexpr PF_ParamFlags kSupervised = PF_ParamFlag_SUPERVISE;
constexpr PF_ParamUIFlags kDrawnByEffect = PF_PUI_CONTROL | PF_PUI_DONT_ERASE_CONTROL;

constexpr PF_Fixed Fixed(A_long whole) {
  return whole * 65536;
}
constexpr PF_Fixed kHalf = 32768;

constexpr SliderRange FixedRange(A_long validMin, A_long validMax, A_long sliderMin,
                                 A_long sliderMax, PF_Fixed initial, A_short precision) {
  return {Fixed(validMin), Fixed(validMax), Fixed(sliderMin), Fixed(sliderMax), initial, precision};
}

constexpr ParameterRow GroupStart(A_long id, const char* name, PF_ParamFlags flags) {
  return {.id = id, .type = PF_Param_GROUP_START, .name = name, .flags = flags};
}

constexpr ParameterRow GroupEnd(A_long id) {
  return {.id = id, .type = PF_Param_GROUP_END};
}

constexpr ParameterRow FixSlider(A_long id, const char* name, SliderRange range,
                                 PF_ParamFlags flags) {
  return {.id = id, .type = PF_Param_FIX_SLIDER, .name = name, .flags = flags, .slider = range};
}

constexpr ParameterRow Popup(A_long id, const char* name, PopupChoices choices,
                             PF_ParamFlags flags = kFixedOverTime) {
  return {.id = id, .type = PF_Param_POPUP, .name = name, .flags = flags, .popup = choices};
}

constexpr ParameterRow Checkbox(A_long id, const char* name, bool checked,
                                PF_ParamFlags flags = kFixedOverTime) {
  return {.id = id, .type = PF_Param_CHECKBOX, .name = name, .flags = flags, .checked = checked};
}

constexpr ParameterRow Corner(A_long id, const char* name, A_long xPercent, A_long yPercent) {
  return {.id = id,
          .type = PF_Param_POINT,
          .name = name,
          .flags = kFixedOverTime,
          .point = {Fixed(xPercent), Fixed(yPercent)}};
}

constexpr ParameterRow Panel(A_long id, const char* name, A_short width, A_short height) {
  return {.id = id,
          .type = PF_Param_NO_DATA,
          .name = name,
          .uiFlags = kDrawnByEffect,
          .uiWidth = width,
          .uiHeight = height};
}

constexpr SliderRange kGainRange = FixedRange(0, 50, 0, 5, Fixed(1), 1);
constexpr SliderRange kOutputLimits = FixedRange(-10000, 10000, -100, 100, 0, 1);

constexpr std::array<ParameterRow, kFirstRange - 1> kRowsAbove = {{
    {.id = 64, .flags = PF_ParamFlag_SKIP_REVEAL_WHEN_UNHIDDEN, .uiFlags = PF_PUI_TOPIC},
    {.id = 1, .type = PF_Param_LAYER, .name = "Audio Layer"},
    Popup(2, "Channel", {"Left|Right|Mix", 3, kChannelMix}),
    GroupStart(3, "Spectrum Adjustment", kTwirlyClosed),
    FixSlider(4, "Scale", FixedRange(0, 10000, 0, 5, Fixed(1), 1), kFixedOverTime),
    FixSlider(5, "Q (smoothness)", {66, 65536, 66, 65536, 6554, 3}, kFixedOverTime),
    FixSlider(6, "Sub Base", kGainRange, kFixedOverTime),
    FixSlider(7, "Base", kGainRange, kFixedOverTime),
    FixSlider(8, "Mid", kGainRange, kFixedOverTime),
    FixSlider(9, "Treble", kGainRange, kFixedOverTime),
    GroupStart(56, "Color Map", 0),
    Panel(57, "Color Map", 306, 130),
    Popup(58, "Gradient", {"Horizontal|Vertical", 2, kGradientHorizontal}),
    Checkbox(59, "Quantize", false),
    {.id = 60,
     .type = PF_Param_SLIDER,
     .name = "Quantize Value",
     .flags = kFixedOverTime | kTwirlyClosed,
     .slider = {4, 50, 4, 50, 20}},
    FixSlider(
        61, "Fill Segment",
        {Fixed(20), Fixed(100), Fixed(20), Fixed(100), Fixed(80), 0, PF_ValueDisplayFlag_PERCENT},
        kFixedOverTime | kTwirlyClosed),
    GroupEnd(62),
    GroupEnd(10),
}};

struct RangeNames {
  const char* group;
  const char* corner1;
  const char* corner2;
  const char* output;
};

struct RangeCorners {
  A_long x1, y1, x2, y2;  // percent
};

constexpr std::array<ParameterRow, kRowsPerRange> RangeRows(A_long firstId, RangeNames names,
                                                            RangeCorners corners, bool active) {
  return {{
      GroupStart(firstId, names.group, kTwirlyClosed),
      Checkbox(firstId + kRangeActive, "Active", active),
      Popup(firstId + kRangeType, "Type",
            {"Average of Range|Peak of Range|On/Off Trigger", 3, kTypeAverage}),
      Corner(firstId + kRangeCorner1, names.corner1, corners.x1, corners.y1),
      Corner(firstId + kRangeCorner2, names.corner2, corners.x2, corners.y2),
      Popup(firstId + kRangeFalloff, "Falloff",
            {"Instant|Linear|Exponential|None (integrate)", 4, kFalloffInstant},
            kFixedOverTime | kSupervised),
      FixSlider(firstId + kRangeFalloffTime, "Falloff Time [sec]",
                FixedRange(0, 10, 0, 3, kHalf, 2), kFixedOverTime | kTwirlyClosed),
      Popup(firstId + kRangeOutputMinMax, "Output Min/Max",
            {" 0..100| 0..1| -1..+1| 0..360| -180..+180| Custom", 6, kOutput0To100}),
      FixSlider(firstId + kRangeMin, "Min", kOutputLimits, kFixedOverTime | kTwirlyClosed),
      FixSlider(firstId + kRangeMax, "Max", FixedRange(-10000, 10000, -100, 100, Fixed(100), 1),
                kFixedOverTime | kTwirlyClosed),
      FixSlider(firstId + kRangeOutput, names.output, FixedRange(-10000, 10000, 0, 100, 0, 1), 0),
      GroupEnd(firstId + kRangeGroupEnd),
  }};
}

constexpr std::array<std::array<ParameterRow, kRowsPerRange>, kRangeCount> kRangeRows = {
    RangeRows(11, {"Range 1", "Range 1 Corner 1", "Range 1 Corner 2", "Output 1"}, {10, 30, 30, 65},
              true),
    RangeRows(23, {"Range 2", "Range 2 Corner 1", "Range 2 Corner 2", "Output 2"}, {35, 60, 50, 90},
              false),
    RangeRows(35, {"Range 3", "Range 3 Corner 1", "Range 3 Corner 2", "Output 3"}, {55, 60, 70, 90},
              false),
};

constexpr std::array<ParameterRow, kParameterCount - kUseCompFps> kRowsBelow = {{
    Checkbox(47, "Use Comp fps", true, kFixedOverTime | kSupervised),
    FixSlider(48, "Keyframes per Second", FixedRange(1, 200, 1, 60, Fixed(10), 2),
              kFixedOverTime | kTwirlyClosed),
    Panel(49, "Commands", 300, 15),
    GroupStart(50, "Graph Elements", kTwirlyClosed),
    Checkbox(51, "Logarithmic Scale", true),
    Checkbox(52, "Spectrum", true),
    Checkbox(53, "Selection Ranges", true),
    Checkbox(54, "Output", true),
    Checkbox(63, "Colormap", true),
    GroupEnd(55),
}};

constexpr std::array<ParameterRow, kParameterCount - 1> JoinRows() {
  std::array<ParameterRow, kParameterCount - 1> rows{};
  size_t next = 0;
  for (const ParameterRow& row : kRowsAbove) rows[next++] = row;
  for (const auto& range : kRangeRows) {
    for (const ParameterRow& row : range) rows[next++] = row;
  }
  for (const ParameterRow& row : kRowsBelow) rows[next++] = row;
  return rows;
}

constexpr std::array<ParameterRow, kParameterCount - 1> kRows = JoinRows();

}  // namespace

std::span<const ParameterRow> ParameterRows() {
  return kRows;
}
