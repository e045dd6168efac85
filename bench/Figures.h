// The figures of a program in this folder: measured, printed, and held against a gate.
#pragma once

#include <string>
#include <vector>

enum class Better { kSmaller, kLarger };

// A number that something is asked of: at most so much, or at least where larger is better.
struct Figure {
  std::string name;
  double value = 0.0;
  const char* unit = "";
  double wanted = 0.0;  // 0: nothing is asked of it
  double gate = 0.0;    // far enough from what is wanted for a busy machine; 0: none
  Better better = Better::kSmaller;
};

double MedianOf(std::vector<double> values);

// Prints a line for each figure: name, value and what is wanted, parted by tabs.
//
// With --gates as the program's argument the result is 1, and a line on the error stream names the
// figure, where one is beyond its gate. Else the result is 0.
int ReportFigures(const std::vector<Figure>& figures, int argc, char** argv);
