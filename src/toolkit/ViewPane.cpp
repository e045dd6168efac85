// A window on a content that is larger: it shows the part that was moved into it.
#include "toolkit/ViewPane.h"

#include <algorithm>

namespace {

int32_t Held(int32_t offset, int32_t content, int32_t view) {
  return std::clamp(offset, 0, std::max(content - std::max(view, 0), 0));
}

}  // namespace

bool ViewPane::SetContent(ControlPane* newContent) {
  if (newContent == GetContent()) return true;
  if (newContent != nullptr) {
    AddChild(newContent, true);
    if (!ContainsChild(newContent)) return false;
  }
  ControlPane* const old = GetContent();
  content = newContent;
  if (newContent != nullptr) newContent->MoveTo(0, 0);
  if (old != nullptr) DeleteChild(old);
  return true;
}

ControlPane* ViewPane::GetContent() const {
  return content && ContainsChild(content.Get()) ? content.Get() : nullptr;
}

Point ViewPane::ContentSize() const {
  if (GetContent() == nullptr) return {};
  const Rect local = GetContent()->GetLocalBounds();
  return {std::max(local.right, 0), std::max(local.bottom, 0)};
}

void ViewPane::SetOffset(const Point& wanted) {
  if (GetContent() == nullptr) return;
  const Point size = ContentSize();
  const Rect local = GetLocalBounds();
  content->MoveTo(-Held(wanted.x, size.x, local.right), -Held(wanted.y, size.y, local.bottom));
}

Point ViewPane::GetOffset() const {
  if (GetContent() == nullptr) return {};
  const Rect place = GetContent()->GetBounds();
  return {-std::min(place.left, 0), -std::min(place.top, 0)};
}
