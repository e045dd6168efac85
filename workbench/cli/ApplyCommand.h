// From a sound file to keyframes.
#pragma once

#include "workbench/cli/Options.h"

// Decodes the sound, presses Apply, writes the keyframes and prints a short table of them. Returns
// the exit status. Throws JobFailure and UsageFailure, and then no file has been written.
int RunApply(const StageOptions& stageOptions, const ApplyOptions& options);
