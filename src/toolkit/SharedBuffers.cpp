// The one screen buffer.
#include "toolkit/SharedBuffers.h"

#include <algorithm>

#include "drawing/Labeler.h"

namespace {

// One object for the library's life, so that a paint that is under way keeps a valid buffer even
// if a panel is made or all are destroyed in the middle of it; only its pixels come and go.
NativeImageBuffer& Shared() {
  static NativeImageBuffer buffer;
  return buffer;
}

}  // namespace

NativeImageBuffer* ScreenBuffer() {
  NativeImageBuffer& buffer = Shared();
  return buffer.Width() > 0 ? &buffer : nullptr;
}

ImageBuffer* ScratchBuffer() {
  return nullptr;
}

NativeImageBuffer& MakeScreenBuffer(int32_t width, int32_t height) {
  NativeImageBuffer& buffer = Shared();
  DestroyScreenBuffer();
  buffer.Allocate(width, height, false);
  return buffer;
}

bool EnsureScreenBuffer(int32_t width, int32_t height) {
  const NativeImageBuffer& buffer = Shared();
  const int32_t wantedWidth = std::max(width, buffer.Width());
  const int32_t wantedHeight = std::max(height, buffer.Height());
  if (wantedWidth == buffer.Width() && wantedHeight == buffer.Height()) return false;
  if (wantedWidth < 1 || wantedHeight < 1) return false;
  MakeScreenBuffer(wantedWidth, wantedHeight);
  return true;
}

void ScaleScreenBuffer(float scale) {
  NativeImageBuffer* const buffer = ScreenBuffer();
  if (buffer == nullptr) return;
  buffer->SetScale(scale);
  buffer->SetScaleAware(true);
  SetScreenScale(scale);
}

void DestroyScreenBuffer() {
  SetScreenScale(1.0F);
  Shared().Release();
}
