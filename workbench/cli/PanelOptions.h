// What the command line asks of a panel.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "AE_EffectTypes.h"
#include "workbench/export/Ground.h"

struct PanelOptions {
  std::filesystem::path audio;   // empty: silence
  std::filesystem::path events;  // empty: none
  std::filesystem::path out;
  std::filesystem::path keyframes;    // empty: they are not written; likewise the next
  std::filesystem::path recordCalls;  //
  const char* row = "Color Map";      // the name of its parameter
  int32_t zoom = 1;                   // pixels of the picture for each of the row
  PF_Pixel8 color{255, 0x2D, 0x2D, 0x2D};
  Ground ground = Ground::kNone;  // behind the frames of a script
};

// Each reads the value of its option. Throws UsageFailure, which says what the option takes.
const char* ParseRow(const std::string& text);
int32_t ParseZoom(const std::string& text);
PF_Pixel8 ParsePanelColor(const std::string& text);
