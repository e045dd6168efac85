// A panel with rows of stock controls, each once in every look that the mouse and focus give it.
#pragma once

#include <cstdint>
#include <functional>

#include "toolkit/CustomControlClient.h"
#include "tools/specimens/SpecimenPanel.h"

// A chequered ground, for controls that show what lies under them.
class ChequeredClient : public CustomControlClient {
 public:
  void PaintControl(CustomControl& control, ImageBuffer& buffer, const PaintArea& area) override;
};

class StockPanel : public SpecimenPanel {
 public:
  // Makes a control with a place, its owner the panel; the panel takes it over.
  using MakeControl = std::function<ControlPane*(ControlPane& panel, const Rect& place)>;

  StockPanel();

  // Below the rows before.
  void AddControls(const char* caption, const Point& size, const MakeControl& makeControl);

  // The next row's top.
  int32_t NextTop() const { return nextTop; }

 private:
  int32_t nextTop = 26;
};
