// The arrays of one curve, wherever they lie: what every edit of a curve works on.
#pragma once

#include <cstdint>

inline constexpr int32_t CurveSampleCount = 201;
inline constexpr int32_t CurvePositionEnd = 200;
inline constexpr int32_t CurvePointLimit = 25;
inline constexpr int32_t CurveFewestPoints = 3;    // that a deletion leaves
inline constexpr float CurveLeastDistance = 4.0F;  // between neighbours, in positions
inline constexpr float CurveListEnd = 255.0F;      // as the x of a slot: no point from here on
inline constexpr int32_t CurveNoPoint = 255;       // in place of a slot's index

// A curve as it is stored.
struct CurveRecord {
  float samples[CurveSampleCount] = {};
  float pointX[CurvePointLimit] = {CurveListEnd};
  float pointY[CurvePointLimit] = {};
};

// Not owned. Whatever numbers stand there, everything that works on a view is safe on them: a value
// beyond 0.0 to 1.0 counts as the nearer end where the curve is built, and one that is no number
// as 0.
struct CurveView {
  float* samples = nullptr;  // CurveSampleCount values, 0.0 to 1.0: what the curve's users read
  float* pointX = nullptr;   // CurvePointLimit positions, 0 to 200, ascending up to CurveListEnd
  float* pointY = nullptr;   // CurvePointLimit values, 0.0 to 1.0
};

inline CurveView ViewOf(CurveRecord& record) {
  return {record.samples, record.pointX, record.pointY};
}
