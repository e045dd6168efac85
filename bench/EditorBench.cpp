// What one step of a drag on the colour map's strip costs, and the repaint that follows it.
#include <benchmark/benchmark.h>

#include <cstdint>

#include "drawing/Labeler.h"
#include "gradient/GradientPanel.h"
#include "gradient/GradientStops.h"
#include "toolkit/SharedBuffers.h"
#include "tools/specimens/StillWindow.h"

namespace {

constexpr int32_t kStripLeft = 13;
constexpr int32_t kStripTop = 29;

Point OnStrip(int64_t x) {
  return {kStripLeft + static_cast<int32_t>(x), kStripTop + 24};
}

// Each event arms the panel as the host's glue does; the repaint is that of the draw event which
// follows, at the screen's scale.
class Drag {
 public:
  explicit Drag(int32_t stopCount) {
    NativeImageBuffer& screen = MakeScreenBuffer(1024, 1024);
    screen.SetScale(2.0F);
    screen.SetScaleAware(true);
    SetScreenScale(screen.Scale());
    ClearStops(view);
    for (int32_t i = 0; i < stopCount; ++i) InsertStop(view, i * 4, 0.2F, 0.4F, 0.6F);
    Arm();
    panel.MouseDown(OnStrip(4), {}, false, kLeftButton);
  }

  // Back and forth over the neighbours.
  Rect Step(int64_t step) {
    Arm();
    panel.MouseDrag(OnStrip(step % 200), 0, 0, {}, kLeftButton);
    return panel.CollectDirtyRect();
  }

  void Repaint(const Rect& area) {
    Arm();
    panel.Redraw(area);
  }

 private:
  void Arm() {
    const GradientCallbacks callbacks;
    panel.SetWindowContext(&window);
    panel.SetPanelCallbacks(&callbacks);
    panel.SetPanelData(&view);
  }

  GradientRecord record;
  GradientView view{record};
  StillWindow window;
  GradientPanel panel{12, 306, 130, {}};
};

void DragStep(benchmark::State& state, bool repaints) {
  Drag drag(static_cast<int32_t>(state.range(0)));
  int64_t step = 0;
  while (state.KeepRunning()) {
    const Rect area = drag.Step(++step);
    if (repaints) drag.Repaint(area);
  }
}

BENCHMARK_CAPTURE(DragStep, alone, false)->Arg(5)->Arg(50);
BENCHMARK_CAPTURE(DragStep, with_repaint, true)->Arg(5)->Arg(50);

}  // namespace
