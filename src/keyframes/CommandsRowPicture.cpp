// The button with its bevel, and a digit in a box for each range.
#include "keyframes/CommandsRowPicture.h"

#include "host/PanelPrimitives.h"
#include "keyframes/CommandsRowLayout.h"

namespace {

constexpr Color16 kBlack{0, 0, 0};
constexpr Color16 kTextColor{0xB400, 0xB400, 0xB400};

// Shades of the panel's own colour.
struct RowColors {
  Color16 background, light, dark, face;
};

uint16_t Lighter(uint16_t channel) {
  constexpr uint32_t kFull = 0xFFFF;
  const uint32_t lighter = channel + 0x5000U;
  return static_cast<uint16_t>(lighter < kFull ? lighter : kFull);
}

uint16_t Darker(uint16_t channel, uint16_t step) {
  return static_cast<uint16_t>(channel > step ? channel - step : 0);
}

RowColors MakeColors() {
  Color16 bg;
  GetPanelBackColor(&bg);
  const auto darker = [&bg](uint16_t step) {
    return Color16{Darker(bg.red, step), Darker(bg.green, step), Darker(bg.blue, step)};
  };
  return {
      bg, {Lighter(bg.red), Lighter(bg.green), Lighter(bg.blue)}, darker(0x7F00), darker(0x1F00)};
}

Rect16 ToRect16(const RowRect& rect) {
  return {ToCoordinate16(rect.top), ToCoordinate16(rect.left), ToCoordinate16(rect.bottom),
          ToCoordinate16(rect.right)};
}

void DrawLine(int64_t x0, int64_t y0, int64_t x1, int64_t y1, const Color16& color) {
  DrawPanelLine(static_cast<float>(x0), static_cast<float>(y0), static_cast<float>(x1),
                static_cast<float>(y1), color);
}

void DrawText(int64_t x, int64_t y, const Color16& color, const char* text) {
  DrawPanelText(static_cast<float>(x), static_cast<float>(y), color, text);
}

// A second copy one pixel to the right and below lets a text look engraved.
void DrawEngraved(int64_t x, int64_t y, const RowColors& colors, const char* text) {
  DrawText(x + 1, y + 1, colors.light, text);
  DrawText(x, y, colors.dark, text);
}

// Two lines an edge.
void DrawBevel(const RowRect& button, const Color16& topLeft, const Color16& bottomRight) {
  const auto& [left, top, right, bottom] = button;
  DrawLine(left, top, right + 2, top, topLeft);
  DrawLine(left, top + 1, right + 1, top + 1, topLeft);
  DrawLine(left, top, left, bottom + 1, topLeft);
  DrawLine(left + 1, top, left + 1, bottom + 1, topLeft);
  DrawLine(left + 1, bottom, right, bottom, bottomRight);
  DrawLine(left + 2, bottom - 1, right, bottom - 1, bottomRight);
  DrawLine(right, top + 2, right, bottom + 1, bottomRight);
  DrawLine(right + 1, top + 1, right + 1, bottom + 1, bottomRight);
}

void DrawApplyButton(const RowRect& button, uint32_t state, const RowColors& colors) {
  constexpr const char* kLabel = "Apply";
  PaintPanelRect(ToRect16(button), colors.face);
  const bool pressed = state == kApplyButtonPressed;
  const int64_t shift = pressed ? 1 : 0;
  const int64_t x = button.left + 11 + shift;
  const int64_t y = button.top + 12 + shift;
  if (state == kApplyButtonDisabled) {
    DrawEngraved(x, y, colors, kLabel);
  } else {
    DrawText(x, y, kTextColor, kLabel);
  }
  DrawBevel(button, pressed ? colors.dark : colors.light, pressed ? colors.light : colors.dark);
}

void DrawActiveMark(const RowRect& mark, const char* digit, bool active, const RowColors& colors) {
  const int64_t x = mark.left + 1;
  const int64_t y = mark.top + 11;
  if (active) {
    DrawText(x, y, kBlack, digit);
  } else {
    DrawEngraved(x, y, colors, digit);
  }
  FramePanelRect(ToRect16(mark), active ? kBlack : colors.background);
}

}  // namespace

void DrawCommandsRow(const PF_UnionableRect& frame, const CommandsRowLook& look) {
  constexpr std::array<const char*, kRangeCount> kDigits = {"1", "2", "3"};
  const RowColors colors = MakeColors();
  const CommandsRowLayout layout(frame);
  PaintPanelRect(ToRect16({frame.left, frame.top, frame.right, frame.bottom}), colors.background);
  DrawApplyButton(layout.ApplyButton(), look.applyButtonState, colors);
  for (int32_t range = 0; range < kRangeCount; ++range) {
    const auto slot = static_cast<size_t>(range);
    DrawActiveMark(layout.ActiveMark(range), kDigits[slot], look.active[slot], colors);
  }
}
