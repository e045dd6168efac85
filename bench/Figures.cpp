// Lines of figures.
#include "Figures.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <string_view>

double MedianOf(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::ranges::nth_element(values, middle);
  return *middle;
}

int ReportFigures(const std::vector<Figure>& figures, int argc, char** argv) {
  const bool isGated = argc > 1 && std::string_view(argv[1]) == "--gates";
  int status = 0;
  for (const Figure& figure : figures) {
    std::printf("%s\t%.2f%s\t", figure.name.c_str(), figure.value, figure.unit);
    const bool isFloor = figure.better == Better::kLarger;
    if (figure.wanted > 0.0) {
      std::printf("at %s %.3g%s", isFloor ? "least" : "most", figure.wanted, figure.unit);
    }
    std::printf("\n");
    if (!isGated || figure.gate <= 0.0) continue;
    if (isFloor ? figure.value >= figure.gate : figure.value <= figure.gate) continue;
    std::fprintf(stderr, "%s: %.2f%s is beyond the gate of %.3g%s\n", figure.name.c_str(),
                 figure.value, figure.unit, figure.gate, figure.unit);
    status = 1;
  }
  return status;
}
