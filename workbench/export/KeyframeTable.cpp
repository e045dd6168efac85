// What every writer asks of a table: seconds, and the rows of one range.
#include "workbench/export/KeyframeTable.h"

#include <algorithm>
#include <iterator>

double TimeInSeconds(const KeyframeRow& row) {
  return static_cast<double>(row.tick) / static_cast<double>(row.scale);
}

std::vector<KeyframeRow> RowsOfRange(const KeyframeTable& table, int range) {
  std::vector<KeyframeRow> rows;
  std::copy_if(table.rows.begin(), table.rows.end(), std::back_inserter(rows),
               [range](const KeyframeRow& row) { return row.range == range; });
  return rows;
}
