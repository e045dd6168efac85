// What the command line asks for.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "workbench/cli/TimeSpan.h"

struct FrameSize {
  int32_t width = 1920;
  int32_t height = 1080;
};

// scale ticks a second, step ticks a frame.
struct FrameRate {
  uint32_t scale = 30;
  int32_t step = 1;
};

// The options that all commands share.
struct StageOptions {
  std::filesystem::path plugin;  // empty: the library beside the workbench
  FrameSize size;
  FrameRate rate;
  std::optional<TimeSpan> workArea;   // comp time; none: the whole sound
  double layerStart = 0.0;            // seconds of comp time
  std::vector<std::string> settings;  // NAME=VALUE
  std::filesystem::path project;
  std::filesystem::path record;
  bool quiet = false;
};

struct ApplyOptions {
  std::filesystem::path audio;
  std::filesystem::path out;
};

struct DecodeOptions {
  std::filesystem::path audio;
  std::filesystem::path out;
  bool quiet = false;
};
