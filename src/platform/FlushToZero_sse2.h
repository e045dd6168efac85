// Arithmetic without subnormal numbers, for the lifetime of an object.
#pragma once

#include <xmmintrin.h>

// From construction to destruction, results too small for a normal number become 0 on this thread,
// and such operands count as 0: processors take many times as long for them. The thread's control
// word is then put back as it was.
class FlushToZero {
 public:
  FlushToZero() {
    constexpr unsigned kFlushResults = 0x8000;
    constexpr unsigned kFlushOperands = 0x0040;
    _mm_setcsr(saved | kFlushResults | kFlushOperands);
  }
  ~FlushToZero() { _mm_setcsr(saved); }
  FlushToZero(const FlushToZero&) = delete;
  FlushToZero& operator=(const FlushToZero&) = delete;

 private:
  const unsigned saved = _mm_getcsr();
};
