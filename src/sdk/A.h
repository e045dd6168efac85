// The scalar types and small records that every part of the host's interface shares.
#pragma once

#include <cstddef>
#include <cstdint>

using A_long = int32_t;
using A_u_long = uint32_t;
using A_short = int16_t;
using A_u_short = uint16_t;
using A_char = char;
using A_u_char = uint8_t;
using A_Boolean = uint8_t;
using A_FpLong = double;
using A_FpShort = float;
using A_intptr_t = intptr_t;
using A_u_longlong = uint64_t;
using A_HandleSize = uint64_t;
using A_Err = int32_t;

// A time of value / scale seconds.
struct A_Time {
  A_long value;
  A_u_long scale;
};

struct A_Ratio {
  A_long num;
  A_u_long den;
};

struct A_FloatPoint {
  A_FpLong x;
  A_FpLong y;
};

// The interface is declared for 64-bit processes with IEEE floating point only.
static_assert(sizeof(void*) == 8 && sizeof(int) == 4);
static_assert(sizeof(A_FpLong) == 8 && sizeof(A_FpShort) == 4);

static_assert(sizeof(A_Time) == 8 && offsetof(A_Time, scale) == 4);
static_assert(sizeof(A_Ratio) == 8 && offsetof(A_Ratio, den) == 4);
static_assert(sizeof(A_FloatPoint) == 16 && offsetof(A_FloatPoint, y) == 8);
