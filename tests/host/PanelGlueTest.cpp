// Catches a panel that hears something else than the host said, and one that is left with pointers
// into a call that is over.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "engine/ExceptionInfo.h"
#include "platform/HeldKeys.h"
#include "toolkit/CustomPanel.h"
#include "toolkit/PanelRegistry.h"
#include "toolkit/WindowContext.h"
#include "workbench/host/PanelRow.h"

extern "C" PF_Err EntryPointFunc(PF_Cmd cmd, PF_InData* in_data, PF_OutData* out_data,
                                 PF_ParamDef* params[], PF_LayerDef* output, void* extra);

namespace {

constexpr int32_t kColorMapRow = 12;

// Takes down what it hears, and does what a test asks of it.
class ProbePanel : public CustomPanel {
 public:
  ProbePanel() : CustomPanel({0, 0, 306, 130}, kColorMapRow) {}

  bool MouseDown(const Point& point, const Modifiers& down, bool isDouble, int32_t) override {
    downPoint = point;
    doubleClick = isDouble;
    keys.clear();
    for (const bool key : {down.shift, down.alt, down.command, down.control}) {
      keys += key ? '1' : '0';
    }
    const auto act = onPress;  // the panel may be gone behind it
    if (act) act(*this);
    return true;
  }
  void MouseDrag(const Point&, float dx, float dy, const Modifiers&, int32_t) override {
    movement = {dx, dy};
    ++drags;
  }
  int32_t GetCursorAt(WindowContext*, const Point&, const Modifiers&) override { return cursor; }

  using CustomPanel::doubleClick;
  using CustomPanel::downPoint;
  std::string keys;  // shift, alt, command, control
  std::pair<float, float> movement;
  int32_t cursor = 0;
  int32_t drags = 0;
  std::function<void(ProbePanel& panel)> onPress;
};

struct PanelGlue : testing::Test {
  PanelGlue() {
    EXPECT_EQ(host.Send(PF_Cmd_GLOBAL_SETUP).error, 0);
    EXPECT_EQ(host.Send(PF_Cmd_PARAMS_SETUP).error, 0);
    effect = std::make_unique<EffectInstance>(host.Parameters(), comp.AddLayer("layer", nullptr));
    EXPECT_EQ(host.Send(PF_Cmd_SEQUENCE_SETUP, effect.get()).error, 0);
    row =
        std::make_unique<PanelRow>(host, *effect, kColorMapRow, PF_UnionableRect{10, 40, 316, 170},
                                   [](const CommandResult& result) {
                                     EXPECT_TRUE(result.broken.empty()) << result.broken.front();
                                     EXPECT_EQ(result.error, PF_Err_NONE);
                                   });
    RegisterCustomPanel(std::unique_ptr<CustomPanel>(panel));
  }
  ~PanelGlue() override {
    EXPECT_EQ(host.Send(PF_Cmd_SEQUENCE_SETDOWN, effect.get()).error, 0);
    EXPECT_EQ(host.Send(PF_Cmd_GLOBAL_SETDOWN).error, 0);
  }

  Comp comp;
  EffectHost host{EntryPointFunc};
  std::unique_ptr<EffectInstance> effect;
  std::unique_ptr<PanelRow> row;
  ProbePanel* panel = new ProbePanel;  // the registry's
};

TEST_F(PanelGlue, KeysClicksMovementAndCursorsArriveAsTheyShould) {
  constexpr std::pair<PF_Modifiers, const char*> kKeys[] = {
      {PF_Mod_NONE, "0000"},
      {PF_Mod_SHIFT_KEY, "1000"},
      {PF_Mod_OPT_ALT_KEY, "0100"},
      {PF_Mod_CMD_CTRL_KEY, "0011"},
      {PF_Mod_CAPS_LOCK_KEY | PF_Mod_MAC_CONTROL_KEY, "0000"}};
  for (const auto& [keys, expected] : kKeys) {
    row->Click({40, 20}, keys, 2);
    EXPECT_EQ(panel->keys, expected);
  }
  EXPECT_TRUE(panel->doubleClick);
  row->Click({40, 20}, PF_Mod_NONE, 3);
  EXPECT_FALSE(panel->doubleClick);
  EXPECT_EQ(panel->downPoint, (Point{50, 60}));
  using Movement = std::pair<float, float>;
  constexpr std::pair<PF_Point, Movement> kDrags[] = {
      {{43, 18}, {3, -2}}, {{43, 18}, {0, 0}}, {{INT32_MAX, INT32_MIN}, {0x1p31F, -0x1p31F}}};
  for (const auto& [point, movement] : kDrags) {
    row->Drag(point);
    EXPECT_EQ(row->lastEvent.evt_out_flags, PF_EO_HANDLED_EVENT) << "nothing was painted";
    EXPECT_EQ(panel->movement, movement);
  }
  constexpr PF_CursorType kHostCursors[] = {2, 2, 2, 2, 2, 24, 26, 2,  8, 2,
                                            2, 2, 2, 2, 2, 2,  2,  27, 2};
  for (panel->cursor = 0; panel->cursor < 19; ++panel->cursor) {
    EXPECT_EQ(row->Move({9, 9}), kHostCursors[panel->cursor]) << panel->cursor;
  }
}

TEST_F(PanelGlue, AnEventLendsThePanelItsWindowAndIsAloneWithIt) {
  panel->onPress = [this](ProbePanel& probe) {
    const WindowContext* const window = probe.GetWindowContext();
    EXPECT_EQ(window->GetClientRect(), (Rect{10, 40, 316, 170}));
    EXPECT_EQ(probe.GetGlobalBounds(), window->GetClientRect());
    EXPECT_EQ(window->GetMousePosition(), (Point{50, 60}));
    const std::optional<HeldKeys> held = GetHeldKeys();
    EXPECT_EQ(window->GetModifiers().shift, !held || held->shift);
    PF_EventExtra within = row->lastEvent;
    within.e_type = PF_Event_DRAG;
    EXPECT_EQ(host.SendEvent(*effect, within, {&row->pane}).outFlags, 0) << "the panel is taken";
    EXPECT_EQ(probe.GetWindowContext(), window);
  };
  row->Draw();
  row->Click({40, 20}, PF_Mod_SHIFT_KEY);
  EXPECT_EQ(panel->drags, 0);
  EXPECT_EQ(panel->GetWindowContext(), nullptr);
  EXPECT_EQ(panel->GetPluginContext(), nullptr);
  row->Drag({40, 20});
  EXPECT_EQ(panel->drags, 1) << "free again";
}

TEST_F(PanelGlue, WhatIsThrownOrGoneEndsTheEventAndNothingElse) {
  panel->onPress = [](ProbePanel&) { throw App::ExceptionInfo{App::kOutOfMemory, nullptr}; };
  row->Click({40, 20});
  EXPECT_EQ(row->lastEvent.evt_out_flags, 0) << "the rest is left out";
  EXPECT_EQ(panel->GetWindowContext(), nullptr);
  panel->onPress = [](ProbePanel&) { DestroyCustomPanels(); };
  row->Click({40, 20});
  EXPECT_EQ(row->lastEvent.evt_out_flags, PF_EO_HANDLED_EVENT | PF_EO_ALWAYS_UPDATE);
  row->Draw();
  EXPECT_EQ(row->lastEvent.evt_out_flags, 0) << "no panel, no event";
}

}  // namespace
