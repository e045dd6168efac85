// Drawing calls as lines of text.
#include "workbench/drawbot/DrawCall.h"

#include <cstdio>

#include "workbench/drawbot/Utf16Text.h"

namespace {

// Blanks in front of each number.
std::string NumberText(double number) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), " %.7g", number);
  return text.data();
}

std::string StepText(const PathStep& step) {
  struct KindText {
    const char* name;
    size_t count;  // of numbers
  };
  constexpr std::array<KindText, 6> kTexts = {
      {{"move", 2}, {"line", 2}, {"curve", 6}, {"rect", 4}, {"arc", 5}, {"close", 0}}};
  const auto [name, count] = kTexts[static_cast<size_t>(step.kind)];
  std::string numbers;
  for (size_t i = 0; i < count; ++i) numbers += NumberText(step.numbers[i]);
  return std::string(" ") + name + "(" + (numbers.empty() ? "" : numbers.substr(1)) + ")";
}

}  // namespace

std::string DrawCallText(const DrawCall& call) {
  std::string text = call.name;
  if (call.color) {
    text += " color";
    for (const float channel :
         {call.color->red, call.color->green, call.color->blue, call.color->alpha}) {
      text += NumberText(channel);
    }
  }
  if (!call.path.empty()) text += " path";
  for (const PathStep& step : call.path) text += StepText(step);
  if (!call.text.empty()) text += " text \"" + Utf8From(call.text) + "\"";
  if (!call.numbers.empty()) text += " numbers";
  for (const double number : call.numbers) text += NumberText(number);
  return text;
}

std::string DrawCallTextWithPixels(const DrawCall& call) {
  std::string text = DrawCallText(call) + "\n";
  if (call.pixels.empty()) return text;
  const auto width = static_cast<size_t>(call.numbers.front());
  for (size_t i = 0; i < call.pixels.size(); ++i) {
    std::array<char, 16> pixel{};
    std::snprintf(pixel.data(), pixel.size(), " %08x", static_cast<unsigned>(call.pixels[i]));
    text += (i % width == 0 ? " " : "") + std::string(pixel.data());
    if ((i + 1) % width == 0) text += '\n';
  }
  return text;
}
