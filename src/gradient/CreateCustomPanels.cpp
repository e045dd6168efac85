// The screen buffer and the colour map's panel.
#include "gradient/CreateCustomPanels.h"

#include <cstdint>
#include <memory>

#include "gradient/GradientPanel.h"
#include "toolkit/PanelRegistry.h"
#include "toolkit/SharedBuffers.h"

namespace {

constexpr int32_t kScreenBufferSide = 1024;
constexpr float kScreenBufferScale = 2.0F;
constexpr int32_t kColorMapPanelId = 12;
constexpr int32_t kColorMapPanelWidth = 306;
constexpr int32_t kColorMapPanelHeight = 130;

}  // namespace

void CreateCustomPanels() {
  try {
    if (ScreenBuffer() == nullptr) MakeScreenBuffer(kScreenBufferSide, kScreenBufferSide);
    ScaleScreenBuffer(kScreenBufferScale);
    RegisterCustomPanel(std::make_unique<GradientPanel>(
        kColorMapPanelId, kColorMapPanelWidth, kColorMapPanelHeight, GradientPanel::Options{}));
  } catch (...) {
    throw "CreateCustomPanels failed!";
  }
}
