// Holds a popup for as long as it isn't shown and while it is.
#pragma once

#include "toolkit/ControlPane.h"
#include "toolkit/ControlWatch.h"
#include "toolkit/PopupEnclosure.h"

// Is never shown itself.
class PopupBase : public ControlPane {
 public:
  explicit PopupBase(ControlPane* ownerPane);
  // Deletes the menu, also while it is open.
  ~PopupBase() override;

  // Null where there is none.
  PopupEnclosure* GetMenu() const;
  // Takes a menu over, from the one who held it too, and deletes the one held before. May be null.
  void SetMenu(PopupEnclosure* newMenu);

  // Hook: a row was chosen. The menu is still open; it and this may be deleted in here.
  virtual void OnMenuChosen(PopupEnclosure* chosenMenu, int32_t index);

  // The menu that is open in whichever panel, and its holder; null where none is.
  static PopupEnclosure* OpenMenu();
  static PopupBase* OpenHolder();

 protected:
  // Makes this and its menu the open ones.
  void RememberOpen();

 private:
  ControlWatch menu;
};
