// The 32 bands of the spectrum: their centre frequencies and their shares of the four group gains.
#pragma once

#include <array>
#include <cstdint>

constexpr int32_t kBandCount = 32;

constexpr double kFirstBandHz = 20.0;
constexpr double kBandRatio = 1.240937761;

// Centre frequencies in Hz. Accumulated band by band: a power of the ratio rounds differently.
constexpr std::array<double, kBandCount> kBandFrequencies = [] {
  std::array<double, kBandCount> frequencies{};
  double frequency = kFirstBandHz;
  for (double& entry : frequencies) {
    entry = frequency;
    frequency = frequency * kBandRatio;
  }
  return frequencies;
}();

// How much of each group's gain a band takes. The shares add up to 1, up to rounding.
struct GroupShares {
  double subBase = 0.0;
  double base = 0.0;
  double mid = 0.0;
  double treble = 0.0;
};

// Shares of one band, 0 to 31. Between two groups the gain passes over in three steps.
constexpr GroupShares GroupSharesOf(int32_t band) {
  constexpr double kThird = 0.3333333333;  // ten digits: band 10 takes 0.9999999999 of `base`
  GroupShares shares;
  if (band < 2) {
    shares.subBase = 1.0;
  } else if (band == 2) {
    shares.subBase = 0.5;
    shares.base = 0.5;
  } else if (band < 10) {
    shares.base = 1.0;
  } else if (band < 13) {
    shares.base = (13 - band) * kThird;
    shares.mid = 1.0 - shares.base;
  } else if (band < 20) {
    shares.mid = 1.0;
  } else if (band < 23) {
    shares.mid = (23 - band) * kThird;
    shares.treble = 1.0 - shares.mid;
  } else {
    shares.treble = 1.0;
  }
  return shares;
}
