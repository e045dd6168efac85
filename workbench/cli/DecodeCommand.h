// From any sound to raw sound.
#pragma once

#include "workbench/cli/Options.h"

// Decodes the sound and writes it as a .pcm file, which every build of the workbench takes. Returns
// the exit status. Throws JobFailure and UsageFailure, and then no file has been written.
int RunDecode(const DecodeOptions& options);
