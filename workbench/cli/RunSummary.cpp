// Counts and extremes of each range.
#include "workbench/cli/RunSummary.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace {

std::string RangeLine(int range, const std::vector<KeyframeRow>& rows) {
  const auto byValue = [](const KeyframeRow& a, const KeyframeRow& b) { return a.value < b.value; };
  const auto [smallest, largest] = std::minmax_element(rows.begin(), rows.end(), byValue);
  std::array<char, 160> line{};
  std::snprintf(line.data(), line.size(), "Output %d  %9zu  %9.3f  %9.3f  %10.4g  %10.4g\n", range,
                rows.size(), TimeInSeconds(rows.front()), TimeInSeconds(rows.back()),
                smallest->value, largest->value);
  return line.data();
}

}  // namespace

std::string SummaryOf(const KeyframeTable& table, const std::filesystem::path& out) {
  std::string text;
  if (table.rows.empty()) {
    text = "The work area is empty, so there are no keyframes.\n";
  } else {
    text = "          keyframes    first s     last s    smallest     largest\n";
    for (int range = 1; range <= kLastRange; ++range) {
      const std::vector<KeyframeRow> rows = RowsOfRange(table, range);
      if (!rows.empty()) text += RangeLine(range, rows);
    }
  }
  return text + "Written to " + out.string() + "\n";
}
