// A text field with a list of texts to choose from.
#include "toolkit/ComboPopupMenu.h"

#include <algorithm>
#include <memory>

#include "toolkit/PaintArea.h"
#include "toolkit/Plate.h"
#include "toolkit/PopupPlacement.h"
#include "toolkit/StockPaint.h"
#include "toolkit/TopControlPane.h"

namespace {

constexpr int32_t kArrowWidth = 18;
constexpr int32_t kGap = 1;
constexpr const char* kSeparator = "-";

void DrawArrow(const PaintTarget& target, const Rect& plate, ColorBGRA color) {
  const double middle = (static_cast<double>(plate.left) + plate.right) / 2;
  const double top = (static_cast<double>(plate.top) + plate.bottom) / 2 - 2;
  FillTriangle(target, {middle - 4, top}, {middle + 4, top}, {middle, top + 5}, color);
}

}  // namespace

// Hands the keys that choose a row to the list's holder.
class ComboPopupMenu::Field : public TextEditor {
 public:
  Field(ComboPopupMenu& holder, const Font* textFont)
      : TextEditor(&holder, Rect{}, textFont), combo(holder) {}

  bool OnKeyDown(WindowContext* context, int32_t key, const Modifiers& modifiers) override {
    if (key != kKeyUp && key != kKeyDown) return TextEditor::OnKeyDown(context, key, modifiers);
    combo.MoveSelection(key == kKeyUp ? -1 : 1);
    return true;
  }

 private:
  ComboPopupMenu& combo;
};

ComboPopupMenu::ComboPopupMenu(ControlPane* ownerPane, const Rect& initialBounds, const Font* font)
    : PopupTextMenu(ownerPane, font) {
  auto field = std::make_unique<Field>(*this, defaultFont);
  ControlPane::AddChild(field.get(), true);
  textField = field.release();
  ComboPopupMenu::SetBounds(initialBounds);
}

TextEditor* ComboPopupMenu::GetField() const {
  return static_cast<TextEditor*>(textField.Get());
}

void ComboPopupMenu::SetLabels(const std::vector<std::string>& newLabels) {
  labels = newLabels;
  EnsureMenu();
  GetList()->RebuildItems(&labels);
}

void ComboPopupMenu::SetText(const std::string& text) {
  if (GetField() != nullptr) GetField()->SetText(text);
}

std::string ComboPopupMenu::GetText() const {
  return GetField() != nullptr ? GetField()->GetText() : std::string();
}

bool ComboPopupMenu::IsText(const std::string& label) const {
  return label != kSeparator && label.compare(0, label.find('\0'), GetText()) == 0;
}

int32_t ComboPopupMenu::GetSelectedIndex() const {
  const auto found = std::find_if(labels.begin(), labels.end(),
                                  [this](const std::string& label) { return IsText(label); });
  return found == labels.end() ? -1 : static_cast<int32_t>(found - labels.begin());
}

void ComboPopupMenu::MoveSelection(int32_t step) {
  const auto count = static_cast<int32_t>(labels.size());
  int32_t index = GetSelectedIndex();
  if (index < 0 && step < 0) index = count;
  const int32_t direction = step < 0 ? -1 : 1;
  for (index += direction; index >= 0 && index < count; index += direction) {
    const std::string& label = labels[static_cast<size_t>(index)];
    if (label == kSeparator) continue;
    if (GetField() != nullptr) GetField()->OfferText(label);
    return;
  }
}

void ComboPopupMenu::OpenList() {
  TopControlPane* const root = GetOwner() != nullptr ? GetTopOwnerPtr() : nullptr;
  if (root == nullptr || root->GetPopup() != nullptr || labels.empty()) return;
  if (GetList() == nullptr) SetLabels(std::vector<std::string>(labels));
  MenuControl* const list = GetList();
  list->ForgetRows();
  list->SetSelectedIndex(GetSelectedIndex());
  Point corner = {0, GetLocalBounds().bottom};
  LocalToGlobalPoint(&corner);
  Rect place = ShiftedInto(MovedTo(list->GetLocalBounds(), corner), root->GetGlobalBounds());
  root->GlobalToLocalRect(&place);
  list->SetBounds(place);
  RememberOpen();
  root->ShowPopup(list, false, false);
}

void ComboPopupMenu::OnMenuChosen(PopupEnclosure* /*chosenMenu*/, int32_t index) {
  if (index < 0 || static_cast<size_t>(index) >= labels.size()) return;
  SetText(labels[static_cast<size_t>(index)]);
  NotifyReleased(this);
}

void ComboPopupMenu::NotifyReleased(ControlPane* source) {
  PopupTextMenu::NotifyReleased(source == textField.Get() ? this : source);
}

void ComboPopupMenu::OnMouseDown(WindowContext* /*context*/, const Point& /*point*/) {
  pressed = true;
  SetDirty(true);
  ToggleList();
}

void ComboPopupMenu::ToggleList() {
  TopControlPane* const root = GetOwner() != nullptr ? GetTopOwnerPtr() : nullptr;
  if (root == nullptr) return;
  const ControlWatch self(this);
  const bool wasOpen = GetMenu() != nullptr && GetMenu()->IsOpen();
  root->HidePopup();
  if (self && !wasOpen) OpenList();
}

void ComboPopupMenu::OnMouseUp(WindowContext* /*context*/, const Point& /*point*/) {
  pressed = false;
  SetDirty(true);
}

void ComboPopupMenu::OnMouseEnter() {
  PopupTextMenu::OnMouseEnter();
  SetDirty(true);
}

void ComboPopupMenu::OnMouseLeave() {
  PopupTextMenu::OnMouseLeave();
  SetDirty(true);
}

void ComboPopupMenu::SetBounds(const Rect& newBounds) {
  PopupTextMenu::SetBounds(newBounds);
  const Rect room = ControlPane::GetLocalBounds();
  if (!textField) return;
  textField->SetBounds({0, 0, std::max(0, room.right) - kArrowWidth - kGap, room.bottom});
}

void ComboPopupMenu::SetEnabled(bool enabled) {
  PopupTextMenu::SetEnabled(enabled);
  SetDirty(true);
}

void ComboPopupMenu::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  Rect plate = area.bounds;
  plate.left = std::max(plate.left, SaturatedInt(int64_t{plate.right} - kArrowWidth));
  const PlateLook look{IsEnabled(), IsMouseOver() && !pressed, pressed};
  DrawPlate(buffer, plate, PlateColor(look, StockColors::DisabledPlate), area.clip);
  const ColorBGRA arrow = IsEnabled() ? PlateTextColor(pressed) : ThemeColors::Gray102;
  DrawArrow({buffer, area.clip}, plate, arrow);
}
