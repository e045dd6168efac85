// Catches failures that would reach the host as success, or leave the user without a word.
#include "shell/ThrownFailure.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>
#include <string>

namespace {

constexpr const char* kNoText = nullptr;

struct ThrownCase {
  const char* what;
  std::function<void()> raise;
  PF_Err error;
  const char* message;  // how it begins; empty: none
};

const ThrownCase kCases[] = {
    {"an error code", [] { throw 516; }, 516, ""},
    {"a code that means success", [] { throw 0; }, 512, ""},
    {"a text", [] { throw "CreateCustomPanels failed!"; }, 512, "CreateCustomPanels failed!"},
    {"no text", [] { throw kNoText; }, 512, "Delvior stopped"},
    {"no memory", [] { throw std::bad_alloc(); }, 4, ""},
    {"an exception", [] { throw std::runtime_error(std::string(400, 'x')); }, 512, "xxx"},
    {"anything else", [] { throw 1.5F; }, 512, "Delvior stopped"},
};

TEST(ThrownFailure, BecomesAnErrorCodeAndAText) {
  for (const ThrownCase& c : kCases) {
    for (const bool hasOutData : {true, false}) {
      PF_OutData out_data{};
      PF_Err error = PF_Err_NONE;
      try {
        c.raise();
      } catch (...) {
        error = ReportThrownFailure(hasOutData ? &out_data : nullptr);
      }
      EXPECT_EQ(error, c.error) << c.what;
      if (!hasOutData) continue;
      const bool told = c.message[0] != '\0';
      EXPECT_EQ((out_data.out_flags & PF_OutFlag_DISPLAY_ERROR_MESSAGE) != 0, told) << c.what;
      EXPECT_TRUE(std::string(out_data.return_msg).starts_with(c.message)) << c.what;
      EXPECT_LT(std::string(out_data.return_msg).size(), sizeof out_data.return_msg) << c.what;
    }
  }
}

}  // namespace
