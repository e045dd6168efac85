// Values off a fuzzer's input.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

// Past the input's end all values are 0.
class Input {
 public:
  Input(const uint8_t* data, size_t size) : next(data), left(size) {}

  template <typename Value>
  Value Take() {
    Value value = {};
    const size_t count = std::min(sizeof(value), left);
    if (count > 0) std::memcpy(&value, next, count);
    next += count;
    left -= count;
    return value;
  }

  bool IsEmpty() const { return left == 0; }

 private:
  const uint8_t* next;
  size_t left;
};
