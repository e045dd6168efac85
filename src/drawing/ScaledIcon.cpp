// Icons at the scale of what they are drawn on.
#include "drawing/ScaledIcon.h"

#include "drawing/FloatBufferRGBA.h"
#include "engine/ExceptionInfo.h"
#include "platform/Truncate.h"

namespace {

// Leaves the icon alone where the wanted size can't be had.
void Rescale(NativeImageBuffer& icon, float wantedScale) {
  const ImageBuffer source(static_cast<const ImageBuffer&>(icon));
  const auto scaled = [wantedScale](int32_t length) {
    return Truncate<int32_t>(static_cast<float>(length) * wantedScale);
  };
  const int32_t width = scaled(source.Width());
  const int32_t height = scaled(source.Height());
  FloatBufferRGBA before;
  FloatBufferRGBA after;
  if (!before.Allocate(source.Width(), source.Height(), true)) return;
  if (!after.Allocate(width, height, true)) return;
  icon.Allocate(width, height, false);
  before.ImportBGRA8(reinterpret_cast<const uint8_t*>(source.Row(0)), source.Width(),
                     source.Height(), source.RowBytes());
  FloatBufferRGBA::Resample(before, source.Width(), source.Height(), after, width, height);
  after.ExportBGRA8(width, height, icon.RowBytes(), reinterpret_cast<uint8_t*>(icon.Row(0)));
  icon.SetScale(wantedScale);
}

}  // namespace

void LoadScaledIcon(NativeImageBuffer& icon, const char* fileName, ModuleHandle module,
                    float wantedScale, bool rescale) {
  icon.CreateWithResource(fileName, module, wantedScale);
  if (!rescale || icon.Scale() == wantedScale) return;
  if (icon.Width() == 0) {
    icon.SetScale(wantedScale);
    return;
  }
  try {
    Rescale(icon, wantedScale);
  } catch (const App::ExceptionInfo&) {
    return;  // no memory: at its own scale the icon is drawn stretched
  }
}
