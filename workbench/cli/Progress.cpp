// Writes one line over and over.
#include "workbench/cli/Progress.h"

#include <cstdio>

#include "workbench/cli/Console.h"

namespace {

constexpr std::chrono::milliseconds kShortestInterval{50};
constexpr const char* kWipeLine = "\r\033[K";

}  // namespace

ProgressLine::ProgressLine(bool quiet) : enabled(!quiet && IsErrorStreamATerminal()) {}

ProgressLine::~ProgressLine() {
  if (shown) std::fputs(kWipeLine, stderr);
}

void ProgressLine::Show(const std::string& text) {
  if (!enabled) return;
  const auto now = std::chrono::steady_clock::now();
  if (shown && now - lastTime < kShortestInterval) return;
  std::fprintf(stderr, "%s%s", kWipeLine, text.c_str());
  std::fflush(stderr);
  shown = true;
  lastTime = now;
}
