// How one edge of a control follows its owner's size.
#pragma once

#include <cstdint>

// P is the owner's local area, v the value, a and b the range; right and bottom edges take the
// second form where there are two.
enum AnchorKind : int32_t {
  kAnchorKeep = 0,          // stays; or follows the opposite edge if that one is anchored
  kAnchorFixed = 1,         // v
  kAnchorToEdge = 2,        // P's own edge + v
  kAnchorToFraction = 3,    // P's own edge + v x P's size
  kAnchorToOther = 4,       // the control's opposite edge + v
  kAnchorInRange = 5,       // between a and b, at v
  kAnchorCentered = 6,      // left and top only: in the middle between a and b
  kAnchorCenteredPlus = 7,  // as 6, moved by v
};

struct LayoutAnchor {
  int32_t kind = kAnchorKeep;
  double value = 0.0;
  int32_t rangeStart = 0;
  int32_t rangeEnd = 0;
};
