// From events in a row of the panel to its picture.
#pragma once

#include "workbench/cli/Options.h"
#include "workbench/cli/PanelOptions.h"

// Opens a row that the plug-in draws itself, replays the script's events on it and writes the
// picture or the calls of the last draw, with whatever else the options ask for. Returns the exit
// status. Throws JobFailure and UsageFailure, and then no file has been written.
int RunPanel(const StageOptions& stageOptions, const PanelOptions& options);
