// A panel with one button: it plays events to it, writes down what it tells, and paints it.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "toolkit/ButtonControl.h"
#include "toolkit/CustomPanel.h"
#include "tools/specimens/StillWindow.h"

inline constexpr Rect kButtonPlace = {10, 5, 50, 25};
inline constexpr Rect kPanelPlace = {0, 0, 60, 40};

class ButtonPanel : public CustomPanel {
 public:
  ButtonPanel() : CustomPanel(kPanelPlace, 7) {
    SetWindowContext(&window);
    SetBackground(ThemeColors::Black);
  }

  template <typename Button>
  Button& Add(bool toggle = false, const ImageBuffer* strip = nullptr) {
    auto* made = new Button(this, kButtonPlace, strip, toggle, nullptr);
    AddChild(made, true);
    button = made;
    return *made;
  }

  // e the pointer enters, l it leaves, d press, o drag out, i drag in, u release, x disable
  void Play(std::string_view script) {
    constexpr Point kInside = {30, 15};
    constexpr Point kOutside = {55, 35};
    for (const char event : script) {
      if (event == 'e') MouseOver(kInside, {});
      if (event == 'l') MouseOver(kOutside, {});
      if (event == 'd') MouseDown(kInside, {}, false, kLeftButton);
      if (event == 'o') MouseDrag(kOutside, 0, 0, {}, kLeftButton);
      if (event == 'i') MouseDrag(kInside, 0, 0, {}, kLeftButton);
      if (event == 'u') MouseUp(kInside, kLeftButton);
      if (event == 'x') button->SetEnabled(false);
    }
  }

  // Paints a part of the panel on an empty picture of the panel's size.
  void PaintPart(const Rect& part, int32_t scale, ImageBuffer& picture) {
    picture.Allocate(kPanelPlace.right * scale, kPanelPlace.bottom * scale, false);
    picture.SetScale(static_cast<float>(scale));
    picture.SetScaleAware(true);
    DrawTree(part, {0, 0}, picture);
  }

  ColorBGRA PixelAt(int32_t x, int32_t y) {
    ImageBuffer picture;
    PaintPart(kPanelPlace, 1, picture);
    return picture.Row(y)[x];
  }

  void NotifyPressed(ControlPane* source) override { Hear(source, 'p'); }
  void NotifyReleased(ControlPane* source) override { Hear(source, 'r'); }
  void PaintOverlay(const Rect& /*rect*/, ImageBuffer& /*buffer*/,
                    const Point& /*position*/) override {
    if (onPaint) onPaint();
  }

  std::string heard;
  std::function<void()> onNews;
  std::function<void()> onPaint;
  ButtonControl* button = nullptr;

 private:
  void Hear(const ControlPane* source, char news) {
    heard += source == button ? news : '?';
    if (onNews) onNews();
  }

  StillWindow window;
};
