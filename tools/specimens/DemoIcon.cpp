// The panels' own icons, for a picture of scale 1 or 2.
#include "tools/specimens/DemoIcon.h"

#include <memory>

#include "platform/LibraryModule.h"

NativeImageBuffer* MakeDemoIcon(const char* fileName, float scale) {
  auto icon = std::make_unique<NativeImageBuffer>();
  icon->CreateWithResource(fileName, libraryModule, 2.0F);
  if (scale == 2.0F) return icon.release();
  auto reduced = std::make_unique<NativeImageBuffer>();
  reduced->Allocate(icon->Width() / 2, icon->Height() / 2, false);
  ImageBuffer::ScaleOptions options;
  options.boxFilter = true;
  icon->ScaleTo(*reduced, icon->Bounds(), reduced->Bounds(), nullptr, options);
  return reduced.release();
}
