// What one step of a drag on the colour map's strip costs, and the repaint that follows it.
#include <benchmark/benchmark.h>

#include <cstdint>

#include "gradient/GradientStops.h"
#include "tools/specimens/DemoEditor.h"

namespace {

// A drag back and forth over its neighbours; the repaint is that of the draw event that follows, at
// the screen's scale.
void DragStep(benchmark::State& state, bool repaints) {
  GradientRecord map;
  GradientView view(map);
  ClearStops(view);
  for (int32_t i = 0; i < state.range(0); ++i) InsertStop(view, i * 4, 0.2F, 0.4F, 0.6F);
  DemoEditor editor(map);
  editor.Press(DemoEditor::OnStrip(4, 24));
  int32_t x = 0;
  while (state.KeepRunning()) {
    x = (x + 1) % 200;
    Rect area;
    editor.Event([&](GradientPanel& panel) {
      panel.MouseDrag(DemoEditor::OnStrip(x, 24), 0, 0, {}, kLeftButton);
      area = panel.CollectDirtyRect();
    });
    if (repaints) editor.Event([&](GradientPanel& panel) { panel.Redraw(area); });
    editor.calls.clear();
  }
}

BENCHMARK_CAPTURE(DragStep, alone, false)->Arg(5)->Arg(50);
BENCHMARK_CAPTURE(DragStep, with_repaint, true)->Arg(5)->Arg(50);

}  // namespace
