// A panel with rows of stock controls, each once in every look that the mouse and focus give it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "toolkit/CustomControlClient.h"
#include "toolkit/CustomPanel.h"
#include "tools/specimens/StillWindow.h"

// A chequered ground, for controls that show what lies under them.
class ChequeredClient : public CustomControlClient {
 public:
  void PaintControl(CustomControl& control, ImageBuffer& buffer, const PaintArea& area) override;
};

class StockPanel : public CustomPanel {
 public:
  static constexpr int32_t kWidth = 640;
  static constexpr int32_t kHeight = 400;

  // Makes a control with a place, its owner the panel; the panel takes it over.
  using MakeControl = std::function<ControlPane*(ControlPane& panel, const Rect& place)>;

  StockPanel();

  void AddRow(const char* caption, const Point& size, const MakeControl& makeControl);
  void AddCaption(const Point& place, const char* text);
  // Paints all, bringing one control after the other into its look by the events that lead there.
  void PaintSpecimens(ImageBuffer& page);
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;

  // The next row's top.
  int32_t NextTop() const { return nextTop; }

 private:
  enum class Look { kNormal, kOver, kPressed, kFocused, kDisabled };

  struct Specimen {
    ControlPane* control;
    Look look;
    Point pointer;
  };

  struct Caption {
    Point place;
    std::string text;
  };

  void Lead(const Specimen& specimen);
  void Leave(const Specimen& specimen);

  StillWindow window;
  std::vector<Specimen> specimens;
  std::vector<Caption> captions;
  int32_t nextTop = 26;
};
