// A stored curve between two guards.
#pragma once

#include <algorithm>
#include <vector>

#include "gradient/CurvePoints.h"

struct StoredCurve {
  float front[16] = {};
  CurveRecord record;
  float behind[16] = {};

  // Points at these positions, each of another value; behind them lies what was there before.
  explicit StoredCurve(const std::vector<float>& points) {
    std::fill(std::begin(front), std::end(front), 7.0F);
    std::fill(std::begin(behind), std::end(behind), 7.0F);
    std::fill(std::begin(record.pointX), std::end(record.pointX), 33.0F);
    for (size_t i = 0; i < points.size(); ++i) {
      record.pointX[i] = points[i];
      record.pointY[i] = static_cast<float>(i) / 32.0F;
    }
    if (points.size() < CurvePointLimit) record.pointX[points.size()] = CurveListEnd;
  }

  CurveView View() { return ViewOf(record); }
  std::vector<float> Points() { return {record.pointX, record.pointX + CountPoints(View())}; }
  bool GuardsAreWhole() const {
    const auto isGuard = [](float number) { return number == 7.0F; };
    return std::all_of(std::begin(front), std::end(front), isGuard) &&
           std::all_of(std::begin(behind), std::end(behind), isGuard);
  }
  bool operator==(const StoredCurve& other) const {
    const CurveRecord& theirs = other.record;
    return std::ranges::equal(record.samples, theirs.samples) &&
           std::ranges::equal(record.pointX, theirs.pointX) &&
           std::ranges::equal(record.pointY, theirs.pointY);
  }
};
