// Reads a pattern and puts numbers into it.
#include "workbench/export/FrameNames.h"

#include <algorithm>
#include <charconv>

#include "workbench/Failure.h"
#include "workbench/FileName.h"

namespace {

constexpr size_t kMostLetters = 20;

[[noreturn]] void Refuse(const std::filesystem::path& pattern) {
  throw UsageFailure("--out " + pattern.string() +
                     ": the file's name takes one %d or %0Nd, N from 1 to 20, for the frame's "
                     "number, such as frames/%05d.png.");
}

}  // namespace

FrameNames::FrameNames(const std::filesystem::path& pattern)
    : folder(pattern.parent_path()), before(pattern.filename().string()) {
  const size_t percent = before.find('%');
  if (percent == std::string::npos) return;
  const size_t letter = before.find('d', percent);
  if (letter == std::string::npos || before.find('%', percent + 1) != std::string::npos) {
    Refuse(pattern);
  }
  const std::string width = before.substr(percent + 1, letter - percent - 1);
  if (!width.empty()) {
    const auto [end, error] = std::from_chars(width.data(), width.data() + width.size(), shortest);
    const bool isRead = error == std::errc{} && end == width.data() + width.size();
    if (!isRead || width[0] != '0' || shortest < 1 || shortest > kMostLetters) Refuse(pattern);
  }
  hasNumber = true;
  behind = before.substr(letter + 1);
  before.resize(percent);
}

std::filesystem::path FrameNames::NameOf(int64_t number) const {
  if (!hasNumber) return folder / PathFromUtf8(before);
  const std::string sign = number < 0 ? "-" : "";
  const std::string digits = std::to_string(number).substr(sign.size());
  const size_t letters = sign.size() + digits.size();
  const std::string zeros(shortest - std::min(shortest, letters), '0');
  return folder / PathFromUtf8(before + sign + zeros + digits + behind);
}
