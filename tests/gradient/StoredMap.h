// A stored colour map between two guards, so that a test can compare every byte around an edit.
#pragma once

#include <rapidcheck.h>

#include <array>
#include <cstring>
#include <tuple>
#include <vector>

#include "gradient/GradientRecord.h"

using Stop = std::tuple<uint8_t, float, float, float>;  // position, red, green, blue

struct StoredMap {
  static constexpr size_t kGuard = 64;
  alignas(GradientRecord) std::array<uint8_t, sizeof(GradientRecord) + 2 * kGuard> bytes = {};

  explicit StoredMap(uint8_t filler) { bytes.fill(filler); }

  // `stops` in the leading slots as they come, the other slots free; the rest is a filler.
  explicit StoredMap(const std::vector<Stop>& stops) : StoredMap(uint8_t{0xA5}) {
    GradientRecord& map = Record();
    std::memset(map.stopPosition, 255, sizeof map.stopPosition);
    for (size_t i = 0; i < stops.size(); ++i) {
      std::tie(map.stopPosition[i], map.stopRed[i], map.stopGreen[i], map.stopBlue[i]) = stops[i];
    }
  }

  GradientRecord& Record() { return *reinterpret_cast<GradientRecord*>(bytes.data() + kGuard); }
  bool operator==(const StoredMap&) const = default;
};

// Up to 50 stops in any order, at any stored position but the end mark.
inline rc::Gen<std::vector<Stop>> AnyStops() {
  const auto position = rc::gen::cast<uint8_t>(rc::gen::inRange(0, 255));
  const auto component = rc::gen::arbitrary<float>();
  const auto stop = rc::gen::tuple(position, component, component, component);
  const auto stops = rc::gen::mapcat(rc::gen::inRange<size_t>(0, 51), [stop](size_t count) {
    return rc::gen::container<std::vector<Stop>>(count, stop);
  });
  return rc::gen::resize(rc::kNominalSize, stops);
}
