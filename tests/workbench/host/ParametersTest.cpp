// Catches a setting that lands on another parameter, or as another value than the user wrote.
#include <gtest/gtest.h>

#include <cstring>
#include <limits>

#include "workbench/Failure.h"
#include "workbench/host/ParameterText.h"

namespace {

constexpr A_long kFirst = std::numeric_limits<A_long>::min();
constexpr A_long kLast = std::numeric_limits<A_long>::max();

// `largest` of a popup is the number of choices that it claims to have.
PF_ParamDef Definition(PF_ParamType type, std::string_view name, A_long smallest = 0,
                       A_long largest = 0, A_long value = 0) {
  PF_ParamDef def{};
  def.param_type = type;
  name.copy(def.name, sizeof def.name);
  PF_ParamDefUnion& u = def.u;
  if (type == PF_Param_FIX_SLIDER) u.fd = {value, "", "", smallest, largest, 0, 0, 0, 0, 0};
  if (type == PF_Param_SLIDER) u.sd = {value, "", "", smallest, largest, 0, 0, 0};
  if (type == PF_Param_POPUP) u.pd = {value, static_cast<A_short>(largest), 1, {" one| two|1"}};
  return def;
}

// Where they stand in the list below.
constexpr size_t kWide = 1, kTop = 2, kGroup = 3, kInnerTop = 5, kChoice = 6, kLow = 8;
constexpr size_t kWhole = 10, kBox = 11, kSpot = 12, kSound = 13;

ParameterList SomeParameters() {
  ParameterList list;
  for (const PF_ParamDef& def :
       {Definition(PF_Param_FIX_SLIDER, "Wide", kFirst, kLast),
        Definition(PF_Param_FIX_SLIDER, "Top", 0, 65536), Definition(PF_Param_GROUP_START, "A"),
        Definition(PF_Param_GROUP_START, "B"), Definition(PF_Param_FIX_SLIDER, "Top"),
        Definition(PF_Param_POPUP, "Choice", 1, 3, 1), Definition(PF_Param_GROUP_END, ""),
        Definition(PF_Param_FIX_SLIDER, "Low"), Definition(PF_Param_GROUP_END, ""),
        Definition(PF_Param_SLIDER, "Whole", kFirst, kLast), Definition(PF_Param_CHECKBOX, "Box"),
        Definition(PF_Param_POINT, "Spot"), Definition(PF_Param_LAYER, "Sound")}) {
    EXPECT_EQ(list.Add(def), "") << def.name;
  }
  return list;
}

TEST(ParameterList, FindsByIndexWholePathOrATailThatOnlyOneHas) {
  ParameterList list = SomeParameters();
  const std::pair<const char*, size_t> cases[] = {
      {"1", kWide},         {"13", kSound},      {"Top", kTop}, {"A/B/Top", kInnerTop},
      {"B/Top", kInnerTop}, {"Choice", kChoice}, {"Low", kLow}, {"Sound", kSound}};
  for (const auto& [name, index] : cases) EXPECT_EQ(list.Find(name), index) << name;
  for (const char* name : {"", "0", "14", "-1", "18446744073709551617", "op", "/Top", "C/Top",
                           "a/b/top", "A", "Input"}) {
    EXPECT_THROW(list.Find(name), UsageFailure) << name;
  }
  list.Add(Definition(PF_Param_GROUP_START, "C"));
  list.Add(Definition(PF_Param_FIX_SLIDER, "Low"));
  EXPECT_THROW(list.Find("Low"), UsageFailure) << "two have this tail";
  EXPECT_EQ(list.Find("C/Low"), 15U);
}

TEST(ParameterList, RefusesADeclarationThatContradictsItself) {
  PF_ParamDef endless = Definition(PF_Param_CHECKBOX, "");
  std::memset(endless.name, 'x', sizeof endless.name);
  ParameterList list;
  for (const PF_ParamDef& def :
       {endless, Definition(PF_Param_GROUP_END, ""), Definition(PF_Param_SLIDER, "a", 1, 0, 1),
        Definition(PF_Param_SLIDER, "a", 0, 1, 2), Definition(PF_Param_FIX_SLIDER, "a", 0, 1, -1),
        Definition(PF_Param_POPUP, "a", 1, 4, 1), Definition(PF_Param_POPUP, "a", 1, -3, 1),
        Definition(PF_Param_POPUP, "a", 1, 3, 0), Definition(PF_Param_POPUP, "a", 1, 3, 4)}) {
    EXPECT_NE(list.Add(def), "") << def.param_type;
  }
  EXPECT_EQ(list.Count(), 1U);
}

class ParameterText : public testing::Test {
 protected:
  ParameterText() { comp.AddLayer("second", nullptr); }

  void Set(size_t index, const std::string& text) { SetFromText(instance, list, index, text); }
  std::string Text(size_t index) const { return ValueText(instance, list, index); }

  const ParameterList list = SomeParameters();
  Comp comp;
  EffectInstance instance{list, comp.AddLayer("first", nullptr)};
};

TEST_F(ParameterText, OfAFixedNumberReadsBackAsTheSameBits) {
  std::vector<int64_t> values = {kFirst, kFirst + 1, kLast - 1, kLast};
  for (int64_t value = -66000; value <= 66000; ++value) values.push_back(value);
  for (int64_t value = kFirst; value <= kLast; value += 65521) values.push_back(value);
  PF_Fixed& stored = instance.Value(kWide).u.fd.value;
  for (const int64_t value : values) {
    stored = static_cast<PF_Fixed>(value);
    const std::string text = Text(kWide);
    stored = ~stored;
    Set(kWide, text);
    ASSERT_EQ(stored, value) << text;
  }
}

TEST_F(ParameterText, OfEveryKindReadsBack) {
  const std::pair<size_t, const char*> cases[] = {
      {kWide, "-0.5"}, {kWhole, "-2147483648"}, {kWhole, "2147483647"}, {kBox, "on"},
      {kBox, "off"},   {kChoice, "two"},        {kChoice, "1"},         {kSpot, "-32768,0.1"},
      {kSound, "1"},   {kSound, "2"},           {kSound, "none"}};
  for (const auto& [index, text] : cases) {
    Set(index, text);
    EXPECT_EQ(Text(index), text) << index;
  }
  EXPECT_EQ(instance.Value(kChoice).u.pd.value, 3) << "a choice's text goes before its number";
  EXPECT_EQ(instance.Value(kSpot).u.td.y_value, 6554);
}

TEST_F(ParameterText, IsRefusedOutOfRangeOrOfAnotherKindAndChangesNothing) {
  const std::pair<size_t, std::vector<const char*>> cases[] = {
      {kTop, {"1.00001", "-0.00001", "", " ", "on", "nan", "inf", "1e999", "0x1", "1 ", "+-1"}},
      {kWide, {"32768", "-32769", "1e30"}},
      {kWhole, {"0.5", "2147483648", "-2147483649"}},
      {kBox, {"2", "yes", "ON", ""}},
      {kChoice, {"four", "0", "4", "-1", "", "1.5", "One"}},
      {kSpot, {"5", "5,", ",5", "5,x", "5,6,7", "5,40000", "nan,1"}},
      {kSound, {"3", "-1", "first", "1.5", ""}},
      {kGroup, {"1", ""}}};
  for (const auto& [index, texts] : cases) {
    const std::string before = Text(index);
    for (const char* text : texts) EXPECT_THROW(Set(index, text), UsageFailure) << index << text;
    EXPECT_EQ(Text(index), before) << index;
  }
}

}  // namespace
