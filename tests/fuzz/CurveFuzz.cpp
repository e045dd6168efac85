// Sends any events to the curve editor over a curve of any numbers: nothing may be written beside
// the curve's arrays, and none may take long.
#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>

#include "gradient/EvolutionPanel.h"
#include "tests/fuzz/Input.h"
#include "tools/specimens/StillWindow.h"

namespace {

constexpr float kGuard = 7.0F;

// Any float, or mostly one of 0 to 255 in steps of `step`.
float TakeNumber(Input& input, float step) {
  const auto number = input.Take<uint8_t>();
  return number >= 0xF8 ? input.Take<float>() : static_cast<float>(number) * step;
}

// A curve between guards, with up to as many points as there is room for.
struct GuardedCurve {
  explicit GuardedCurve(Input& input) {
    numbers.fill(kGuard);
    const CurveView view = View();
    std::fill_n(view.samples, CurveSampleCount, TakeNumber(input, 0.01F));
    std::fill_n(view.pointX, CurvePointLimit, CurveListEnd);
    const int32_t count = input.Take<uint8_t>() % (CurvePointLimit + 1);
    for (int32_t i = 0; i < count; ++i) {
      view.pointX[i] = TakeNumber(input, 1.0F);
      view.pointY[i] = TakeNumber(input, 0.01F);
    }
  }
  CurveView View() { return {&numbers[8], &numbers[8 + 201], &numbers[8 + 226]}; }
  void RequireGuards() const {
    const auto isGuard = [](float number) { return number == kGuard; };
    if (!std::all_of(numbers.begin(), numbers.begin() + 8, isGuard)) std::abort();
    if (!std::all_of(numbers.end() - 8, numbers.end(), isGuard)) std::abort();
  }

  std::array<float, 8 + 201 + 25 + 25 + 8> numbers;
};

// In or near the panel, or anywhere.
int32_t TakePlace(Input& input) {
  const auto place = input.Take<uint16_t>();
  return (place & 0xF000) == 0xF000 ? input.Take<int32_t>() : int32_t{place % 360} - 20;
}

struct Shown {
  std::unique_ptr<EvolutionPanel> panel = std::make_unique<EvolutionPanel>(13, "Evolution");
  bool dies = false;
};

void Arm(Shown& shown, EvolutionRecord& record) {
  EvolutionCallbacks callbacks;
  callbacks.pushUndo = [](void* context) {
    auto& shown = *static_cast<Shown*>(context);
    if (shown.dies) shown.panel.reset();
  };
  callbacks.curveChanged = callbacks.pasteCurve = callbacks.undo = callbacks.pushUndo;
  callbacks.canPaste = callbacks.canUndo = [](void*) { return true; };
  callbacks.context = &shown;
  shown.panel->SetPanelCallbacks(&callbacks);
  shown.panel->SetPanelData(&record);
}

void Send(EvolutionPanel& panel, uint8_t what, const Point& point, Input& input) {
  const Modifiers modifiers = {.shift = (what & 8) != 0};
  switch (what & 7) {
    case 0:
      panel.MouseDown(point, modifiers, (what & 16) != 0, kLeftButton);
      return;
    case 1:
    case 2:
      return panel.MouseDrag(point, 0, 0, modifiers, kLeftButton);
    case 3:
      panel.MouseUp(point, kLeftButton);
      return;
    case 4:
      panel.MouseOver(point, modifiers);
      return;
    case 5:
      panel.KeyDown((what & 8) != 0 ? 127 : input.Take<int32_t>(), modifiers);
      return;
    case 6:
      return panel.SetEnabled((what & 8) != 0);
    default: {
      ImageBuffer picture;
      picture.Allocate(320, 200, false);
      panel.DrawTree(panel.GetLocalBounds(), point, picture);
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Input input(data, size);
  GuardedCurve first(input);
  GuardedCurve second(input);
  EvolutionRecord record{0, input.Take<uint8_t>(), {first.View(), second.View(), {}}};
  StillWindow window;
  Shown shown;
  shown.panel->SetWindowContext(&window);
  while (shown.panel && !input.IsEmpty()) {
    const auto what = input.Take<uint8_t>();
    if ((what & 0xE0) == 0xE0) record.mode = what & 7;
    shown.dies = (what & 0xE0) == 0xC0;
    Arm(shown, record);
    const int32_t x = TakePlace(input);
    Send(*shown.panel, what, {x, TakePlace(input)}, input);
    first.RequireGuards();
    second.RequireGuards();
  }
  return 0;
}
