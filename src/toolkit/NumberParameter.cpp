// A number that controls can show, type and step.
#include "toolkit/NumberParameter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

namespace {

constexpr double kLargest = std::numeric_limits<double>::max();
constexpr int32_t kMostDecimals = 9;
constexpr double kCoarseness = 10.0;

double NumberOr(double number, double fallback) {
  return std::isnan(number) ? fallback : std::clamp(number, -kLargest, kLargest);
}

NumberRange Sound(NumberRange range) {
  range.minimum = NumberOr(range.minimum, -kLargest);
  range.maximum = NumberOr(range.maximum, kLargest);
  if (range.minimum > range.maximum) std::swap(range.minimum, range.maximum);
  range.defaultValue =
      std::clamp(NumberOr(range.defaultValue, range.minimum), range.minimum, range.maximum);
  range.decimals = std::clamp(range.decimals, 0, kMostDecimals);
  return range;
}

std::string_view WithoutDecoration(std::string_view text) {
  const size_t first = text.find_first_not_of(" \t+");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t%") + 1 - first);
}

// Digits that lie beyond a double are a huge number, or next to none where only zeros stand before
// the point.
double BeyondDouble(std::string_view text) {
  const double sign = text.front() == '-' ? -1.0 : 1.0;
  const std::string_view whole = text.substr(0, text.find('.'));
  return whole.find_first_of("123456789") != std::string_view::npos ? sign * kLargest : 0.0;
}

}  // namespace

NumberParameter::NumberParameter(std::string parameterName, const NumberRange& numberRange)
    : name(std::move(parameterName)), range(Sound(numberRange)), value(range.defaultValue) {}

void NumberParameter::SetValue(double newValue) {
  if (std::isnan(newValue)) return;
  newValue = std::clamp(newValue, range.minimum, range.maximum);
  if (newValue == value) return;
  value = newValue;
  pending = true;
}

void NumberParameter::FlushChange() {
  changed = pending;
  pending = false;
}

std::string NumberParameter::GetValueText() const {
  std::array<char, std::numeric_limits<double>::max_exponent10 + kMostDecimals + 4> digits{};
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                    std::chars_format::fixed, range.decimals);
  std::string text(digits.data(), result.ptr);
  const bool isZero = text.find_first_of("123456789") == std::string::npos;
  if (isZero && text.front() == '-') text.erase(0, 1);
  if (range.decimals > 0) text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

bool NumberParameter::SetFromText(const std::string& text) {
  const std::string_view digits = WithoutDecoration(text);
  if (digits.empty()) return false;
  const char* const end = digits.data() + digits.size();
  double number = 0.0;
  const auto result = std::from_chars(digits.data(), end, number, std::chars_format::fixed);
  if (result.ec == std::errc::invalid_argument || result.ptr != end || !std::isfinite(number)) {
    return false;
  }
  SetValue(result.ec == std::errc::result_out_of_range ? BeyondDouble(digits) : number);
  return true;
}

void NumberParameter::StepBy(int32_t steps, const Modifiers& modifiers) {
  double step = range.step;
  if (modifiers.shift) step *= kCoarseness;
  if (modifiers.control) step /= kCoarseness;
  SetValue(value + steps * step);
}
