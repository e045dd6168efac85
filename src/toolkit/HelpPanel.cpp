// A panel for the help texts of controls.
#include "toolkit/HelpPanel.h"

#include "drawing/Labeler.h"
#include "toolkit/PaintArea.h"
#include "toolkit/StockPaint.h"
#include "toolkit/TextPanel.h"
#include "toolkit/ThemeColors.h"

namespace {

constexpr int32_t kMargin = 6;
constexpr int32_t kHeadingGap = 4;
constexpr double kCornerRadius = 3.0;
constexpr ColorBGRA kBack(0xFF262626);

}  // namespace

void HelpPanel::SetTitle(const std::string& newTitle) {
  if (newTitle == GetTitle()) return;
  TitleString::SetTitle(newTitle);
  SetDirty(true);
}

void HelpPanel::SetText(const std::string& newText) {
  if (newText == text) return;
  text = newText;
  SetDirty(true);
}

void HelpPanel::ShowHelpAt(ControlPane& tree, const Point& point) {
  const ControlPane* const helped = tree.FindHelpControl(point);
  SetText(helped != nullptr ? helped->GetHelpText() : idleText);
}

void HelpPanel::SetEnabled(bool enabled) {
  ControlPane::SetEnabled(enabled);
  SetDirty(true);
}

void HelpPanel::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  if (IsEmpty(area.bounds)) return;
  FillRound({buffer, area.clip}, area.bounds, kCornerRadius, kBack);
  StrokeRound({buffer, area.clip}, area.bounds, kCornerRadius, ThemeColors::MenuFrame);

  Rect room = InsetBy(area.bounds, kMargin);
  const Rect inside = Intersection(room, area.clip);
  TextStyle style;
  style.clip = &inside;
  style.color = IsEnabled() ? ThemeColors::Gray230 : ThemeColors::Gray102;
  if (!GetTitle().empty()) {
    SharedLabeler().SetFont(&FontBold());
    const int32_t height = SharedLabeler().GetLineHeight();
    SharedLabeler().DrawString(buffer, GetTitle().c_str(), room.left, room.top,
                               TextAlignment::kLeft, style);
    room.top = SaturatedInt(int64_t{room.top} + height + kHeadingGap);
  }
  if (IsEnabled()) style.color = ThemeColors::Gray179;
  DrawTextBlock(buffer, text, room, FontDefault(), TextAlignment::kLeft, style);
}
