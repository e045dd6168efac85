// Numbers as text, the same under every locale.
#pragma once

#include <string>

// The fewest digits that read back as the same value, never with an exponent: 100000, 0.00001.
std::string ShortestText(double value);

// 17 significant digits, or as many as are not trailing zeros: reads back as the same value.
std::string PreciseText(double value);
