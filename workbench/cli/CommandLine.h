// The workbench's command line.
#pragma once

// Runs the command that the arguments name, or shows the help that they ask for. Returns the exit
// status. Throws JobFailure and UsageFailure.
int RunCommandLine(int argc, const char* const* argv);
