// What all controls with a line of text to edit share: its place, its caret's blinking, its look.
#include "toolkit/TextField.h"

#include <algorithm>
#include <cstddef>

#include "drawing/Labeler.h"
#include "drawing/SharedPainter.h"
#include "toolkit/Clock.h"
#include "toolkit/RectAlgebra.h"
#include "toolkit/TextPen.h"
#include "toolkit/ThemeColors.h"

namespace {

constexpr double kCornerRadius = 3.0;
constexpr double kFrameWidth = 1.0;
constexpr int32_t kOpaque = 256;
constexpr FieldColors kDisabled{ThemeColors::Gray102, ColorBGRA(0xFF313131),
                                ThemeColors::MenuFrame};
constexpr FieldColors kFocused{ThemeColors::White, ThemeColors::MenuFill, ColorBGRA(0xFF2F86C4)};
constexpr FieldColors kPressed{ThemeColors::White, ColorBGRA(0xFF3A3A3A), ThemeColors::Gray153};
constexpr FieldColors kOver{ThemeColors::Gray230, ColorBGRA(0xFF262626), ThemeColors::Gray128};
constexpr FieldColors kNormal{ThemeColors::Gray192, ColorBGRA(0xFF1E1E1E), ThemeColors::Gray76};
constexpr ColorBGRA kSelectionFill(0xFF1D5F8F);

// Top and bottom of the caret and the selection: those of a line in the middle of the box.
Rect LineIn(const Rect& box, int64_t left, int64_t right) {
  const int64_t top =
      box.top + (int64_t{box.bottom} - box.top - SharedLabeler().GetLineHeight()) / 2;
  return {SaturatedInt(left), SaturatedInt(top), SaturatedInt(right),
          SaturatedInt(top + SharedLabeler().GetLineHeight() + 1)};
}

Rect RoomIn(const Rect& box) {
  return {SaturatedInt(int64_t{box.left} + TextField::kPadding), box.top,
          SaturatedInt(int64_t{box.right} - TextField::kPadding), box.bottom};
}

}  // namespace

FieldColors ColorsOfField(const FieldLook& look) {
  if (!look.enabled) return kDisabled;
  if (look.focused) return kFocused;
  if (look.pressed) return kPressed;
  return look.over ? kOver : kNormal;
}

void DrawFieldBox(ImageBuffer& buffer, const Rect& box, const FieldColors& colors,
                  const Rect& clip) {
  if (IsEmpty(box)) return;
  SharedPath().SetRoundRect(box, kCornerRadius, true, true, true, true);
  SharedRasterizer().DrawPath(SharedPath(), buffer, colors.back, kOpaque, false, &clip, nullptr, 0);
  SharedRasterizer().DrawPath(SharedPath(), buffer, colors.frame, kOpaque, false, &clip, nullptr,
                              kFrameWidth);
}

std::vector<int32_t> TextEdges(const std::string& text, const Font& font) {
  TextPen pen(font);
  std::vector<int32_t> edges;
  edges.reserve(text.size() + 1);
  int32_t end = 0;
  for (const char byte : text) {
    const TextPen::Extent glyph = pen.Pass(byte);
    edges.push_back(glyph.left);
    end = glyph.right;
  }
  edges.push_back(end);
  return edges;
}

bool TextField::TakeEditKey(int32_t key) {
  switch (key) {
    case kKeyBackspace:
    case kKeyDelete:
      edit.EraseBackward();
      break;
    case kKeyLeft:
      edit.MoveLeft();
      break;
    case kKeyRight:
      edit.MoveRight();
      break;
    default:
      return false;
  }
  RestartBlink();
  return true;
}

void TextField::Press(int32_t x, const Rect& box, bool extend) {
  const int32_t place = PlaceUnder(x, box);
  if (extend) {
    edit.SelectTo(place);
  } else {
    edit.PlaceCaret(place);
  }
  RestartBlink();
}

void TextField::DragTo(int32_t x, const Rect& box) {
  edit.SelectTo(PlaceUnder(x, box));
}

void TextField::RestartBlink() {
  blinkTimeMs = CurrentClock().Milliseconds();
  blinkOn = true;
}

bool TextField::Blink() {
  const uint32_t now = CurrentClock().Milliseconds();
  if (now - blinkTimeMs < uint32_t{kBlinkPeriodMs}) return false;
  blinkTimeMs = now;
  blinkOn = !blinkOn;
  return true;
}

void TextField::DrawText(ImageBuffer& buffer, const Rect& box, const FieldLook& look,
                         const Rect& clip) const {
  const std::vector<int32_t> edges = TextEdges(edit.Text(), *font);
  const bool focused = look.focused && look.enabled;
  const int64_t left = int64_t{box.left} + kPadding - Scroll(edges, box, focused);
  const auto edge = [&](int32_t place) { return left + edges[static_cast<size_t>(place)]; };
  Rect inside = Intersection(RoomIn(box), clip);
  // The caret of a full field stands in the padding.
  inside.right = std::min(SaturatedInt(int64_t{inside.right} + 1), clip.right);
  SharedLabeler().SetFont(font);
  if (focused && edit.Selection() != 0) {
    buffer.FillRect(LineIn(box, edge(edit.SelectionStart()), edge(edit.SelectionEnd())),
                    kSelectionFill, kOpaque, &inside);
  }
  TextStyle style;
  style.color = ColorsOfField(look).text;
  style.clip = &inside;
  SharedLabeler().DrawStringInRect(buffer, edit.Text().c_str(),
                                   {SaturatedInt(left), box.top, box.right, box.bottom},
                                   TextAlignment::kLeft, style);
  if (!focused || !blinkOn || edit.Selection() != 0) return;
  const int64_t caret = edge(edit.Caret());
  buffer.FillRect(LineIn(box, caret, caret + 1), style.color, kOpaque, &inside);
}

int32_t TextField::TextEnd(const Rect& box, bool focused) const {
  const std::vector<int32_t> edges = TextEdges(edit.Text(), *font);
  return SaturatedInt(int64_t{box.left} + kPadding + edges.back() - Scroll(edges, box, focused));
}

// Only a field with the focus is pressed in its text.
int32_t TextField::PlaceUnder(int32_t x, const Rect& box) const {
  const std::vector<int32_t> edges = TextEdges(edit.Text(), *font);
  return PlaceAtX(edges, SaturatedInt(int64_t{x} - box.left - kPadding + Scroll(edges, box, true)));
}

int32_t TextField::Scroll(const std::vector<int32_t>& edges, const Rect& box, bool focused) const {
  if (!focused) return 0;
  const int64_t room = int64_t{box.right} - box.left - 2 * int64_t{kPadding};
  const int64_t caret = edges[static_cast<size_t>(edit.Caret())];
  return SaturatedInt(std::max<int64_t>(0, caret - std::max<int64_t>(0, room)));
}
