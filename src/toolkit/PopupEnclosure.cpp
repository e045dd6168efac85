// What all popups have in common.
#include "toolkit/PopupEnclosure.h"

#include "toolkit/PopupBase.h"
#include "toolkit/PopupPlacement.h"
#include "toolkit/RectAlgebra.h"

namespace {

// Where a popup stands from the area that it belongs to.
constexpr int32_t kFromLeft = 5;
constexpr int32_t kFromRight = -10;
constexpr int32_t kFromBottom = -2;

}  // namespace

PopupEnclosure::PopupEnclosure(ControlPane* ownerPane, const Rect& initialBounds)
    : ControlPane(ownerPane, initialBounds) {}

PopupEnclosure::~PopupEnclosure() {
  // What was under the popup is to be painted, but not in here: that would run hooks of a tree that
  // may be half destroyed.
  if (IsOpen()) owner->SetDirty(true);
}

void PopupEnclosure::Rebuild() {}

void PopupEnclosure::PlaceAt(const Rect& anchor) {
  const int64_t x =
      alignLeft ? int64_t{anchor.left} + kFromLeft : int64_t{anchor.right} + kFromRight;
  const int64_t y = int64_t{anchor.bottom} + kFromBottom;
  SetBounds(MovedTo(bounds, {SaturatedInt(x), SaturatedInt(y)}));
}

void PopupEnclosure::SetAlignLeft(bool newAlignLeft) {
  alignLeft = newAlignLeft;
}

bool PopupEnclosure::IsOpen() const {
  return owner != nullptr && owner->ContainsChild(this);
}

PopupBase* PopupEnclosure::GetHolder() const {
  return static_cast<PopupBase*>(holder.Get());
}

void PopupEnclosure::SetHolder(PopupBase* newHolder) {
  holder = newHolder;
}
