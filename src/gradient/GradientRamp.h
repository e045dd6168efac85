// The rule that turns the stops of a colour map into its ramp of 201 colours.
#pragma once

#include "gradient/GradientView.h"

// Writes all 201 entries of the three ramp arrays, and nothing else, from the view's stops.
//
//   stops     a at 1            b at 5
//   entry     0  1  2  3  4  5  6 .. 200
//   colour    a  a  a  .  .  b  b    b
//
// The entry just behind a stop still has that stop's colour, and from there the colour moves in
// equal steps until it arrives at the next stop's. Before the first stop and behind the last one
// the colour stays; two stops at one position make a hard edge; without stops all is 0.0.
//
// A stored position of 201 to 254 counts as 200. Stops out of order and components that are no
// finite number give an odd ramp and do no harm.
void RebuildRamp(GradientView& view);
