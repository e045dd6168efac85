// A number that is typed like text and dragged like a dial: its value, its focus and its keys.
#include "toolkit/NumericScrubber.h"

#include <algorithm>

#include "toolkit/RectAlgebra.h"
#include "toolkit/TopControlPane.h"

namespace {

constexpr int32_t kTextCursor = 1;
constexpr int32_t kDialCursor = 5;

bool IsDigit(int32_t code) {
  return code >= '0' && code <= '9';
}

std::string WithoutPercent(std::string text) {
  std::erase(text, '%');
  return text;
}

}  // namespace

NumericScrubber::NumericScrubber(ControlPane* ownerPane, const Rect& initialBounds,
                                 uint32_t scrubberFlags, const Font* textFont,
                                 const Font* newUnitFont, bool inFocusRing)
    : FieldControl(ownerPane, initialBounds, textFont),
      unitFont(newUnitFont != nullptr ? newUnitFont : &FontDefault()),
      flags(scrubberFlags) {
  TopControlPane* const root = inFocusRing ? Root() : nullptr;
  if (root != nullptr) root->AddToFocusRing(this);
}

void NumericScrubber::AddListener(NumericScrubberListener* listener) {
  if (listener != nullptr) listeners.insert(listener);
}

void NumericScrubber::RemoveListener(NumericScrubberListener* listener) {
  listeners.erase(listener);
}

// Tells whether this is still there.
template <typename Tell>
bool NumericScrubber::TellListeners(Tell tell) {
  const ControlWatch self(this);
  const std::set<NumericScrubberListener*> told = listeners;
  for (NumericScrubberListener* const listener : told) {
    if (listeners.contains(listener)) tell(*listener);
    if (!self) return false;
  }
  return true;
}

bool NumericScrubber::IsValidChar(int32_t code) const {
  return IsDigit(code) || code == '-' || code == '.';
}

void NumericScrubber::SetUnitText(const std::string& text) {
  if (text == unitText) return;
  unitText = text;
  SetDirty(true);
}

void NumericScrubber::OnFocusGained() {
  pressPending = false;
  field.Edit().SetText(WithoutPercent(GetText()));
  field.RestartBlink();
  SetDirty(true);
  TellListeners(
      [this](NumericScrubberListener& listener) { listener.OnScrubberFocusGained(this); });
}

void NumericScrubber::OnFocusLost() {
  const ControlWatch self(this);
  if (KeepsEdit()) TakeTypedText();
  if (!self) return;
  ShowParameter();
  SetDirty(true);
  TellListeners([this](NumericScrubberListener& listener) { listener.OnScrubberFocusLost(this); });
}

// A text that is the parameter's already would only round a value that has more digits.
bool NumericScrubber::TakeTypedText() {
  Parameter* const parameter = GetParameter(0);
  if (parameter == nullptr || GetText() == WithoutPercent(parameter->GetValueText())) return false;
  return parameter->SetFromText(GetText());
}

void NumericScrubber::ShowParameter() {
  const Parameter* const parameter = GetParameter(0);
  if (parameter == nullptr) return;
  const std::string text = parameter->GetValueText();
  field.Edit().SetText(HasFocus() ? WithoutPercent(text) : text);
}

bool NumericScrubber::SyncFromParameters() {
  if (HasFocus()) return false;
  const std::string before = GetText();
  ShowParameter();
  return GetText() != before;
}

bool NumericScrubber::OnKeyDown(WindowContext* /*context*/, int32_t key,
                                const Modifiers& modifiers) {
  if (IsValidChar(key)) {
    TypeChar(static_cast<char>(key));
  } else if (key == kKeyUp || key == kKeyDown) {
    StepValue(key == kKeyUp ? 1 : -1, modifiers);
  } else if (!field.TakeEditKey(key)) {
    return key == kKeyReturn || key == kKeyEscape;
  }
  SetDirty(true);
  return true;
}

void NumericScrubber::TypeChar(char typed) {
  TextEditModel& edit = field.Edit();
  edit.EraseSelection();
  field.RestartBlink();
  const std::string& text = edit.Text();
  if (typed == '.' && text.find('.') != std::string::npos) return;
  if (typed == '-' && (edit.Caret() != 0 || text.starts_with('-'))) return;
  if (std::count_if(text.begin(), text.end(), IsDigit) >= kMaxDigits) return;
  edit.Insert({&typed, 1}, edit.Length() + 1);
}

// What was typed so far is the value that steps.
void NumericScrubber::StepValue(int32_t steps, const Modifiers& modifiers) {
  Parameter* const parameter = GetParameter(0);
  if (parameter == nullptr) return;
  if (HasFocus()) TakeTypedText();
  parameter->StepBy(steps, modifiers);
  ShowParameter();
  field.RestartBlink();
  SetDirty(true);
}

int32_t NumericScrubber::GetCursorAt(WindowContext* /*context*/, const Point& point,
                                     const Modifiers& modifiers) {
  if (!Contains(GetLocalBounds(), point)) return 0;
  if (HasFocus()) return kTextCursor;
  return modifiers.alt ? 0 : kDialCursor;
}
