// The one way from a floating value to an integer: toward zero, and defined for every value.
#pragma once

#include <cmath>
#include <concepts>
#include <limits>

// Drops the fraction of `value`.
//
// A value beyond what Integer holds becomes the nearest value that it does hold; NaN becomes 0.
// The language leaves both cases open and processors differ in them, so a plain cast would give
// results that depend on the machine.
template <std::integral Integer, std::floating_point Float>
Integer Truncate(Float value) {
  using Limits = std::numeric_limits<Integer>;
  if (std::isnan(value)) return 0;
  // The end of the range as a power of two, which every floating type holds exactly; max() itself
  // may round up to a value that the integer doesn't hold.
  const Float end = std::ldexp(Float{1}, Limits::digits);
  if (value >= end) return Limits::max();
  if (Limits::is_signed ? value < -end : value <= Float{-1}) return Limits::min();
  return static_cast<Integer>(value);
}
