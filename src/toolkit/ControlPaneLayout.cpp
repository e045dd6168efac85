// Edges that follow the owner's size.
#include "platform/Truncate.h"
#include "toolkit/ChildWalk.h"
#include "toolkit/ControlPane.h"
#include "toolkit/RectAlgebra.h"

namespace {

// One direction of a control in its owner: from the left edge to the right one, or from the top to
// the bottom.
struct Span {
  int64_t nearEdge = 0;
  int64_t farEdge = 0;
};

int64_t ValueOf(const LayoutAnchor& anchor) {
  return Truncate<int32_t>(anchor.value);
}

int64_t Share(int64_t length, const LayoutAnchor& anchor) {
  return Truncate<int32_t>(static_cast<double>(length) * anchor.value);
}

int64_t NearEdge(const LayoutAnchor& anchor, const Span& present, const Span& owner) {
  const int64_t a = anchor.rangeStart;
  const int64_t b = anchor.rangeEnd;
  const int64_t ownerSize = owner.farEdge - owner.nearEdge;
  const int64_t room = b - a + ownerSize;
  const int64_t centered = a + owner.nearEdge + (room - (present.farEdge - present.nearEdge)) / 2;
  switch (anchor.kind) {
    case kAnchorFixed:
      return ValueOf(anchor);
    case kAnchorToEdge:
      return owner.nearEdge + ValueOf(anchor);
    case kAnchorToFraction:
      return owner.nearEdge + Share(ownerSize, anchor);
    case kAnchorToOther:
      return present.farEdge + ValueOf(anchor);
    case kAnchorInRange:
      return a + owner.nearEdge + Share(room, anchor);
    case kAnchorCentered:
      return centered;
    case kAnchorCenteredPlus:
      return centered + ValueOf(anchor);
    default:
      return present.nearEdge;
  }
}

int64_t FarEdge(const LayoutAnchor& anchor, const Span& present, const Span& owner) {
  const int64_t a = anchor.rangeStart;
  const int64_t b = anchor.rangeEnd;
  const int64_t ownerSize = owner.farEdge - owner.nearEdge;
  switch (anchor.kind) {
    case kAnchorFixed:
      return ValueOf(anchor);
    case kAnchorToEdge:
      return owner.farEdge + ValueOf(anchor);
    case kAnchorToFraction:
      return owner.farEdge + Share(ownerSize, anchor);
    case kAnchorToOther:
      return present.nearEdge + ValueOf(anchor);
    case kAnchorInRange:
      return a + owner.farEdge + Share(a - b + ownerSize, anchor);
    default:
      return present.farEdge;
  }
}

bool Centers(const LayoutAnchor& anchor) {
  return anchor.kind == kAnchorCentered || anchor.kind == kAnchorCenteredPlus;
}

Span Anchored(const LayoutAnchor& nearAnchor, const LayoutAnchor& farAnchor, Span span,
              const Span& owner) {
  const int64_t length = span.farEdge - span.nearEdge;
  // An edge that hangs on the other one comes after it.
  const bool farFirst = nearAnchor.kind == kAnchorToOther && farAnchor.kind != kAnchorToOther;
  if (farFirst) span.farEdge = FarEdge(farAnchor, span, owner);
  span.nearEdge = NearEdge(nearAnchor, span, owner);
  if (Centers(nearAnchor)) span.farEdge = span.nearEdge + length;
  if (!farFirst) span.farEdge = FarEdge(farAnchor, span, owner);
  if (nearAnchor.kind != kAnchorKeep && farAnchor.kind == kAnchorKeep) {
    span.farEdge = span.nearEdge + length;
  } else if (nearAnchor.kind == kAnchorKeep && farAnchor.kind != kAnchorKeep) {
    span.nearEdge = span.farEdge - length;
  }
  return span;
}

}  // namespace

void ControlPane::LayoutChildren() {
  ChildWalk walk(*this, ChildWalk::Direction::kFromTop);
  while (ControlPane* const child = walk.Next()) child->ApplyAnchors();
}

void ControlPane::ApplyAnchors() {
  if (owner == nullptr) return;
  const Rect area = owner->GetLocalBounds();
  const Span across =
      Anchored(leftAnchor, rightAnchor, {bounds.left, bounds.right}, {area.left, area.right});
  const Span down =
      Anchored(topAnchor, bottomAnchor, {bounds.top, bounds.bottom}, {area.top, area.bottom});
  const Rect anchored = {SaturatedInt(across.nearEdge), SaturatedInt(down.nearEdge),
                         SaturatedInt(across.farEdge), SaturatedInt(down.farEdge)};
  if (anchored == bounds) return;
  SetBounds(anchored);
  LayoutChildren();
}

LayoutAnchor* ControlPane::LeftAnchor() {
  return &leftAnchor;
}

LayoutAnchor* ControlPane::RightAnchor() {
  return &rightAnchor;
}

LayoutAnchor* ControlPane::TopAnchor() {
  return &topAnchor;
}

LayoutAnchor* ControlPane::BottomAnchor() {
  return &bottomAnchor;
}
