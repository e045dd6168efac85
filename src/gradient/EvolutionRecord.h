// What the curve editor works on: an effect's curves, and which of them is shown.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "gradient/CurveView.h"

struct EvolutionRecord {
  int32_t mode = 0;                 // 0 to 3: says which curve is edited; any other counts as 0
  uint32_t freehandFlags = 0;       // bits 1, 2 and 4: that curve was drawn freehand
  std::array<CurveView, 3> curves;  // of the flags 1, 2 and 4; the arrays are not owned
};

// The first and the last mode edit the same curve.
inline size_t CurveIndexOf(const EvolutionRecord& record) {
  constexpr std::array<size_t, 4> kIndices = {1, 0, 2, 1};
  const bool isKnown = record.mode >= 0 && record.mode < 4;
  return kIndices[isKnown ? static_cast<size_t>(record.mode) : 0];
}

inline uint32_t FreehandFlagOf(const EvolutionRecord& record) {
  return 1U << CurveIndexOf(record);
}
