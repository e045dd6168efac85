// A panel with one stock control of any kind: it plays events to it and writes down what it tells.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/Clock.h"
#include "toolkit/CustomControl.h"
#include "toolkit/CustomPanel.h"
#include "toolkit/StockListener.h"
#include "tools/specimens/StillWindow.h"

inline constexpr Rect kStockPlace = {20, 10, 140, 50};

class StockStage : public CustomPanel, public StockListener, public CustomControlClient, Clock {
 public:
  StockStage() : CustomPanel({0, 0, 400, 300}, 9) {
    SetWindowContext(&window);
    UseClock(this);
  }
  ~StockStage() override {
    UseClock(nullptr);
    DeleteSubtree();
  }

  template <typename Kind, typename... Arguments>
  Kind& Add(const Rect& place, Arguments... arguments) {
    auto* made = new Kind(this, place, arguments...);
    AddChild(made, true);
    return *made;
  }
  void Press(const Point& at) { MouseDown(at, {}, false, kLeftButton); }
  void Drag(const Point& at) { MouseDrag(at, 0, 0, {}, kLeftButton); }
  void Release(const Point& at) { MouseUp(at, kLeftButton); }
  void Click(const Point& at) {
    Press(at);
    Release(at);
  }
  std::string Heard() { return std::exchange(heard, {}); }

  // p the press, c a change, r the release
  void NotifyPressed(ControlPane* /*source*/) override { Hear('p'); }
  void NotifyReleased(ControlPane* /*source*/) override { Hear('r'); }
  void OnControlChanged(ControlPane* /*source*/) override { Hear('c'); }
  void PaintControl(CustomControl& /*control*/, ImageBuffer& buffer,
                    const PaintArea& area) override {
    buffer.FillRect(area.clip, ThemeColors::Orange, 256, &area.clip);
  }

  std::function<void()> onNews;

 private:
  uint32_t Milliseconds() override { return 0; }
  void Sleep(int32_t /*milliseconds*/) override {}
  void Hear(char news) {
    heard += news;
    if (onNews) onNews();
  }

  StillWindow window;
  std::string heard;
};
