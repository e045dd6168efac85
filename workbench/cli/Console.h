// What differs between the systems' consoles: arguments, the letters printed, and whether an eye
// sees them.
#pragma once

#include <string>
#include <vector>

// The program's arguments as UTF-8, without its own name.
//
// argc, argv   as main got them
std::vector<std::string> ConsoleArguments(int argc, const char* const* argv);

// Has both output streams take UTF-8 and pass on line ends as they are.
void SetUpConsole();

// Whether the error stream is a terminal that can wipe a line.
bool IsErrorStreamATerminal();
