// Keyframes as JSON.
#include "workbench/export/KeyframeJson.h"

#include <nlohmann/json.hpp>

namespace {

using Json = nlohmann::ordered_json;

Json RangeAsJson(int range, const std::vector<KeyframeRow>& rows) {
  Json keys = Json::array();
  for (const KeyframeRow& row : rows) {
    keys.push_back({{"tick", row.tick}, {"seconds", TimeInSeconds(row)}, {"value", row.value}});
  }
  return {{"range", range},
          {"parameter", "Output " + std::to_string(range)},
          {"keys", std::move(keys)}};
}

}  // namespace

std::string KeyframesAsJson(const KeyframeTable& table) {
  Json ranges = Json::array();
  for (int range = 1; range <= kLastRange; ++range) {
    const std::vector<KeyframeRow> rows = RowsOfRange(table, range);
    if (!rows.empty()) ranges.push_back(RangeAsJson(range, rows));
  }
  const Json document = {{"scale", table.scale},
                         {"step", table.step},
                         {"size", {{"width", table.width}, {"height", table.height}}},
                         {"ranges", std::move(ranges)}};
  return document.dump(1) + '\n';
}
