// The list of a drop-down of presets: a row is the picture of a preset.
#include "gradient/QvMenuControl.h"

#include "drawing/SharedPainter.h"
#include "gradient/QvPresetDropDown.h"
#include "gradient/RampColor.h"
#include "toolkit/PaintArea.h"
#include "toolkit/RectAlgebra.h"

namespace {

constexpr ColorBGRA kFill = Gray(60);
constexpr double kCornerRadius = 1.0;
constexpr const char* kDiamond = "u";  // in FontSymbols

}  // namespace

QvMenuControl::QvMenuControl(QvPresetDropDown& ownerDropDown, const Font* rowFont)
    : MenuControl(nullptr, Rect{}, rowFont), dropDown(&ownerDropDown) {
  unclamped = false;
}

QvPresetDropDown* QvMenuControl::GetDropDown() const {
  return static_cast<QvPresetDropDown*>(dropDown.Get());
}

void QvMenuControl::RebuildItems(const std::vector<std::string>* newLabels) {
  MenuControl::RebuildItems(newLabels);
  if (!dropDown) return;
  bounds.right = SaturatedInt(int64_t{bounds.left} + dropDown->GetLocalBounds().right);
}

void QvMenuControl::OnMouseUp(WindowContext* context, const Point& point) {
  const ControlWatch self(this);
  MenuControl::OnMouseUp(context, point);
  if (!self || !dropDown) return;
  QvPresetListener* const listener = GetDropDown()->GetListener();
  if (listener != nullptr) listener->PresetSelected(selectedIndex);
}

void QvMenuControl::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  if (items.empty()) return;
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  SharedPath().SetRoundRect(area.bounds, kCornerRadius, true, true, true, true);
  SharedRasterizer().DrawPath(SharedPath(), buffer, kFill, 256, false, &area.clip, nullptr, 0.0);
  PaintItems(rect, buffer, position);
}

void QvMenuControl::PaintItem(int32_t index, ImageBuffer& buffer, const Rect& rect,
                              const Rect& clip) {
  const MenuItem* const item = GetItem(index);
  if (item == nullptr) return;
  const QvPresetSource* const source = dropDown ? GetDropDown()->GetSource() : nullptr;
  if (source == nullptr || item->IsSeparator()) {
    PaintTextRow(index, buffer, rect, clip, {item->padX, kDiamond});
  } else {
    source->PaintPreset(index, buffer, rect, clip, index == hoverIndex);
  }
}
