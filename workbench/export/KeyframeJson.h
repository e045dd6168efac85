// Keyframes as JSON, one list a range.
#pragma once

#include <string>

#include "workbench/export/KeyframeTable.h"

// {"scale", "step", "size": {"width", "height"}, "ranges": [{"range", "parameter", "keys":
// [{"tick", "seconds", "value"}]}]}. Ranges without keyframes are left out; keys stand in the order
// of the table, and numbers read back as the same bits.
std::string KeyframesAsJson(const KeyframeTable& table);
