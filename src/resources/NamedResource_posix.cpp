// Looks a resource up in the linked table. There is one table, whatever the module.
#include "platform/NamedResource.h"

#include <algorithm>
#include <string_view>

#include "resources/LinkedResources.h"

namespace {

// By the alphabet alone: what the user's language makes of an i plays no part.
char UpperCase(char letter) {
  return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

bool IsSameName(std::string_view one, std::string_view other) {
  return std::ranges::equal(one, other, {}, UpperCase, UpperCase);
}

}  // namespace

NamedResource FindNamedResource(ModuleHandle /*module*/, const char* name, const char* type) {
  for (const LinkedResource& resource : linkedResources) {
    if (IsSameName(resource.name, name) && IsSameName(resource.type, type)) {
      return {resource.bytes.data(), static_cast<uint32_t>(resource.bytes.size())};
    }
  }
  return {};
}
