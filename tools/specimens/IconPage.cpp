// Icons in all their states on the grounds that they stand on, reduced, and enlarged.
#include <array>
#include <cstdint>
#include <string>

#include "drawing/ScaledIcon.h"
#include "platform/Truncate.h"
#include "tools/specimens/Pages.h"

namespace {

constexpr std::array kIcons = {"Undo", "Redo", "Reset", "Flip", "Curve", "Freehand"};
struct State {
  const char* name;
  int32_t opacity;  // as a button draws it
};
constexpr State kStates[] = {{"Normal", 256}, {"Over", 256}, {"Disabled", 50}};
constexpr ColorBGRA kPanel(0xFF242424);
constexpr std::array kGrounds = {kPanel, ColorBGRA(0xFF525252), ColorBGRA(0xFF373737)};
constexpr int32_t kGroundHeight = 66;
constexpr int32_t kColumn = 26;
constexpr int32_t kRow = 20;

// place   logical pixels, top left
// scale   that the icon is loaded at
// size    logical pixels of the page for one of the icon's
// Some icons have no disabled state: nothing is drawn.
void Place(ImageBuffer& page, const char* name, const State& state, Point place, float scale,
           float size) {
  NativeImageBuffer icon;
  const std::string file = std::string(name) + "_" + state.name + ".png";
  LoadScaledIcon(icon, file.c_str(), libraryModule, scale, true);
  const Rect corner = page.ToPhysical(Rect{place.x, place.y, place.x, place.y});
  const auto length = [&](int32_t pixels) {
    return Truncate<int32_t>(static_cast<float>(pixels) * size / icon.Scale() * page.Scale());
  };
  const Rect target = {corner.left, corner.top, corner.left + length(icon.Width()),
                       corner.top + length(icon.Height())};
  icon.ScaleTo(page, icon.Bounds(), target, nullptr,
               {.boxFilter = true, .blend = true, .opacity = state.opacity});
}

// The first six columns are as a panel shows them, pixel for pixel on a page of scale 2; the others
// hold icons of other scales at the same place.
void DrawGround(ImageBuffer& page, size_t ground) {
  const auto top = static_cast<int32_t>(ground) * kGroundHeight;
  page.FillRect({0, top, 640, top + kGroundHeight}, kGrounds[ground], 256, nullptr);
  int32_t x = 16;
  for (const float scale : {2.0F, 1.5F, 1.25F}) {
    for (const char* name : kIcons) {
      int32_t y = top + 4;
      for (const State& state : kStates) {
        Place(page, name, state, {x, y}, scale, 1.0F);
        y += kRow;
      }
      x += kColumn;
    }
    x += 48;
  }
}

void DrawEnlarged(ImageBuffer& page) {
  page.FillRect({0, 3 * kGroundHeight, 640, 400}, kPanel, 256, nullptr);
  int32_t x = 16;
  for (const char* name : kIcons) {
    int32_t y = 3 * kGroundHeight + 4;
    for (const State& state : {kStates[0], kStates[2]}) {
      Place(page, name, state, {x, y}, 2.0F, 6.0F);
      y += 98;
    }
    x += 104;
  }
}

}  // namespace

void DrawIconPage(ImageBuffer& page) {
  for (size_t ground = 0; ground < kGrounds.size(); ++ground) DrawGround(page, ground);
  DrawEnlarged(page);
}
