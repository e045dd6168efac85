// Faint coverage beside letters, by which the kerning knows their space from open ground.
#pragma once

#include "tools/fonts/Glyph.h"
#include "tools/fonts/Recipes.h"

// Lays a fringe to the right of a letter's ink, row by row, as wide as the letter's space.
//
// Kerning slides two letters together until their coverage meets, and so would eat all empty space
// between two stems. With the fringe the first column of a facing stem meets just enough of it to
// stay. It is too faint to see: 6 of 255, and up to 10 beside the tip of an arm. Only capitals are
// open to a neighbour all the way: small letters run more evenly where none moves in far.
void LayFringe(Glyph& letter, bool isCapital, const Recipe& recipe);
