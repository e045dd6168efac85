// Text as the drawing suites have it, turned into what the rest of the workbench writes.
#pragma once

#include <string>
#include <string_view>

// Half of a pair without the other half becomes U+FFFD.
std::string Utf8From(std::u16string_view text);
