// A line of text that can be edited.
#include "toolkit/TextEditor.h"

#include "drawing/Labeler.h"
#include "toolkit/PaintArea.h"
#include "toolkit/RectAlgebra.h"
#include "toolkit/ThemeColors.h"
#include "toolkit/TopControlPane.h"

namespace {

constexpr int32_t kTextCursor = 1;

}  // namespace

TextEditor::TextEditor(ControlPane* ownerPane, const Rect& initialBounds, const Font* textFont)
    : FieldControl(ownerPane, initialBounds, textFont),
      font(textFont != nullptr ? textFont : &FontDefault()) {}

void TextEditor::SetText(const std::string& text) {
  if (text == GetText()) return;
  field.Edit().SetText(text);
  SetDirty(true);
}

void TextEditor::OfferText(const std::string& text) {
  field.Edit().SetText(text);
  field.Edit().SelectAll();
  SetDirty(true);
}

void TextEditor::SetTitle(const std::string& newTitle) {
  TitleString::SetTitle(newTitle);
  SetDirty(true);
}

void TextEditor::OnMouseDown(WindowContext* /*context*/, const Point& point) {
  pressed = true;
  SetDirty(true);
  const bool hadFocus = HasFocus();
  const ControlWatch self(this);
  TakeFocus();
  if (!self || !HasFocus()) return;
  // Without the focus the text's begin was shown, so that is what was pressed.
  if (!hadFocus) field.Edit().PlaceCaret(0);
  if (IsDoubleClick()) {
    field.Edit().SelectAll();
  } else {
    field.Press(point.x, GetLocalBounds(), hadFocus && IsShiftDown());
  }
}

void TextEditor::OnMouseDrag(WindowContext* /*context*/, const Point& point) {
  if (!HasFocus()) return;
  field.DragTo(point.x, GetLocalBounds());
  RedrawSelf();
}

void TextEditor::OnMouseUp(WindowContext* /*context*/, const Point& /*point*/) {
  pressed = false;
  SetDirty(true);
}

void TextEditor::OnFocusGained() {
  textBefore = GetText();
  field.RestartBlink();
  SetDirty(true);
}

void TextEditor::OnFocusLost() {
  SetDirty(true);
  if (!KeepsEdit() || !TakeText()) {
    field.Edit().SetText(textBefore);
    SyncFromParameters();
  } else {
    field.Edit().PlaceCaret(0);
    if (GetText() != textBefore) NotifyReleased(this);
  }
}

// False where a parameter won't have it.
bool TextEditor::TakeText() {
  Parameter* const parameter = GetParameter(0);
  if (parameter == nullptr || GetText() == textBefore) return true;
  if (!parameter->SetFromText(GetText())) return false;
  SyncFromParameters();
  return true;
}

bool TextEditor::OnKeyDown(WindowContext* /*context*/, int32_t key,
                           const Modifiers& /*modifiers*/) {
  if (Font::HasGlyph(key)) {
    const char typed = static_cast<char>(key);
    field.Edit().Insert({&typed, 1}, kMostBytes);
    field.RestartBlink();
  } else if (!field.TakeEditKey(key)) {
    return key == kKeyReturn || key == kKeyEscape;
  }
  SetDirty(true);
  return true;
}

int32_t TextEditor::GetCursorAt(WindowContext* /*context*/, const Point& point,
                                const Modifiers& /*modifiers*/) {
  return Contains(GetLocalBounds(), point) ? kTextCursor : 0;
}

bool TextEditor::SyncFromParameters() {
  const Parameter* const parameter = GetParameter(0);
  if (parameter == nullptr || HasFocus()) return false;
  const std::string text = parameter->GetValueText();
  if (text == GetText()) return false;
  field.Edit().SetText(text);
  return true;
}

void TextEditor::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  const FieldLook look{IsEnabled(), HasFocus(), pressed, IsMouseOver()};
  DrawFieldBox(buffer, area.bounds, ColorsOfField(look), area.clip);
  field.DrawText(buffer, area.bounds, look, area.clip);
  if (!GetText().empty() || GetTitle().empty()) return;
  TextStyle style;
  style.color = ThemeColors::Gray102;
  style.clip = &area.clip;
  const int32_t left = SaturatedInt(int64_t{area.bounds.left} + TextField::kPadding);
  SharedLabeler().SetFont(font);
  SharedLabeler().DrawStringInRect(buffer, GetTitle().c_str(),
                                   {left, area.bounds.top, area.bounds.right, area.bounds.bottom},
                                   TextAlignment::kLeft, style);
}
