// The place of the presets' drop-down in the panel.
#include "gradient/GraphPresetPanel.h"

#include <memory>

#include "gradient/PanelChildren.h"
#include "gradient/QvPresetDropDown.h"

namespace {

constexpr int32_t kSideMargin = 2;
constexpr int32_t kDropDownHeight = 18;

}  // namespace

GraphPresetPanel::GraphPresetPanel(ControlPane* ownerPane, const Rect& initialBounds,
                                   const QvPresetSource* source, QvPresetListener* listener)
    : ControlPane(ownerPane, initialBounds) {
  const Rect area = GetLocalBounds();
  const Rect place = {area.left + kSideMargin, area.top, area.right - kSideMargin,
                      area.top + kDropDownHeight};
  auto* const dropDown = AddTo(*this, std::make_unique<QvPresetDropDown>(this, place));
  dropDown->SetSource(source);
  dropDown->SetListener(listener);
}
