// A panel with each kind of button in each of its states, overlapping ones, kinds of labels, and a
// menu.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "drawing/ImageBuffer.h"
#include "toolkit/ButtonControl.h"
#include "toolkit/CustomPanel.h"
#include "tools/specimens/DemoMenu.h"
#include "tools/specimens/StillWindow.h"

class DemoPanel : public CustomPanel {
 public:
  static constexpr int32_t kWidth = 640;
  static constexpr int32_t kHeight = 400;
  // Holds no buttons: room for a menu.
  static constexpr Rect kMenuArea = {520, 24, 632, 392};

  // scale   of the picture that it will be painted on, 1 or 2, for the icons
  explicit DemoPanel(float scale);

  // Brings one button after the other into its state by the events that lead there, and paints it;
  // then the menu.
  void PaintSpecimens(ImageBuffer& page);

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;

 private:
  enum class Look { kNormal, kOver, kPressed, kDisabled, kOn, kOnOver, kFocused, kSelected };

  // A button, how it is to look, and where the pointer is for that.
  struct Specimen {
    ButtonControl* button;
    Look look;
    Point pointer;
  };

  struct Caption {
    Point place;
    std::string text;
  };

  using MakeButton = std::function<ButtonControl*(const Rect& place, bool toggle)>;

  void AddPlainKinds();
  void AddPlateAndIconKinds();
  void AddRow(int32_t row, const char* caption, const MakeButton& makeButton);
  void AddOverlaps();
  void AddLabels();
  void Lead(const Specimen& specimen);
  void Leave(const Specimen& specimen);
  void Click(const Point& pointer);

  StillWindow window;
  float iconScale;
  ImageBuffer strip;
  std::vector<Specimen> specimens;
  std::vector<Caption> captions;
  DemoMenu menu;
};
