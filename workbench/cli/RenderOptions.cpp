// Parses the options of a render.
#include "workbench/cli/RenderOptions.h"

#include <charconv>
#include <string_view>

#include "workbench/Failure.h"

namespace {

constexpr int32_t kLargestDownsample = 30000;  // a comp's side at most
constexpr int32_t kMostThreads = 64;

std::optional<int32_t> AsWhole(std::string_view text) {
  int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
  return number;
}

int32_t ParseCount(const char* option, int32_t largest, const std::string& text) {
  const auto number = AsWhole(text);
  if (!number || *number < 1 || *number > largest) {
    throw UsageFailure(std::string(option) + " takes a whole number from 1 to " +
                       std::to_string(largest) + ", not \"" + text + "\".");
  }
  return *number;
}

}  // namespace

std::optional<FrameSpan> ParseFrames(const std::string& text) {
  if (text == "loudest") return std::nullopt;
  const std::string_view view = text;
  const size_t dots = view.find("..");
  const auto first = AsWhole(view.substr(0, dots));
  const auto last = dots == std::string_view::npos ? first : AsWhole(view.substr(dots + 2));
  if (!first || !last) {
    throw UsageFailure("--frames takes A..B, N or loudest, such as 0..299, not \"" + text + "\".");
  }
  if (*last < *first) {
    throw UsageFailure("--frames " + text + " ends before it starts. Give A..B, A not above B.");
  }
  return FrameSpan{*first, *last};
}

uint32_t ParseDownsample(const std::string& text) {
  return static_cast<uint32_t>(ParseCount("--downsample", kLargestDownsample, text));
}

Ground ParseGround(const std::string& text) {
  if (text == "none") return Ground::kNone;
  if (text == "black") return Ground::kBlack;
  if (text == "checker") return Ground::kChecker;
  throw UsageFailure("--over takes checker, black or none, not \"" + text + "\".");
}

int ParseThreads(const std::string& text) {
  return ParseCount("--threads", kMostThreads, text);
}
