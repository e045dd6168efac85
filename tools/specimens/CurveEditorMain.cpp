// The curve editor on its own, with what a user does there read from a file: curve_editor SCRIPT
// FOLDER
#include <cstdio>
#include <exception>

#include "tools/specimens/CurveReplay.h"

int main(int argc, char** argv) try {
  if (argc != 3) {
    std::fprintf(stderr, "curve_editor: takes a file of events and a folder for the pictures.\n");
    return 2;
  }
  ReplayInCurveEditor(argv[1], argv[2]);
  return 0;
} catch (const std::exception& failure) {
  std::fprintf(stderr, "curve_editor: %s\n", failure.what());
  return 1;
}
