// Loads an icon for the screen that panels are painted on.
#include "gradient/PanelIcon.h"

#include "drawing/ScaledIcon.h"
#include "platform/LibraryModule.h"
#include "toolkit/SharedBuffers.h"

std::unique_ptr<NativeImageBuffer> LoadPanelIcon(const char* fileName) {
  const NativeImageBuffer* const screen = ScreenBuffer();
  const float scale = screen != nullptr ? screen->Scale() : 1.0F;
  auto icon = std::make_unique<NativeImageBuffer>();
  LoadScaledIcon(*icon, fileName, libraryModule, scale, scale != 1.0F);
  return icon;
}
