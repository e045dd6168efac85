// A bar that drops a menu of presets.
#include "gradient/QvPresetDropDown.h"

#include "drawing/Labeler.h"
#include "drawing/SharedPainter.h"
#include "gradient/RampColor.h"
#include "platform/SaturatedInt.h"
#include "toolkit/MenuControl.h"
#include "toolkit/PaintArea.h"
#include "toolkit/ThemeColors.h"
#include "toolkit/TopControlPane.h"

namespace {

constexpr const char* kTitle = "PRESETS";
constexpr const char* kRowLabel = "preset";  // of the rows, which show pictures in its place
constexpr int32_t kTitleInset = 8;
constexpr ColorBGRA kBar = Gray(23);
constexpr int32_t kBarOpacity = 255;
constexpr int32_t kDisabledBarOpacity = 60;
constexpr ColorBGRA kText = Gray(197);
constexpr ColorBGRA kDisabledText = Gray(64);
constexpr double kArrowRadius = 1.0;

void DrawArrow(ImageBuffer& buffer, const Rect& bar, ColorBGRA color, const Rect& clip) {
  const double right = bar.right;
  const double top = bar.top;
  SharedPath().SetRoundTriangle({right - 18, top + 7}, {right - 8, top + 7},
                                {right - 13, static_cast<double>(bar.bottom) - 4}, kArrowRadius);
  SharedRasterizer().DrawPath(SharedPath(), buffer, color, 256, false, &clip, nullptr, 0.0);
}

}  // namespace

QvPresetDropDown::QvPresetDropDown(ControlPane* ownerPane, const Rect& initialBounds)
    : ControlPane(ownerPane, initialBounds), menu(std::make_unique<QvPresetMenu>(this)) {}

void QvPresetDropDown::SetSource(const QvPresetSource* newSource) {
  source = newSource;
  menu->SetMenu(nullptr);
  menu->EnsureMenu();
  MenuControl& list = *menu->GetList();
  const int32_t count = source != nullptr ? source->GetPresetCount() : 0;
  for (int32_t i = 0; i < count; ++i) list.AddLabel(kRowLabel);
  menu->RebuildMenu();
}

void QvPresetDropDown::SetListener(QvPresetListener* newListener) {
  listener = newListener;
}

void QvPresetDropDown::OnMouseDown(WindowContext* /*context*/, const Point& /*point*/) {
  TopControlPane* const root = GetTopOwnerPtr();
  if (root == nullptr) return;
  if (root->GetPopup() != nullptr) {
    root->HidePopup();
    return;
  }
  Point corner = {0, GetLocalBounds().bottom};
  LocalToGlobalPoint(&corner);
  menu->ShowAt(*root, corner, root->GetGlobalBounds());
}

void QvPresetDropDown::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  const bool enabled = IsEnabled();
  buffer.FillRect(area.bounds, kBar, enabled ? kBarOpacity : kDisabledBarOpacity, &area.clip);

  TextStyle style;
  style.color = enabled ? kText : kDisabledText;
  style.background = ThemeColors::Black;
  style.clip = &area.clip;
  Rect title = area.bounds;
  title.left = SaturatedInt(int64_t{title.left} + kTitleInset);
  SharedLabeler().SetFont(&FontSmall());
  SharedLabeler().DrawStringInRect(buffer, kTitle, title, TextAlignment::kLeft, style);
  DrawArrow(buffer, area.bounds, style.color, area.clip);
}
