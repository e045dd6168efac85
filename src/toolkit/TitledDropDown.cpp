// A caption beside a plate that shows a choice and drops a popup of all choices.
#include "toolkit/TitledDropDown.h"

#include "toolkit/Plate.h"
#include "toolkit/RectAlgebra.h"
#include "toolkit/TopControlPane.h"

namespace {

constexpr int32_t kPadX = 8;
constexpr int32_t kArrowRoom = 20;
constexpr double kCornerRadius = 3.0;

}  // namespace

void TitledDropDown::SetChoices(const std::vector<std::string>& newChoices) {
  if (choices == newChoices) return;
  choices = newChoices;
  chosen = choices.empty() ? -1 : 0;
  SetDirty(true);
}

void TitledDropDown::SetChosen(int32_t index) {
  if (index < 0 || index >= static_cast<int32_t>(choices.size()) || index == chosen) return;
  chosen = index;
  SetDirty(true);
}

void TitledDropDown::OnMouseDown(WindowContext* /*context*/, const Point& /*point*/) {
  pressed = true;
  const ControlWatch self(this);
  TogglePopup();
  if (self) RedrawAndTellPress();
}

void TitledDropDown::OnMouseUp(WindowContext* /*context*/, const Point& /*point*/) {
  pressed = false;
  RedrawAndTellRelease();
}

void TitledDropDown::TogglePopup() {
  TopControlPane* const root = GetTopOwnerPtr();
  if (root == nullptr) return;
  const ControlWatch self(this);
  const ControlWatch rootWatch(root);
  const bool wasOpen = IsPopupOpen();
  if (root->GetPopup() != nullptr) root->HidePopup();
  if (wasOpen || !self || !rootWatch || choices.empty()) return;
  const Rect plate = ContentArea();
  Point point = {plate.left, plate.bottom};
  LocalToGlobalPoint(&point);
  OpenPopup(*root, point, root->GetGlobalBounds());
}

bool TitledDropDown::IsPopupOpen() {
  return Holder().GetMenu() != nullptr && Holder().GetMenu()->IsOpen();
}

bool TitledDropDown::TakeChoice(int32_t index) {
  const int32_t before = chosen;
  SetChosen(index);
  return chosen == before || RedrawAndTellListener();
}

void TitledDropDown::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  TitledPane::Paint(rect, buffer, position);
  const PaintArea area = AreaToPaint(rect, position);
  PaintPlate(TargetFor(buffer, area), MovedBy(ContentArea(), area.bounds.left, area.bounds.top));
}

void TitledDropDown::PaintPlate(const PaintTarget& target, const Rect& plate) {
  const PlateLook look = LookWhile(pressed || IsPopupOpen());
  DrawPlate(target.buffer, plate, PlateColor(look, StockColors::DisabledPlate), target.clip);
  Rect text = plate;
  text.left = SaturatedInt(int64_t{plate.left} + kPadX);
  text.right = SaturatedInt(int64_t{plate.right} - kArrowRoom);
  if (chosen >= 0) {
    DrawCaption(target, choices[static_cast<size_t>(chosen)], text, TextAlignment::kLeft,
                PlateTextColor(look.pressed));
  }
  const double x = static_cast<double>(plate.right) - kArrowRoom / 2.0;
  const double y = plate.top + static_cast<double>(HeightOf(plate)) / 2.0;
  FillTriangle(target, {x - 4.5, y - 2.5}, {x + 4.5, y - 2.5}, {x, y + 3.5},
               PlateTextColor(look.pressed));
  PaintFocus(target, plate, kCornerRadius);
}
