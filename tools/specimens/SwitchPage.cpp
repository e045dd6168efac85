// Specimens of what is switched by a press: tabs, groups, and further kinds of buttons.
#include "drawing/Labeler.h"
#include "toolkit/ButtonWithIconAndCenteredText.h"
#include "toolkit/Checkbox.h"
#include "toolkit/CloseButton.h"
#include "toolkit/CustomControl.h"
#include "toolkit/GroupControl.h"
#include "toolkit/IconicButton.h"
#include "toolkit/TabControl.h"
#include "toolkit/ThemeColors.h"
#include "toolkit/Twirly.h"
#include "tools/specimens/DemoIcon.h"
#include "tools/specimens/Pages.h"
#include "tools/specimens/StockPanel.h"

namespace {

ControlPane* MakeTabs(ControlPane& panel, const Rect& place) {
  auto* tabs = new TabControl(&panel, place);
  for (const char* caption : {"Map", "Curve"}) tabs->AddTab(caption);
  return tabs;
}

ControlPane* MakeTextGroup(ControlPane& panel, const Rect& place) {
  auto* group = new GroupControl(&panel, place);
  for (const char* text : {"R", "G", "B"}) group->AddTextCell(text);
  return group;
}

template <typename Kind, bool kOn>
ControlPane* MakeToggle(ControlPane& panel, const Rect& place) {
  auto* toggle = new Kind(&panel, place);
  toggle->SetLabels("Loop", "Loop");
  toggle->SetOn(kOn);
  return toggle;
}

template <bool kOpen>
ControlPane* MakeTwirly(ControlPane& panel, const Rect& place) {
  auto* twirly = new Twirly(&panel, place);
  twirly->SetOpen(kOpen);
  return twirly;
}

template <typename Kind>
ControlPane* MakeIconButton(ControlPane& panel, const Rect& place, float scale) {
  auto* button = new Kind(&panel, place, nullptr, false, nullptr);
  button->SetLabels("Flip", "Flip");
  button->SetIcon(kButtonNormal, MakeDemoIcon("Flip_Normal.png", scale));
  button->SetIcon(kButtonOver, MakeDemoIcon("Flip_Over.png", scale));
  return button;
}

// A square that is dark, and beside it one that is lit.
void DrawLamps(ImageBuffer& strip) {
  strip.Allocate(24, 12, false);
  strip.FillRect({1, 1, 11, 11}, ThemeColors::Gray76, 256, nullptr);
  strip.FillRect({13, 1, 23, 11}, ThemeColors::Orange, 256, nullptr);
}

}  // namespace

void DrawSwitchPage(ImageBuffer& page) {
  SetScreenScale(page.Scale());
  const float scale = page.Scale();
  ImageBuffer strip;
  DrawLamps(strip);
  ChequeredClient client;
  StockPanel panel;
  panel.AddControls("Tabs", {100, 20}, MakeTabs);
  panel.AddControls("Group", {100, 20}, MakeTextGroup);
  panel.AddControls("Group of strips", {100, 20}, [&strip](ControlPane& owner, const Rect& place) {
    auto* group = new GroupControl(&owner, place);
    for (int32_t i = 0; i < 3; ++i) group->AddStripCell(&strip);
    return group;
  });
  panel.AddControls("Toggle", {60, 20}, MakeToggle<ToggleButton, false>);
  panel.AddControls("Toggle, on", {60, 20}, MakeToggle<ToggleButton, true>);
  panel.AddControls("Check box", {60, 18}, MakeToggle<Checkbox, false>);
  panel.AddControls("Check box, on", {60, 18}, MakeToggle<Checkbox, true>);
  panel.AddControls("Close", {18, 18}, [](ControlPane& owner, const Rect& place) {
    return new CloseButton(&owner, place);
  });
  panel.AddControls("Iconic", {24, 20}, [scale](ControlPane& owner, const Rect& place) {
    return MakeIconButton<IconicButton>(owner, place, scale);
  });
  panel.AddControls("Icon and text", {80, 20}, [scale](ControlPane& owner, const Rect& place) {
    return MakeIconButton<ButtonWithIconAndCenteredText>(owner, place, scale);
  });
  panel.AddControls("Twirly", {16, 16}, MakeTwirly<false>);
  panel.AddControls("Twirly, open", {16, 16}, MakeTwirly<true>);
  panel.AddControls("Custom", {60, 20}, [&client](ControlPane& owner, const Rect& place) {
    return new CustomControl(&owner, place, &client);
  });
  panel.PaintSpecimens(page);
  SetScreenScale(1.0F);
}
