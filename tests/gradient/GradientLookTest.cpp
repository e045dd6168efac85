// Catches a strip or a menu that shows other colours than the map has, or shows them elsewhere, and
// controls that don't show their state.
#include <gtest/gtest.h>

#include <limits>

#include "drawing/Labeler.h"
#include "drawing/SharedPainter.h"
#include "gradient/GradientStops.h"
#include "gradient/PanelIcon.h"
#include "gradient/RampColor.h"
#include "tests/gradient/CurveEditor.h"
#include "tests/gradient/Editor.h"

namespace {

// Logical pixels of a picture at scale 2.
ColorBGRA At(const ImageBuffer& picture, int32_t x, int32_t y) {
  const int32_t column = 2 * x;
  return picture.Row(2 * y)[column];
}

// A picture of the panel, drawn plainly.
struct PlainPanel : ImageBuffer {
  PlainPanel() {
    Allocate(612, 260, false);
    SetScale(2.0F);
    SetScaleAware(true);
    FillRect({0, 0, 306, 130}, Gray(36), 256, nullptr);
  }

  // Logical pixels.
  bool EqualsIn(const Rect& area, const ImageBuffer& picture) const {
    const Rect part = ToPhysical(area);
    for (int32_t y = part.top; y < part.bottom; ++y) {
      const ColorBGRA* const row = picture.Row(y);
      if (!std::equal(row + part.left, row + part.right, Row(y) + part.left)) return false;
    }
    return true;
  }
};

Rect MovedToStrip(const Rect& rect) {
  const Point origin = Editor::OnStrip(0, 0);
  return {rect.left + origin.x, rect.top + origin.y, rect.right + origin.x, rect.bottom + origin.y};
}

// The strip drawn plainly: fills, and a line upward for each entry of the ramp.
void DrawPlainly(const GradientRecord& map, bool enabled, ImageBuffer& picture) {
  const int32_t opacity = enabled ? 255 : 30;
  const Rect strip = MovedToStrip({0, 0, 209, 30});
  const auto draw = [&](ColorBGRA color, int32_t shown, double lineWidth) {
    SharedRasterizer().DrawPath(SharedPath(), picture, color, shown, false, &strip, nullptr,
                                lineWidth);
  };
  picture.FillRect(MovedToStrip({2, 0, 207, 18}), Gray(0), opacity, nullptr);
  for (int32_t i = 0; i < 201; ++i) {
    const double x = strip.left + 4.0 + i;
    SharedPath().Clear();
    SharedPath().MoveTo({x, strip.top + 16.0});
    SharedPath().LineTo({x, strip.top + 2.0});
    SharedPath().ClosePath();
    draw(PixelOf(map.colorMapRed[i], map.colorMapGreen[i], map.colorMapBlue[i]), opacity, 1.0);
  }
  for (int32_t i = 0; i < 50 && map.stopPosition[i] != 255; ++i) {
    const int32_t x = 4 + std::min<int32_t>(map.stopPosition[i], 200);
    const Rect box = MovedToStrip({x - 4, 23, x + 4, 31});
    const PathPoint tip = {box.left + 4.0, box.top - 3.0};
    SharedPath().SetRoundTriangle(tip, {tip.x - 3, tip.y + 2}, {tip.x + 3, tip.y + 2}, 0.0);
    draw(Gray(148), opacity, 0);
    SharedPath().SetRoundRect(box, 0, true, true, true, true);
    draw(PixelOf(map.stopRed[i], map.stopGreen[i], map.stopBlue[i]), opacity, 0);
    draw(Gray(59), opacity, 1.0);
  }
  SharedPath().SetRoundRect(MovedToStrip({2, 0, 207, 18}), 1.0, true, true, true, true);
  draw(Gray(59), enabled ? 256 : 150, 1.0);
}

constexpr Rect kPresetsBar = {230, 30, 304, 48};

void DrawPresetsBar(bool enabled, ImageBuffer& picture) {
  const ColorBGRA color = Gray(enabled ? 197 : 64);
  picture.FillRect(kPresetsBar, Gray(23), enabled ? 255 : 60, nullptr);
  SharedLabeler().SetFont(&FontSmall());
  SharedLabeler().DrawStringInRect(picture, "PRESETS", {238, 30, 304, 48}, TextAlignment::kLeft,
                                   {color, {}, true, nullptr, 256, 0});
  SharedPath().SetRoundTriangle({286, 37}, {296, 37}, {291, 44}, 1.0);
  SharedRasterizer().DrawPath(SharedPath(), picture, color, 256, false, nullptr, nullptr, 0);
}

TEST(GradientLook, TheStripAndTheBarEqualOnesThatAreDrawnLineByLine) {
  const float infinity = std::numeric_limits<float>::infinity();
  const std::vector<std::vector<Stop>> maps = {
      {{0, 1, 0, 0.3F}, {77, 0.1F, 1, 0}, {200, 0, 0.6F, 1}},
      {{30, -1, 3, -infinity},
       {31, infinity, 0, std::numeric_limits<float>::quiet_NaN()},
       {240, 0, 1, 1}},
      {}};
  for (const std::vector<Stop>& stops : maps) {
    for (const bool enabled : {true, false}) {
      Editor editor({StoredMap(stops)});
      editor.panel->SetEnabled(enabled);
      ImageBuffer picture;
      editor.PaintAlone(picture);
      PlainPanel plain;
      DrawPlainly((*editor.map), enabled, plain);
      EXPECT_TRUE(plain.EqualsIn(MovedToStrip({0, 0, 209, 30}), picture))
          << stops.size() << ' ' << enabled;
      DrawPresetsBar(enabled, plain);
      EXPECT_TRUE(plain.EqualsIn(kPresetsBar, picture)) << enabled;
    }
  }
}

TEST(GradientLook, UndoRedoAndResetShowTheIconsOfTheirState) {
  struct Place {
    std::string name;
    Point button, icon;
  };
  const Place places[] = {{"Undo", Editor::kUndo, {238, 7}},
                          {"Redo", Editor::kRedo, {258, 7}},
                          {"Reset", Editor::kReset, {281, 6}}};
  StoredMap map(uint8_t{0});
  InitRecord(map.Record());
  constexpr const char* kLooks[] = {"_Disabled.png", "_Normal.png", "_Over.png"};
  for (int32_t look = 0; look < 3; ++look) {
    for (const auto& [name, button, icon] : places) {
      Editor editor({map});
      if (look != 0) {
        editor.Click(Editor::kFlip);
        editor.global.redoSnapshot = new GradientSnapshot;
      }
      editor.Over(look == 2 ? button : Editor::kFreePlace);
      ImageBuffer picture;
      editor.PaintAlone(picture);
      PlainPanel plain;
      LoadPanelIcon((name + kLooks[look]).c_str())
          ->BlendTo(plain, {0, 0, 16, 16}, icon.x, icon.y, look == 0 ? 50 : 256, nullptr, false);
      const Rect around = {button.x - 8, button.y - 8, button.x + 8, button.y + 8};
      EXPECT_TRUE(plain.EqualsIn(around, picture)) << name << kLooks[look];
    }
  }
}

TEST(GradientLook, AMenuRowShowsItsPresetAndIsLitUnderThePointer) {
  Editor editor({StoredMap(std::vector<Stop>{})});
  editor.Click(Editor::kPresets);
  editor.Over(Editor::RowOf(2));
  ImageBuffer picture;
  editor.PaintAlone(picture);
  const GradientPresetSource source;
  for (int32_t row = 0; row < 6; ++row) {
    const GradientView preset = source.GetPreset(row);
    const int32_t top = 6 + row * 20;
    for (int32_t column = 1; column < 49; ++column) {
      const int32_t entry = column * 201 / 50;
      const ColorBGRA expected = PixelOf(preset.colorMapRed[entry], preset.colorMapGreen[entry],
                                         preset.colorMapBlue[entry]);
      // A colour at opacity 255 falls short of it by two at the most.
      const ColorBGRA shown = At(picture, 242 + column, top + 8);
      EXPECT_NEAR(shown.red, expected.red, 2) << row << ' ' << column;
      EXPECT_NEAR(shown.green, expected.green, 2) << row << ' ' << column;
      EXPECT_NEAR(shown.blue, expected.blue, 2) << row << ' ' << column;
    }
    EXPECT_EQ(At(picture, 260, top).red > 200, row == 2) << row;
  }
}

// The sanitizer sees sums that overflow.
TEST(EditorLook, OneThatStandsFarAwayIsNotSeen) {
  constexpr int32_t kFar = std::numeric_limits<int32_t>::max();
  Editor map({StoredMap(std::vector<Stop>{{0, 1, 0, 0}, {200, 1, 0, 0}})});
  CurveEditor curve({0, 100, 200}, true);
  const auto expectUnseen = [](auto& editor) {
    ImageBuffer picture;
    picture.Allocate(20, 20, false);
    for (const Point& place : {Point{kFar, kFar}, Point{-kFar, -kFar}, Point{0, kFar},
                               Point{kFar, 0}, Point{-kFar, 0}, Point{0, -kFar}}) {
      editor.Paint(picture, place);
    }
    for (int32_t y = 0; y < 20; ++y) {
      for (int32_t x = 0; x < 20; ++x) EXPECT_EQ(picture.Row(y)[x], ColorBGRA(0U));
    }
  };
  expectUnseen(map);
  expectUnseen(curve);
  map.Click(Editor::kPresets);
  curve.Click(CurveEditor::kCurveMode);
  curve.Click(CurveEditor::kPresets);
  expectUnseen(map);
  expectUnseen(curve);
}

}  // namespace
