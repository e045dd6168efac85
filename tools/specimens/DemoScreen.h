// The screen buffer that panels are painted for, at scale 2, for as long as this is there.
#pragma once

#include <cstdint>

#include "toolkit/SharedBuffers.h"

class DemoScreen {
 public:
  static constexpr int32_t kScale = 2;

  DemoScreen() {
    MakeScreenBuffer(1280, 800);
    ScaleScreenBuffer(static_cast<float>(kScale));
  }
  ~DemoScreen() {
    ScaleScreenBuffer(1.0F);
    DestroyScreenBuffer();
  }
  DemoScreen(const DemoScreen&) = delete;
  DemoScreen& operator=(const DemoScreen&) = delete;
};
