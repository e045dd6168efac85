// Catches a parameter table that a stored project wouldn't fit, and controls greyed against the
// rules.
#include <array>
#include <set>
#include <string_view>

#include "Instance.h"

namespace {

// What a project relies on: the id of each parameter by its place.
constexpr std::array<int, 64> kIds = {
    64, 1,  2,  3,  4,  5,  6,  7,  8,  9,  56, 57, 58, 59, 60, 61, 62, 10, 11, 12, 13, 14,
    15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31, 32, 33, 34, 35, 36,
    37, 38, 39, 40, 41, 42, 43, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 54, 63, 55};

TEST(Parameters, KeepIdsAndNamesThatProjectsStore) {
  Instance instance;
  const ParameterList& list = instance.host.Parameters();
  ASSERT_EQ(list.Count(), 65U);
  for (size_t i = 1; i < 65; ++i) EXPECT_EQ(list.At(i).def.uu.id, kIds[i - 1]) << i;
  EXPECT_EQ(list.Find("Spectrum Adjustment/Color Map/Quantize Value"), 15U);
  EXPECT_EQ(list.Find("Range 3/Range 3 Corner 2"), 47U);
  EXPECT_EQ(list.Find("Graph Elements/Colormap"), 63U);
}

struct ValueCase {
  size_t index;
  const char* value;
  const char* accepts;
  PF_ParamFlags flags;
};

TEST(Parameters, StartWithTheirDefaultsAndLimits) {
  constexpr ValueCase kCases[] = {
      {2, "none", "a layer's number, none", 0},
      {3, "Mix", "Left, Right, Mix", 2},
      {5, "1", "0 to 10000", 2},
      {6, "0.1", "0.001 to 1", 2},
      {10, "1", "0 to 50", 2},
      {15, "20", "4 to 50", 34},
      {16, "80", "20 to 100", 34},
      {20, "on", "on, off", 2},
      {32, "off", "on, off", 2},
      {33, "Average of Range", "Average of Range, Peak of Range, On/Off Trigger", 2},
      {34, "672,648", "X,Y in pixels", 2},
      {47, "1344,972", "X,Y in pixels", 2},
      {24, "Instant", "Instant, Linear, Exponential, None (integrate)", 66},
      {25, "0.5", "0 to 10", 34},
      {26, "0..100", "0..100, 0..1, -1..+1, 0..360, -180..+180, Custom", 2},
      {27, "0", "-10000 to 10000", 34},
      {28, "100", "-10000 to 10000", 34},
      {29, "0", "-10000 to 10000", 0},
      {55, "on", "on, off", 66},
      {56, "10", "1 to 200", 34},
  };
  Instance instance;
  instance.effect->chosenLayers.clear();
  for (const ValueCase& c : kCases) {
    EXPECT_EQ(ValueText(*instance.effect, instance.host.Parameters(), c.index), c.value) << c.index;
    EXPECT_EQ(AcceptedText(instance.host.Parameters(), c.index), c.accepts) << c.index;
    EXPECT_EQ(instance.effect->Value(c.index).flags, c.flags) << c.index;
  }
  const PF_ParamDef& q = instance.effect->Value(6);
  EXPECT_EQ(q.u.fd.valid_min, 66);
  EXPECT_EQ(q.u.fd.value, 6554);
  const std::array<size_t, 3> kDrawn[] = {{12, 306, 130}, {57, 300, 15}};
  for (const auto& [index, width, height] : kDrawn) {
    const PF_ParamDef& row = instance.effect->Value(index);
    EXPECT_EQ(row.ui_flags, 130) << index;
    EXPECT_EQ(static_cast<size_t>(row.ui_width), width) << index;
    EXPECT_EQ(static_cast<size_t>(row.ui_height), height) << index;
  }
}

struct SliderCase {
  size_t index;
  double first, last;
  int digits;
};

TEST(Parameters, SlidersSpanWhatTheUserMostlyWants) {
  constexpr SliderCase kCases[] = {
      {5, 0, 5, 1},  {6, 66.0 / 65536, 1, 3}, {7, 0, 5, 1},       {10, 0, 5, 1},   {16, 20, 100, 0},
      {25, 0, 3, 2}, {39, -100, 100, 1},      {40, -100, 100, 1}, {53, 0, 100, 1}, {56, 1, 60, 2},
  };
  Instance instance(0.1);
  for (const SliderCase& c : kCases) {
    const PF_FixedSliderDef& slider = instance.effect->Value(c.index).u.fd;
    EXPECT_EQ(slider.slider_min, c.first * 65536) << c.index;
    EXPECT_EQ(slider.slider_max, c.last * 65536) << c.index;
    EXPECT_EQ(slider.precision, c.digits) << c.index;
    EXPECT_EQ(slider.display_flags == PF_ValueDisplayFlag_PERCENT, c.index == 16) << c.index;
  }
  const PF_SliderDef& segments = instance.effect->Value(15).u.sd;
  EXPECT_EQ(std::pair(segments.slider_min, segments.slider_max), std::pair(4, 50));
}

using Greyed = std::set<size_t>;

Greyed GreyedBy(Instance& instance) {
  ExpectClean(instance.Send(PF_Cmd_UPDATE_PARAMS_UI));
  Greyed greyed;
  for (const auto& [index, flags] : instance.effect->uiFlags) {
    if ((flags & PF_PUI_DISABLED) != 0) greyed.insert(index);
  }
  return greyed;
}

const Greyed kAllOfRange2 = {33, 34, 35, 36, 37, 38, 39, 40};
const Greyed kAllOfRange3 = {45, 46, 47, 48, 49, 50, 51, 52};

Greyed Joined(Greyed greyed, const Greyed& more) {
  greyed.insert(more.begin(), more.end());
  return greyed;
}

TEST(Parameters, GreyInAndOutWithWhatTheyDependOn) {
  Instance instance;
  instance.SetUpSequence();
  const Greyed inactive = Joined(kAllOfRange2, kAllOfRange3);
  EXPECT_EQ(GreyedBy(instance), Joined({25, 27, 28, 56, 15, 16}, inactive)) << "as new";

  instance.Set("Range 1/Falloff", "Linear");
  instance.Set("Range 1/Output Min/Max", "Custom");
  instance.Set("Quantize", "on");
  instance.Set("Use Comp fps", "off");
  EXPECT_EQ(GreyedBy(instance), inactive) << "all that range 1 has in use";

  instance.Set("Range 1/Falloff", "None (integrate)");
  instance.Set("Range 2/Active", "on");
  EXPECT_EQ(GreyedBy(instance), Joined({25, 37, 39, 40}, kAllOfRange3)) << "integrating";

  instance.Set("Range 1/Active", "off");
  EXPECT_EQ(GreyedBy(instance), Joined({21, 22, 23, 24, 25, 26, 27, 28, 37, 39, 40}, kAllOfRange3))
      << "range 1 off";
}

TEST(Parameters, EveryChangeDoesTheSameWork) {
  for (const PF_Cmd cmd : {PF_Cmd_USER_CHANGED_PARAM, PF_Cmd_UPDATE_PARAMS_UI}) {
    Instance instance;
    instance.SetUpSequence();
    instance.Set("Range 1/Active", "off");
    const CommandResult result = instance.Send(cmd);
    ExpectClean(result);
    EXPECT_EQ(result.outFlags, PF_OutFlag_REFRESH_UI);
    EXPECT_EQ(instance.RecordWord(32), 2U) << "the Apply button is disabled";
    EXPECT_EQ(instance.RecordWord(36), 2U);
  }
}

TEST(Parameters, WithoutTheSuiteTheButtonIsStillUpdatedAndTheUserTold) {
  Instance instance(1.0);
  instance.SetUpSequence();
  instance.host.Profile().missingSuites.insert("PF Param Utils Suite");
  instance.Set("Range 1/Active", "off");
  const CommandResult result = instance.Send(PF_Cmd_UPDATE_PARAMS_UI);
  EXPECT_EQ(result.error, PF_Err_NONE);
  EXPECT_EQ(result.outFlags, PF_OutFlag_DISPLAY_ERROR_MESSAGE);
  EXPECT_EQ(result.message, "Failed to acquire suite.");
  EXPECT_EQ(instance.RecordWord(32), 2U);
}

}  // namespace
