// The forms of the resonator bank on a processor that nothing is known of.
#include "analysis/ResonatorForms.h"

std::span<const ResonatorForm> ResonatorForms() {
  static constexpr ResonatorForm kForms[] = {{"scalar", SumMagnitudes_scalar}};
  return kForms;
}
