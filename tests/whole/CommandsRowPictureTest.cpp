// Catches a row that is drawn wrongly or at the wrong time, and drawing that leaks or breaks down
// when the host refuses something.
#include <algorithm>
#include <limits>

#include "Instance.h"
#include "workbench/host/PanelRow.h"

namespace {

constexpr size_t kButtonState = 32;
constexpr size_t kTracking = 44;

constexpr PF_UnionableRect kFrame{0, 40, 301, 56};  // the middle is 150: 301 / 2 drops the half
constexpr PF_Point kInside{175, 8};
constexpr PF_Point kOutside{120, 8};

// Shades of the host's 0x6055, of which the low byte is dropped; the same in each channel.
constexpr PF_App_Color kPanelColor{0x6055, 0x6055, 0x6055};
constexpr int kBackground = 0x6000;
constexpr int kLight = 0xB000;
constexpr int kDark = 0;
constexpr int kFace = 0x4100;

struct Row {
  explicit Row(const PF_UnionableRect& frame = kFrame)
      : panel(instance.host, *instance.effect, 57, frame) {
    instance.host.Profile().interfaceColor = kPanelColor;
    instance.SetUpSequence();
  }

  std::vector<DrawCall> Calls(const std::string& name) const {
    std::vector<DrawCall> found;
    std::copy_if(panel.lastCalls.begin(), panel.lastCalls.end(), std::back_inserter(found),
                 [&name](const DrawCall& call) { return call.name == name; });
    return found;
  }

