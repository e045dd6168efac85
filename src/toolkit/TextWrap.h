// Breaks a text into lines.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "drawing/Fonts.h"

// Lines of a text up to a 0, no wider than `width` logical pixels. They break at "\n" and between
// words; a word that is wider alone breaks inside. The blank that a line breaks at is in neither
// line. One character at least stands in a line, whatever its width.
//
// mostLines   further text is left out
std::vector<std::string> WrapText(const std::string& text, const Font& font, int32_t width,
                                  int32_t mostLines);
