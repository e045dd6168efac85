// What a run has made, in a few lines.
#pragma once

#include <filesystem>
#include <string>

#include "workbench/export/KeyframeTable.h"

// A table with a line for each range that has keyframes, and where they are; says so when the run
// made none.
std::string SummaryOf(const KeyframeTable& table, const std::filesystem::path& out);
