// A panel with rows of stock controls, each once in every look that the mouse and focus give it.
#include "tools/specimens/StockPanel.h"

#include <array>
#include <cstddef>

#include "drawing/Fonts.h"
#include "drawing/Labeler.h"
#include "toolkit/CustomControl.h"
#include "toolkit/ThemeColors.h"

namespace {

constexpr int32_t kPanelId = 2;
constexpr int32_t kFirstColumn = 84;
constexpr int32_t kColumnStep = 111;
constexpr int32_t kRowGap = 9;
constexpr int32_t kSquare = 10;
constexpr Point kNowhere = {0, 0};
constexpr std::array<const char*, 5> kLookNames = {"Normal", "Over", "Pressed", "Focused",
                                                   "Disabled"};

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

StockPanel::StockPanel() : CustomPanel({0, 0, kWidth, kHeight}, kPanelId) {
  SetWindowContext(&window);
  for (size_t i = 0; i < kLookNames.size(); ++i) {
    AddCaption({kFirstColumn + static_cast<int32_t>(i) * kColumnStep, 8}, kLookNames[i]);
  }
}

void StockPanel::AddCaption(const Point& place, const char* text) {
  captions.push_back({place, text});
}

void StockPanel::AddRow(const char* caption, const Point& size, const MakeControl& makeControl) {
  AddCaption({6, nextTop + 3}, caption);
  int32_t left = kFirstColumn;
  for (size_t i = 0; i < kLookNames.size(); ++i, left += kColumnStep) {
    const Rect place = {left, nextTop, left + size.x, nextTop + size.y};
    ControlPane* const control = makeControl(*this, place);
    AddChild(control, true);
    const auto look = static_cast<Look>(i);
    if (look == Look::kDisabled) control->SetEnabled(false);
    specimens.push_back({control, look, {left + size.x * 3 / 4, nextTop + size.y / 2}});
  }
  nextTop += size.y + kRowGap;
}

void StockPanel::PaintSpecimens(ImageBuffer& page) {
  DrawTree(GetLocalBounds(), {0, 0}, page);
  for (const Specimen& specimen : specimens) {
    Lead(specimen);
    DrawTree(specimen.control->GetBounds(), {0, 0}, page);
    Leave(specimen);
  }
}

void StockPanel::Lead(const Specimen& specimen) {
  switch (specimen.look) {
    case Look::kOver:
      MouseOver(specimen.pointer, {});
      break;
    case Look::kPressed:
      MouseOver(specimen.pointer, {});
      MouseDown(specimen.pointer, {}, false, kLeftButton);
      break;
    case Look::kFocused:
      // The control that takes the mouse, which may stand in the one that was made.
      SetFocus(HitTest(specimen.pointer), true);
      break;
    case Look::kNormal:
    case Look::kDisabled:
      break;
  }
}

void StockPanel::Leave(const Specimen& specimen) {
  if (specimen.look == Look::kPressed) MouseUp(specimen.pointer, kLeftButton);
  if (GetPopup() != nullptr) HidePopup();
  MouseOver(kNowhere, {});
  ClearFocus(true);
}

void StockPanel::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  CustomPanel::Paint(rect, buffer, position);
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  TextStyle style;
  style.color = ThemeColors::Gray153;
  style.clip = &area.clip;
  SharedLabeler().SetFont(&FontSmall());
  for (const Caption& caption : captions) {
    SharedLabeler().DrawString(buffer, caption.text.c_str(), area.bounds.left + caption.place.x,
                               area.bounds.top + caption.place.y, TextAlignment::kLeft, style);
  }
}
