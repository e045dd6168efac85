// Specimens of controls with a caption, of the popups that they drop, and of a root of its own.
#include <memory>
#include <string>
#include <vector>

#include "drawing/Labeler.h"
#include "toolkit/QvButton.h"
#include "toolkit/SimpleTopControlPane.h"
#include "toolkit/TitledCheckbox.h"
#include "toolkit/TitledPopup.h"
#include "toolkit/TitledScrollingPopup.h"
#include "toolkit/TitledToggle.h"
#include "tools/specimens/Pages.h"
#include "tools/specimens/StockPanel.h"

namespace {

constexpr Point kSize = {102, 20};
constexpr int32_t kTitleWidth = 40;

std::vector<std::string> Choices(int32_t count) {
  std::vector<std::string> choices;
  for (int32_t i = 1; i <= count; ++i) choices.push_back("Band " + std::to_string(i));
  return choices;
}

template <typename Kind, int32_t kCount>
ControlPane* MakeDropDown(ControlPane& panel, const Rect& place) {
  auto* dropDown = new Kind(&panel, place, "Band", kTitleWidth);
  dropDown->SetChoices(Choices(kCount));
  dropDown->SetChosen(1);
  return dropDown;
}

// A drop-down opened by a press on it, the pointer over a row of the popup.
template <typename Kind, int32_t kCount>
void PaintOpen(StockPanel& panel, ImageBuffer& page, const Point& place) {
  const std::unique_ptr<ControlPane> dropDown(
      MakeDropDown<Kind, kCount>(panel, {place.x, place.y, place.x + kSize.x, place.y + kSize.y}));
  panel.AddChild(dropDown.get(), true);
  const Point pointer = {place.x + kSize.x - 10, place.y + 10};
  panel.MouseDown(pointer, {}, false, kLeftButton);
  panel.MouseUp(pointer, kLeftButton);
  panel.MouseOver({pointer.x, place.y + kSize.y + 64}, {});
  panel.DrawTree(dropDown->GetBounds(), {0, 0}, page);
  if (panel.GetPopup() != nullptr) panel.DrawTree(panel.GetPopup()->GetBounds(), {0, 0}, page);
  panel.MouseDown(pointer, {}, false, kLeftButton);
  panel.MouseUp(pointer, kLeftButton);
  panel.RemoveChild(dropDown.get());
}

void PaintRoot(ImageBuffer& page, const Point& place) {
  SimpleTopControlPane root({0, 0, 120, 60});
  root.SetBackground(ThemeColors::Gray51);
  auto* button = new QvButton(&root, {20, 20, 100, 40}, nullptr, false, nullptr);
  button->SetLabels("On its own", "On its own");
  root.AddChild(button, true);
  root.DrawTree(root.GetLocalBounds(), {-place.x, -place.y}, page);
}

}  // namespace

void DrawTitledPage(ImageBuffer& page) {
  SetScreenScale(page.Scale());
  StockPanel panel;
  panel.AddControls("Toggle", kSize, [](ControlPane& owner, const Rect& place) {
    return new TitledToggle(&owner, place, "Loop", kTitleWidth);
  });
  panel.AddControls("Check box", kSize, [](ControlPane& owner, const Rect& place) {
    auto* box = new TitledCheckbox(&owner, place, "Loop", kTitleWidth);
    box->GetCheckbox()->SetLabels("is on", "is off");
    return box;
  });
  panel.AddControls("Popup", kSize, MakeDropDown<TitledPopup, 4>);
  panel.AddControls("Scrolling popup", kSize, MakeDropDown<TitledScrollingPopup, 30>);
  const int32_t top = panel.NextTop() + 12;
  panel.AddCaption({84, top}, "Open");
  panel.AddCaption({440, top}, "A root of its own");
  panel.PaintSpecimens(page);
  PaintOpen<TitledPopup, 4>(panel, page, {84, top + 16});
  PaintOpen<TitledScrollingPopup, 30>(panel, page, {262, top + 16});
  PaintRoot(page, {440, top + 16});
  SetScreenScale(1.0F);
}
