// The pointer's own movement, as the events have it.
#include <cstdint>

#include "platform/RawMouse.h"

namespace {

PointerPosition lastCursorPoint;

float Distance(int32_t from, int32_t to) {
  return static_cast<float>(int64_t{to} - from);
}

}  // namespace

void StartRawMouse(void* /*window*/, const PointerPosition& position) {
  lastCursorPoint = position;
}

void ReadMouseDelta(const PointerPosition& position, float* dx, float* dy) {
  *dx = Distance(lastCursorPoint.x, position.x);
  *dy = Distance(lastCursorPoint.y, position.y);
  lastCursorPoint = position;
}

void StopRawMouse() {}
