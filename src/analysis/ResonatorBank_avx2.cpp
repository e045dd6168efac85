// Passes of resonators in vectors of four, for processors with AVX2.
#include "analysis/ResonatorPass.h"

using Doubles = double __attribute__((vector_size(32)));
using Bits = int64_t __attribute__((vector_size(32)));

constinit const LanePasses kPasses_avx2 = MakePasses<Doubles, Bits>();
