// Made-up banks and sounds on which every form of the resonator bank has to agree.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "analysis/ResonatorBank.h"

struct BankCase {
  ResonatorBank bank;
  std::vector<int16_t> samples;  // interleaved
  int32_t channel = 0;           // 0 and 3 are both the mean
};

// The bank of the bands whose bit is set in `mask`.
ResonatorBank TunedBank(uint32_t mask, double Q);

// The same case for the same number, everywhere: any mask, Q and channel, and up to 800 frames or a
// whole window of noise, extremes, single samples, steps or tails.
BankCase MakeBankCase(uint32_t number);

// Runs the case through every form that this processor has. Returns nothing where each gives the
// plain loop's sums, bit for bit, and leaves the entries behind them alone; else the first
// difference in words.
std::string FindDifference(const BankCase& bankCase);
