// Keyframes as comma-separated text.
#include "workbench/export/KeyframeCsv.h"

#include "workbench/export/NumberText.h"

std::string KeyframesAsCsv(const KeyframeTable& table) {
  std::string text = "range,tick,scale,seconds,value\n";
  for (const KeyframeRow& row : table.rows) {
    text += std::to_string(row.range) + ',' + std::to_string(row.tick) + ',' +
            std::to_string(row.scale) + ',' + ShortestText(TimeInSeconds(row)) + ',' +
            PreciseText(row.value) + '\n';
  }
  return text;
}
