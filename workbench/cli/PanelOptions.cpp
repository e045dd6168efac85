// Parses the options of a panel.
#include "workbench/cli/PanelOptions.h"

#include <array>
#include <charconv>

#include "workbench/Failure.h"

const char* ParseRow(const std::string& text) {
  if (text == "color-map") return "Color Map";
  if (text == "commands") return "Commands";
  throw UsageFailure("--row takes color-map or commands, not \"" + text + "\".");
}

int32_t ParseZoom(const std::string& text) {
  if (text.size() == 1 && text[0] >= '1' && text[0] <= '8') return text[0] - '0';
  throw UsageFailure("--zoom takes a whole number from 1 to 8, not \"" + text + "\".");
}

PF_Pixel8 ParsePanelColor(const std::string& text) {
  std::array<uint8_t, 3> channels{};
  const char* place = text.data();
  const char* const end = place + text.size();
  bool isGood = true;
  for (size_t i = 0; i < channels.size() && isGood; ++i) {
    const auto [next, error] = std::from_chars(place, end, channels[i]);
    isGood = error == std::errc{} && (i < 2 ? next != end && *next == ',' : next == end);
    place = isGood && i < 2 ? next + 1 : next;
  }
  if (isGood) return {255, channels[0], channels[1], channels[2]};
  throw UsageFailure("--panel-color takes R,G,B, each 0 to 255, such as 200,200,200, not \"" +
                     text + "\".");
}
