// What the command line asks of a render.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "workbench/export/Ground.h"

// Numbers of the comp's frames, both included; first is not above last.
struct FrameSpan {
  int64_t first = 0;
  int64_t last = 0;
};

struct RenderOptions {
  std::filesystem::path audio;
  std::optional<FrameSpan> frames;  // none: the one at the loudest moment
  std::filesystem::path out;
  uint32_t downsample = 1;
  Ground ground = Ground::kNone;
  int threads = 1;
};

// Each reads the value of its option. Throws UsageFailure, which says what the option takes.
std::optional<FrameSpan> ParseFrames(const std::string& text);
uint32_t ParseDownsample(const std::string& text);
Ground ParseGround(const std::string& text);
int ParseThreads(const std::string& text);
