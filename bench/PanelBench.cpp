// What a repaint of a whole panel costs beside one of a single button, and what a mouse move costs.
#include <benchmark/benchmark.h>

#include <cstdint>

#include "toolkit/CustomPanel.h"
#include "toolkit/QvButton.h"
#include "toolkit/SharedBuffers.h"

namespace {

constexpr Rect kPanelBounds = {0, 0, 306, 130};
constexpr int32_t kColumns = 5;
constexpr int32_t kRows = 2;

class FilledControl : public ControlPane {
 public:
  using ControlPane::ControlPane;
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override {
    const Rect area = {position.x, position.y, position.x + rect.right - rect.left,
                       position.y + rect.bottom - rect.top};
    buffer.FillRect(area, ThemeColors::Gray102, 256, &area);
  }
};

class LabelledButton : public QvButton {
 public:
  LabelledButton(ControlPane* ownerPane, const Rect& place)
      : QvButton(ownerPane, place, nullptr, false, nullptr) {
    onLabel = offLabel = "Reverse";
  }
};

// The host that takes what is painted, and no time.
struct StillHost : public PluginContext {
  bool BlitToHost(const NativeImageBuffer& buffer, int32_t srcX, int32_t srcY, int32_t /*width*/,
                  int32_t /*height*/, int32_t /*dstX*/, int32_t /*dstY*/) override {
    benchmark::DoNotOptimize(buffer.Row(srcY) + srcX);
    return true;
  }
};

struct StillWindow : public WindowContext {
  Rect GetClientRect() const override { return {}; }
  Point GetMousePosition() const override { return {}; }
  Modifiers GetModifiers() const override { return {}; }
  void ShowCursor(bool /*show*/) override {}
  void SetMousePosition(const Point& /*point*/) override {}
  void SetScreenMousePosition(const Point& /*point*/) override {}
  Point GetScreenMousePosition() const override { return {}; }
};

// Ten controls of 50 x 40 on a panel at scale 2.
template <typename Control>
struct TenControls {
  TenControls() {
    MakeScreenBuffer(1024, 1024);
    ScaleScreenBuffer(2.0F);
    panel.SetPluginContext(&host);
    panel.SetWindowContext(&window);
    for (int32_t index = 0; index < kColumns * kRows; ++index) {
      const int32_t left = 8 + index % kColumns * 60;
      const int32_t top = 15 + index / kColumns * 60;
      panel.AddChild(new Control(&panel, {left, top, left + 50, top + 40}), true);
    }
  }

  StillHost host;
  StillWindow window;
  CustomPanel panel{kPanelBounds, 1};
};

void CountPixels(benchmark::State& state, const Rect& area) {
  const int64_t pixels = int64_t{area.right - area.left} * (area.bottom - area.top) * 4;
  state.SetItemsProcessed(state.iterations() * pixels);
}

template <typename Control>
void RepaintPanel(benchmark::State& state) {
  TenControls<Control> ten;
  while (state.KeepRunning()) ten.panel.RedrawSelf();
  CountPixels(state, kPanelBounds);
}
BENCHMARK(RepaintPanel<FilledControl>);
BENCHMARK(RepaintPanel<LabelledButton>);

template <typename Control>
void RepaintOneControl(benchmark::State& state) {
  TenControls<Control> ten;
  ControlPane* const control = ten.panel.GetFirstChild();
  while (state.KeepRunning()) control->RedrawSelf();
  CountPixels(state, control->GetBounds());
}
BENCHMARK(RepaintOneControl<FilledControl>);
BENCHMARK(RepaintOneControl<LabelledButton>);

void MoveMouse(benchmark::State& state) {
  TenControls<FilledControl> ten;
  int32_t x = 0;
  while (state.KeepRunning()) {
    x = (x + 7) % kPanelBounds.right;
    benchmark::DoNotOptimize(ten.panel.MouseOver({x, 30}, {}));
  }
}
BENCHMARK(MoveMouse);

}  // namespace
