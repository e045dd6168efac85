// A basic suite that has some suites and counts who holds them.
#pragma once

#include <cstdio>
#include <map>
#include <set>
#include <string>

#include "AE_Effect.h"
#include "AE_EffectSuites.h"

// One call's records in a host that has every suite but `missing`. What a suite's address points at
// plays no part, unless `tables` names it.
struct FakeSuites {
  FakeSuites() {
    current = this;
    basic.AcquireSuite = [](const char* name, int, const void** suite) -> SPErr {
      const auto table = current->tables.find(name);
      *suite = table != current->tables.end() ? table->second : current;
      // As hosts do, a refusal leaves something that looks like a suite.
      if (current->missing.contains(name)) return 1;
      ++current->held[name];
      return 0;
    };
    basic.ReleaseSuite = [](const char* name, int) -> SPErr {
      --current->held[name];
      return current->releaseError;
    };
    utils.ansi.sprintf = std::sprintf;
    in_data.pica_basicP = &basic;
    in_data.utils = &utils;
  }

  int HeldCount() const {
    int count = 0;
    for (const auto& [name, references] : held) count += references;
    return count;
  }

  static inline FakeSuites* current = nullptr;
  SPBasicSuite basic{};
  PF_UtilCallbacks utils{};
  PF_InData in_data{};
  PF_OutData out_data{};
  std::set<std::string> missing;
  std::map<std::string, const void*> tables;
  std::map<std::string, int> held;
  SPErr releaseError = 0;
};
