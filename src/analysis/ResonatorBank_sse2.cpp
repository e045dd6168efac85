// Passes of resonators in vectors of two, which every 64-bit x86 processor has.
#include "analysis/ResonatorPass.h"

using Doubles = double __attribute__((vector_size(16)));
using Bits = int64_t __attribute__((vector_size(16)));

constinit const LanePasses kPasses_sse2 = MakePasses<Doubles, Bits>();
