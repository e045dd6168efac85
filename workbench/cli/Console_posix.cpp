// A POSIX system's console, which takes bytes as they are.
#include <unistd.h>

#include <algorithm>

#include "workbench/cli/Console.h"

std::vector<std::string> ConsoleArguments(int argc, const char* const* argv) {
  return {argv + std::min(argc, 1), argv + argc};
}

void SetUpConsole() {}

bool IsErrorStreamATerminal() {
  return isatty(STDERR_FILENO) != 0;
}
