// Our own symbols: a check mark and a diamond.
#pragma once

#include "tools/fonts/Glyph.h"
#include "tools/fonts/Recipes.h"

// The check mark for "4", the diamond for "u", a blank cell for every other code.
Glyph DrawSymbol(const Recipe& recipe, int code);