  Instance instance{0.1};
  PanelRow panel;
};

int Gray(const DrawCall& call) {
  EXPECT_EQ(call.color->red, call.color->green);
  EXPECT_EQ(call.color->red, call.color->blue);
  EXPECT_EQ(call.color->alpha, 1.0F);
  return static_cast<int>(std::lround(call.color->red * 65535.0F));
}

// "Apply 161 53 b400"
std::string TextOf(const DrawCall& call) {
  char line[64];
  std::snprintf(line, sizeof line, "%s %g %g %x",
                std::string(call.text.begin(), call.text.end()).c_str(), call.numbers.at(1),
                call.numbers.at(2), static_cast<unsigned>(Gray(call)));
  return line;
}

std::vector<std::string> Texts(const Row& row) {
  std::vector<std::string> texts;
  for (const DrawCall& call : row.Calls("DrawString")) texts.push_back(TextOf(call));
  return texts;
}

TEST(CommandsRowPicture, TextsTellTheButtonAndTheRanges) {
  using Lines = std::vector<std::string>;
  Row row;
  row.panel.Draw();
  ExpectClean(row.panel.lastResult);
  EXPECT_EQ(Texts(row), (Lines{"Apply 161 53 b400", "1 106 54 0", "2 119 55 b000", "2 118 54 0",
                               "3 131 55 b000", "3 130 54 0"}));
  row.instance.Set("Range 3/Active", "on");
  row.instance.Set("Range 1/Active", "off");
  row.panel.Click(kInside);
  EXPECT_EQ(row.panel.drawCount, 2) << "the press is shown at once";
  EXPECT_EQ(Texts(row), (Lines{"Apply 162 54 b400", "1 107 55 b000", "1 106 54 0", "2 119 55 b000",
                               "2 118 54 0", "3 130 54 0"}));
  row.panel.Drag(kOutside);
  EXPECT_EQ(Texts(row).front(), "Apply 161 53 b400");
  row.panel.Drag(kInside);
  EXPECT_EQ(Texts(row).front(), "Apply 162 54 b400");
  row.panel.Drag(kOutside);
  row.panel.Release(kOutside);
  EXPECT_TRUE(row.instance.Output(3).empty());
  row.instance.Set("Range 3/Active", "off");
  row.panel.Draw();
  EXPECT_EQ(row.instance.RecordWord(kButtonState), 2U);
  EXPECT_EQ(row.instance.RecordWord(kButtonState + 4), 2U);
  EXPECT_EQ(Texts(row).at(0), "Apply 162 54 b000");
  EXPECT_EQ(Texts(row).at(1), "Apply 161 53 0");
  row.panel.Click(kInside);
  EXPECT_FALSE(row.panel.IsTracking());
}

// Color and points of what one pen stroked: "b000 150 41 150 41 202 41".
std::string StrokeOf(const DrawCall& call) {
  char text[64];
  std::snprintf(text, sizeof text, "%x", static_cast<unsigned>(Gray(call)));
  std::string stroke = text;
  for (const PathStep& step : call.path) {
    std::snprintf(text, sizeof text, " %g %g", step.numbers[0], step.numbers[1]);
    stroke += text;
  }
  EXPECT_EQ(call.numbers, std::vector<double>{1.0}) << "the pen's width";
  return stroke;
}

TEST(CommandsRowPicture, BevelAndMarksAreStrokedOneColorAfterTheOther) {
  Row row;
  row.panel.Draw();
  const std::vector<DrawCall> fills = row.Calls("FillPath");
  ASSERT_EQ(fills.size(), 2U);
  EXPECT_EQ(Gray(fills[0]), kBackground);
  EXPECT_EQ(fills[0].path.at(0).numbers, (std::array<float, 6>{0, 40, 301, 16}));
  EXPECT_EQ(Gray(fills[1]), kFace);
  EXPECT_EQ(fills[1].path.at(0).numbers, (std::array<float, 6>{150, 41, 50, 13}));

  // A path begins where the pen stands: at the end of the line before, at first at 0, 0.
  const std::vector<std::string> expected = {"b000 0 0 150 41 202 41",
                                             "b000 202 41 150 42 201 42",
                                             "b000 201 42 150 41 150 55",
                                             "b000 150 55 151 41 151 55",
                                             "0 151 55 151 54 200 54",
                                             "0 200 54 152 53 200 53",
                                             "0 200 53 200 43 200 55",
                                             "0 200 55 201 42 201 55",
                                             "0 201 55 105 43 115 43 115 53 105 53 105 43",
                                             "6000 105 43 117 43 127 43 127 53 117 53 117 43",
                                             "6000 117 43 129 43 139 43 139 53 129 53 129 43"};
  const std::vector<DrawCall> strokes = row.Calls("StrokePath");
  ASSERT_EQ(strokes.size(), expected.size());
  for (size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(StrokeOf(strokes[i]), expected[i]) << i;

  const auto isLast = [&row](const char* name) { return row.panel.lastCalls.back().name == name; };
  EXPECT_TRUE(isLast("PopStateStack"));
  row.panel.Click(kInside);
  EXPECT_EQ(Gray(row.Calls("StrokePath").front()), kDark) << "pressed in";
  EXPECT_EQ(Gray(row.Calls("StrokePath").at(4)), kLight);
}

TEST(CommandsRowPicture, ABrightPanelKeepsItsShadesApart) {
  Row row;
  row.instance.host.Profile().interfaceColor = {0xC000, 0xC000, 0xC000};
  row.panel.Draw();
  EXPECT_EQ(Gray(row.Calls("FillPath").at(1)), 0xA100) << "the button's face";
  EXPECT_EQ(Gray(row.Calls("StrokePath").front()), 0xFFFF);
  EXPECT_EQ(Gray(row.Calls("StrokePath").at(4)), 0x4100);
}

TEST(CommandsRowPicture, ANoisyHostLosesNothingButThePicture) {
  for (const PF_Err error : {1234, 0}) {
    int endedByHost = 0;
    for (int64_t n = 1;; ++n) {
      Row row;
      row.panel.fault = {n, error};
      row.panel.Draw();
      const CommandResult& result = row.panel.lastResult;
      EXPECT_TRUE(result.broken.empty()) << n << ": " << result.broken.front();
      EXPECT_LE(row.instance.RecordWord(kButtonState), 2U) << n;
      EXPECT_EQ(row.instance.RecordWord(kTracking), 0U) << n;
      if (result.error == 1234 && result.ShowsMessage()) ++endedByHost;
      if (!result.faultStruck) break;
    }
    EXPECT_EQ(endedByHost, error != 0 ? 1 : 0) << "where the surface's state can't be kept";
  }
}

TEST(CommandsRowPicture, AMissingSuiteIsToldAndTheRowsStateIsKept) {
  for (const char* suite : {"DRAWBOT Draw Suite", "DRAWBOT Supplier Suite", "DRAWBOT Surface Suite",
                            "DRAWBOT Path Suite", "PF Effect Custom UI Suite", "PF AE App Suite"}) {
    Row row;
    row.instance.Set("Range 1/Active", "off");
    row.instance.host.Profile().missingSuites.insert(suite);
    row.panel.Draw();
    EXPECT_TRUE(row.panel.lastResult.ShowsMessage()) << suite;
    EXPECT_TRUE(row.panel.lastResult.broken.empty()) << suite;
    EXPECT_EQ(row.panel.lastResult.error, PF_Err_NONE) << suite;
    EXPECT_EQ(row.instance.RecordWord(kButtonState), 2U) << suite;
    const bool draws = std::string(suite) == "PF AE App Suite";
    EXPECT_EQ(row.panel.lastCalls.empty(), !draws) << suite;
    if (draws) {
      EXPECT_EQ(Gray(row.Calls("FillPath").at(0)), 0x8000) << "a middle grey";
    }
  }
}

TEST(CommandsRowPicture, AnyFrameAndAnyStoredStateCanBeDrawn) {
  using Limits = std::numeric_limits<A_long>;
  for (const PF_UnionableRect& frame :
       {PF_UnionableRect{0, 0, 0, 0},
        PF_UnionableRect{Limits::min(), Limits::max(), Limits::max(), Limits::min()}}) {
    Row row(frame);
    std::vector<uint8_t> record = row.instance.Record();
    std::fill(record.begin() + kButtonState, record.begin() + kTracking + 4, uint8_t{0xEE});
    MovableHandles& handles = row.instance.host.Handles();
    EXPECT_EQ(handles.Dispose(row.instance.effect->sequenceData).broken, "");
    row.instance.effect->sequenceData = handles.NewFrom(record);
    row.panel.Draw();
    ExpectClean(row.panel.lastResult);
    EXPECT_EQ(row.instance.RecordWord(kButtonState), 0xEEEEEEEEU) << "a press is being tracked";
    EXPECT_FALSE(row.Calls("DrawString").empty());
  }
}

}  // namespace
