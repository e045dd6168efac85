// From a sound file to frames of the graph.
#pragma once

#include "workbench/cli/Options.h"
#include "workbench/cli/RenderOptions.h"

// Decodes the sound, has the plug-in render frames of the comp, and writes them as PNG files or as
// a movie. Returns the exit status. Throws JobFailure and UsageFailure, and then no file has been
// written.
int RunRender(const StageOptions& stageOptions, const RenderOptions& options);
