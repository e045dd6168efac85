// Whether an Ogg file stops in the midst of a page, the only sign that it leaves of having been
// cut.
#pragma once

#include <istream>

// bytes   any file; read from its start, left somewhere
// False for what isn't Ogg, and for what isn't Ogg any more further on.
bool EndsWithinOggPage(std::istream& bytes);
