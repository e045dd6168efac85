// Holds a menu of text rows that scrolls.
#include "toolkit/ScrollingPopup.h"

#include <algorithm>

#include "toolkit/PopupPlacement.h"
#include "toolkit/RectAlgebra.h"
#include "toolkit/StockPaint.h"
#include "toolkit/TopControlPane.h"

namespace {

constexpr int64_t kMostHeight = 160;

}  // namespace

void ScrollingPopup::EnsureMenu() {
  if (GetMenu() == nullptr) SetMenu(new ScrollingMenuEnclosure(nullptr, defaultFont));
}

void ScrollingPopup::OnMenuChosen(PopupEnclosure* /*chosenMenu*/, int32_t index) {
  chosenIndex = index;
  if (listener != nullptr) listener->OnControlChanged(this);
}

void ScrollingPopup::SetRows(const std::vector<std::string>& rows) {
  EnsureMenu();
  ScrollingMenuEnclosure* const enclosure = GetEnclosure();
  if (enclosure == nullptr || enclosure->GetSub() == nullptr) return;
  enclosure->GetSub()->ForgetRows();
  enclosure->GetSub()->RebuildItems(&rows);
  enclosure->Rebuild();
}

ScrollingMenuEnclosure* ScrollingPopup::GetEnclosure() const {
  return dynamic_cast<ScrollingMenuEnclosure*>(GetMenu());
}

void ScrollingPopup::ShowAt(TopControlPane& root, const Point& point, const Rect& limits) {
  EnsureMenu();
  ScrollingMenuEnclosure* const enclosure = GetEnclosure();
  if (enclosure == nullptr || enclosure->GetSub() == nullptr) return;
  if (enclosure->IsOpen() || root.GetPopup() != nullptr) return;

  enclosure->GetSub()->ForgetRows();
  enclosure->GetSub()->SetSelectedIndex(chosenIndex);
  const int64_t room = IsEmpty(limits) ? kMostHeight : HeightOf(limits);
  enclosure->SetMostHeight(SaturatedInt(std::min(room, kMostHeight)));
  enclosure->Rebuild();
  enclosure->ShowRow(chosenIndex);
  Rect place = ShiftedInto(MovedTo(enclosure->GetLocalBounds(), point), limits);
  root.GlobalToLocalRect(&place);
  enclosure->SetBounds(place);
  RememberOpen();
  root.ShowPopup(enclosure, false, false);
}
