// Holds the forms of the resonator bank against each other: bank_cases [FIRST [COUNT]]
#include <charconv>
#include <cstring>
#include <iostream>
#include <string>

#include "analysis/ResonatorForms.h"
#include "tools/bankcases/BankCase.h"

namespace {

bool ReadNumber(const char* text, uint32_t& number) {
  const char* const end = text + std::strlen(text);
  const auto [rest, failure] = std::from_chars(text, end, number);
  return failure == std::errc() && rest == end;
}

}  // namespace

int main(int argc, char** argv) {
  uint32_t first = 0;
  uint32_t count = 1000000;
  if (argc > 3 || (argc > 1 && !ReadNumber(argv[1], first)) ||
      (argc > 2 && !ReadNumber(argv[2], count))) {
    std::cerr << "bank_cases takes the number of the first case and how many: bank_cases 0 1000\n";
    return 2;
  }
  std::cout << "Forms:";
  for (const ResonatorForm& form : ResonatorForms()) std::cout << ' ' << form.name;
  std::cout << '\n';
  uint32_t differences = 0;
  for (uint32_t i = 0; i < count; ++i) {
    const std::string difference = FindDifference(MakeBankCase(first + i));
    if (difference.empty()) continue;
    ++differences;
    std::cout << "Case " << first + i << ": " << difference << '\n';
  }
  std::cout << count << " cases from " << first << " on, " << differences << " with a difference\n";
  return differences == 0 ? 0 : 1;
}
