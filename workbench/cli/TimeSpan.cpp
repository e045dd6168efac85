// Parses and rounds times.
#include "workbench/cli/TimeSpan.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <optional>
#include <string_view>

#include "workbench/Failure.h"

namespace {

std::optional<double> AsSeconds(std::string_view text) {
  double seconds = 0.0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
  if (error != std::errc{} || end != text.data() + text.size() || !std::isfinite(seconds)) {
    return std::nullopt;
  }
  return seconds;
}

}  // namespace

TimeSpan ParseTimeSpan(const std::string& text) {
  const size_t colon = text.find(':');
  const std::string_view view = text;
  const auto start = AsSeconds(view.substr(0, colon));
  const auto end = colon == std::string::npos ? std::nullopt : AsSeconds(view.substr(colon + 1));
  if (!start || !end) {
    throw UsageFailure("--work-area takes START:END in seconds, such as 1.5:20, not \"" + text +
                       "\".");
  }
  if (*end < *start) {
    throw UsageFailure("--work-area " + text + " ends before it starts. Give START:END.");
  }
  return {*start, *end};
}

int32_t TicksAt(double seconds, uint32_t scale) {
  const double ticks = std::round(seconds * scale);
  if (!(std::fabs(ticks) <= 2147483647.0)) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%g s", seconds);
    throw UsageFailure(std::string("A comp at this frame rate can't reach so far: ") + text.data() +
                       ". Use a smaller time, or a frame rate with a smaller scale.");
  }
  return static_cast<int32_t>(ticks);
}
