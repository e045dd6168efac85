// A panel with rows of stock controls, each once in every look that the mouse and focus give it.
#include "tools/specimens/StockPanel.h"

#include <array>

#include "toolkit/CustomControl.h"
#include "toolkit/ThemeColors.h"

namespace {

constexpr int32_t kFirstColumn = 84;
constexpr int32_t kColumnStep = 111;
constexpr int32_t kRowGap = 9;
constexpr int32_t kSquare = 10;
constexpr std::array<NamedLook, 5> kLooks = {{{Look::kNormal, "Normal"},
                                              {Look::kOver, "Over"},
                                              {Look::kPressed, "Pressed"},
                                              {Look::kFocused, "Focused"},
                                              {Look::kDisabled, "Disabled"}}};

}  // namespace

void ChequeredClient::PaintControl(CustomControl& control, ImageBuffer& buffer,
                                   const PaintArea& area) {
  const Rect& place = area.bounds;
  const int32_t strength = control.IsEnabled() ? 256 : 100;
  for (int32_t y = place.top; y < place.bottom; y += kSquare) {
    for (int32_t x = place.left; x < place.right; x += kSquare) {
      const bool isOdd = ((x - place.left + y - place.top) / kSquare) % 2 != 0;
      ColorBGRA color = isOdd ? ThemeColors::Gray76 : ThemeColors::Gray51;
      if (isOdd && control.IsMouseOver()) color = ThemeColors::Gray128;
      if (isOdd && control.IsPressed()) color = ThemeColors::Orange;
      const Rect square = {x, y, x + kSquare, y + kSquare};
      const Rect clip = Intersection(area.clip, place);
      buffer.FillRect(square, color, strength, &clip);
    }
  }
  if (control.ShowsFocus()) {
    buffer.DrawFrame(place, ThemeColors::White, 1, 256, &area.clip);
  }
}

StockPanel::StockPanel() {
  AddColumnCaptions({kLooks, kFirstColumn, kColumnStep}, 8);
}

void StockPanel::AddControls(const char* caption, const Point& size,
                             const MakeControl& makeControl) {
  AddCaption({6, nextTop + 3}, caption);
  const Point pointer = {size.x * 3 / 4, size.y / 2};
  AddRow({kLooks, kFirstColumn, kColumnStep}, {nextTop, size, pointer, pointer},
         [&](const Rect& place, Look) {
           ControlPane* const control = makeControl(*this, place);
           AddChild(control, true);
           return control;
         });
  nextTop += size.y + kRowGap;
}
