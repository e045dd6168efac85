// The line that shows how far a run has come, on a terminal.
#pragma once

#include <chrono>
#include <string>

class ProgressLine {
 public:
  // Shows nothing where `quiet`, or where the error stream is no terminal.
  explicit ProgressLine(bool quiet);
  ~ProgressLine();  // wipes the line
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  // Puts `text` in the place of what stood there; most of a quick run of texts are skipped.
  void Show(const std::string& text);

 private:
  bool enabled;
  bool shown = false;
  std::chrono::steady_clock::time_point lastTime;
};
