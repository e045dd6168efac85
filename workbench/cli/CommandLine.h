// The workbench's command line.
#pragma once

// Runs the command that the arguments name. Returns the exit status: 0 done, 2 where the arguments
// are wrong, with a line on the error stream. Throws JobFailure and UsageFailure.
int RunCommandLine(int argc, const char* const* argv);
