// A caption beside a drop-down with a menu of all choices.
#include "toolkit/TitledPopup.h"

#include "toolkit/MenuControl.h"

namespace {

// Opens inside its panel.
class DroppedList : public MenuControl {
 public:
  DroppedList() : MenuControl(nullptr, Rect{}) { unclamped = false; }
};

}  // namespace

void TitledPopup::OnPopupContextMenu(PopupContextMenu* /*menu*/, ControlPane* /*menuControl*/,
                                     int32_t index) {
  TakeChoice(index);
}

void TitledPopup::OpenPopup(TopControlPane& root, const Point& point, const Rect& limits) {
  if (holder.GetMenu() == nullptr) holder.SetMenu(new DroppedList);
  MenuControl* const list = holder.GetList();
  list->RebuildItems(&GetChoices());
  MenuItem* const item = list->GetItem(GetChosen());
  if (item != nullptr) item->marked = true;
  holder.ShowAt(root, point, limits);
}
