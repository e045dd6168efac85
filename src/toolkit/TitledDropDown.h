// A caption beside a plate that shows a choice and drops a popup of all choices.
#pragma once

#include <string>
#include <vector>

#include "toolkit/PopupBase.h"
#include "toolkit/PopupToggle.h"
#include "toolkit/TitledPane.h"

// A press opens the popup, or closes it. The listener hears of a choice that is another one, the
// owner of press and release.
class TitledDropDown : public TitledPane, public PopupToggle {
 public:
  using TitledPane::TitledPane;

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  void OnMouseDown(WindowContext* context, const Point& point) override;
  void OnMouseUp(WindowContext* context, const Point& point) override;

  // The first one is chosen; of none, -1 is.
  void SetChoices(const std::vector<std::string>& newChoices);
  // Outside the choices nothing changes; nobody is told.
  void SetChosen(int32_t index);
  int32_t GetChosen() const { return chosen; }
  const std::vector<std::string>& GetChoices() const { return choices; }

 protected:
  // Hooks: the popup's holder, and opening it under a global point within limits.
  virtual PopupBase& Holder() = 0;
  virtual void OpenPopup(TopControlPane& root, const Point& point, const Rect& limits) = 0;

  // For the holder's news of a choice; -1 for none. Tells whether this control is still there.
  bool TakeChoice(int32_t index);

 private:
  bool IsPopupOpen();
  void TogglePopup();
  void PaintPlate(const PaintTarget& target, const Rect& plate);

  std::vector<std::string> choices;
  int32_t chosen = -1;
  bool pressed = false;
};
