// The workbench's command line.
#pragma once

#include <string>
#include <vector>

// Runs the command that the arguments name, or shows the help that they ask for.
//
// arguments   UTF-8, without the program's own name
// Returns the exit status. Throws JobFailure and UsageFailure.
int RunCommandLine(const std::vector<std::string>& arguments);
