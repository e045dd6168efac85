// Steps from child to child; a control tells its walks before it takes a child out.
#include "toolkit/ChildWalk.h"

#include "toolkit/ControlPane.h"

ChildWalk::ChildWalk(ControlPane& walkedPane, Direction direction)
    : pane(&walkedPane),
      remaining(walkedPane.children.size()),
      upward(direction == Direction::kFromBottom),
      next(walkedPane.firstWalk),
      pointerToThis(&walkedPane.firstWalk) {
  at = pane->children.begin();
  if (upward && remaining > 0) at = std::prev(pane->children.end());
  pane->firstWalk = this;
  if (next != nullptr) next->pointerToThis = &next;
}

ChildWalk::~ChildWalk() {
  End();
}

void ChildWalk::StartAt(const ControlPane& child) {
  at = child.placeInOwner;
}

ControlPane* ChildWalk::Next() {
  if (pane == nullptr || remaining == 0 || at == pane->children.end()) return nullptr;
  ControlPane* const child = *at;
  --remaining;
  Step();
  return child;
}

void ChildWalk::Step() {
  if (!upward) {
    ++at;
  } else if (at == pane->children.begin()) {
    at = pane->children.end();
  } else {
    --at;
  }
}

void ChildWalk::End() {
  if (pane == nullptr) return;
  *pointerToThis = next;
  if (next != nullptr) next->pointerToThis = pointerToThis;
  pane = nullptr;
}
