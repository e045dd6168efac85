// A pointer that only this program moves: a plug-in has no display of its own here.
#include "platform/Pointer.h"

namespace {

PointerPosition lastPosition;

}  // namespace

PointerPosition GetPointerPosition() {
  return lastPosition;
}

void SetPointerPosition(const PointerPosition& position) {
  lastPosition = position;
}

PointerPosition GetScreenExtent() {
  return {};
}

std::optional<bool> IsPointerShown() {
  return std::nullopt;
}

void ShowPointer(bool /*show*/) {}
