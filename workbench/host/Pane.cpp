// Keeps the rectangle that is to be drawn anew.
#include "workbench/host/Pane.h"

#include <algorithm>

Pane::Pane(const PF_UnionableRect& rowFrame) : frame(rowFrame) {
  context.w_type = PF_Window_EFFECT;
}

void Pane::Invalidate(const PF_Rect* rect) {
  if (rect == nullptr) {
    invalid = frame;
    return;
  }
  const PF_UnionableRect seen{std::max(rect->left, frame.left), std::max(rect->top, frame.top),
                              std::min(rect->right, frame.right),
                              std::min(rect->bottom, frame.bottom)};
  if (seen.right <= seen.left || seen.bottom <= seen.top) return;
  if (!invalid) {
    invalid = seen;
    return;
  }
  invalid = {std::min(invalid->left, seen.left), std::min(invalid->top, seen.top),
             std::max(invalid->right, seen.right), std::max(invalid->bottom, seen.bottom)};
}

PF_UnionableRect Pane::TakeInvalid() {
  const PF_UnionableRect taken = invalid.value_or(frame);
  invalid.reset();
  return taken;
}
