// Holds a menu of text rows.
#pragma once

#include "drawing/Fonts.h"
#include "toolkit/MenuControl.h"
#include "toolkit/PopupBase.h"

class PopupTextMenu : public PopupBase {
 public:
  // font   of the rows; null means FontDefault
  explicit PopupTextMenu(ControlPane* ownerPane, const Font* font = nullptr);

  // Makes the list if there is none. Overridden by holders of a list of their own kind.
  virtual void EnsureMenu();
  // Lays the list out, if there is one.
  virtual void RebuildMenu();

  // Null where there is no list, or one that has no rows of text.
  MenuControl* GetList() const;

 protected:
  const Font* defaultFont = nullptr;
};
