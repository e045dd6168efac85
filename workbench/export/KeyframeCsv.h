// Keyframes as comma-separated text, for scripts and spreadsheets.
#pragma once

#include <string>

#include "workbench/export/KeyframeTable.h"

// A header `range,tick,scale,seconds,value`, then one line a row, in the order of the table. Values
// and seconds read back as the same bits.
std::string KeyframesAsCsv(const KeyframeTable& table);
