// Specimens of what moves along a track: sliders, scroll bars, and panes that scroll.
#include "drawing/Labeler.h"
#include "toolkit/CustomControl.h"
#include "toolkit/Divider.h"
#include "toolkit/ScrollPane.h"
#include "toolkit/Slider.h"
#include "tools/specimens/Pages.h"
#include "tools/specimens/StockPanel.h"

namespace {

ControlPane* MakeSlider(ControlPane& panel, const Rect& place) {
  auto* slider = new Slider(&panel, place, 0.0, 100.0);
  slider->SetValue(40.0);
  return slider;
}

ControlPane* MakeBar(ControlPane& panel, const Rect& place) {
  auto* bar = new ScrollBar(&panel, place);
  const bool across = place.right - place.left > place.bottom - place.top;
  bar->SetExtent(200, across ? place.right - place.left : place.bottom - place.top);
  bar->SetPosition(60);
  return bar;
}

// A content larger than its view, scrolled a bit; the pane deletes it.
ScrollPane* MakePane(ControlPane& panel, const Rect& place, const Point& contentSize,
                     ChequeredClient& client) {
  auto* pane = new ScrollPane(&panel, place, 12, 12);
  pane->SetContent(
      new CustomControl(pane->GetView(), {0, 0, contentSize.x, contentSize.y}, &client));
  pane->ScrollTo({25, 15});
  return pane;
}

}  // namespace

void DrawRangePage(ImageBuffer& page) {
  SetScreenScale(page.Scale());
  ChequeredClient client;
  StockPanel panel;
  panel.AddControls("Slider", {100, 18}, MakeSlider);
  panel.AddControls("Slider, upright", {18, 64}, MakeSlider);
  panel.AddControls("Scroll bar", {100, 14}, MakeBar);
  panel.AddControls("Bar, upright", {14, 64}, MakeBar);
  panel.AddControls("Both bars", {100, 54}, [&client](ControlPane& owner, const Rect& place) {
    return MakePane(owner, place, {160, 120}, client);
  });
  panel.AddControls("As needed", {100, 42}, [&client](ControlPane& owner, const Rect& place) {
    return MakePane(owner, place, {60, 90}, client);
  });
  panel.AddControls("Divider", {100, 8}, [](ControlPane& owner, const Rect& place) {
    return new Divider(&owner, place);
  });
  panel.AddControls("Divider, upright", {8, 22}, [](ControlPane& owner, const Rect& place) {
    return new Divider(&owner, place);
  });
  panel.PaintSpecimens(page);
  SetScreenScale(1.0F);
}
