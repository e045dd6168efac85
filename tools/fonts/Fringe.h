// Faint coverage beside letters, by which the kerning knows their space from open ground.
#pragma once

#include "tools/fonts/Glyph.h"

// Lays a fringe to the right of a letter's ink, row by row, as wide as the letter's space.
//
// Kerning slides two letters together until their coverage meets, and so would eat all empty space
// between two stems. With the fringe the first column of a facing stem meets just enough of it to
// stay. It is too faint to see: 1 or 2 of 255 beside a stem, more only beside the tip of an arm.
//
// kernThreshold   what the contact of two edges must come to, to hold them apart
void LayFringe(Glyph& letter, int kernThreshold);
