// A control that the root shows above all others while it is open.
#pragma once

#include "toolkit/ControlPane.h"
#include "toolkit/ControlWatch.h"

class PopupBase;

// Whoever shows a popup links it to the root as its first child; closing unlinks it again. A popup
// with a holder belongs to it, open or closed, with one exception: a root that is destroyed deletes
// its children, an open popup among them, and the holder is then left without. Holder and popup
// watch each other, so that nobody deletes a popup twice.
class PopupEnclosure : public ControlPane {
 public:
  PopupEnclosure(ControlPane* ownerPane, const Rect& initialBounds);
  ~PopupEnclosure() override;

  bool IsPopup() const override { return true; }

  // Hook: works the contents and the size out.
  virtual void Rebuild();
  // Puts the popup under an area, both in the owner's space; the size stays.
  virtual void PlaceAt(const Rect& anchor);
  // Whether PlaceAt goes by the area's left edge, or by its right one.
  virtual void SetAlignLeft(bool newAlignLeft);

  bool IsOpen() const;
  PopupBase* GetHolder() const;
  // For the holder that takes the popup over or lets it go; null for none.
  void SetHolder(PopupBase* newHolder);

 protected:
  bool alignLeft = true;

 private:
  ControlWatch holder;
};
