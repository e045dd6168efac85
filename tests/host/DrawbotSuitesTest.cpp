// Catches drawing suites that stay acquired when one of the four is missing.
#include <gtest/gtest.h>

#include "FakeSuites.h"
#include "host/SuiteHelper.h"

namespace {

TEST(DrawbotSuites, AreAllHeldOrNone) {
  for (const char* missing : {"", "DRAWBOT Draw Suite", "DRAWBOT Supplier Suite",
                              "DRAWBOT Surface Suite", "DRAWBOT Path Suite"}) {
    FakeSuites host;
    host.missing.insert(missing);
    AEFX_DrawbotSuites suites;
    const PF_Err error = AEFX_AcquireDrawbotSuites(&host.in_data, &host.out_data, &suites);
    const bool whole = missing[0] == '\0';
    EXPECT_EQ(error, whole ? PF_Err_NONE : PF_Err_BAD_CALLBACK_PARAM) << missing;
    EXPECT_EQ(host.HeldCount(), whole ? 4 : 0) << missing;
    EXPECT_EQ(suites.drawSuite != nullptr, whole) << missing;
    EXPECT_EQ(suites.pathSuite != nullptr, whole) << missing;
    EXPECT_EQ((host.out_data.out_flags & PF_OutFlag_DISPLAY_ERROR_MESSAGE) != 0, !whole) << missing;
    if (!whole) continue;
    EXPECT_EQ(AEFX_ReleaseDrawbotSuites(&host.in_data, &host.out_data), PF_Err_NONE);
    EXPECT_EQ(host.HeldCount(), 0);
  }
}

TEST(DrawbotSuites, NeedSomewhereToGoAndAHostToAsk) {
  FakeSuites host;
  EXPECT_EQ(AEFX_AcquireDrawbotSuites(&host.in_data, &host.out_data, nullptr), 514);
  EXPECT_NE(host.out_data.out_flags, 0);

  host.in_data.pica_basicP = nullptr;
  AEFX_DrawbotSuites suites;
  EXPECT_EQ(AEFX_AcquireDrawbotSuites(&host.in_data, &host.out_data, &suites),
            PF_Err_BAD_CALLBACK_PARAM);
  EXPECT_EQ(AEFX_ReleaseDrawbotSuites(&host.in_data, &host.out_data), PF_Err_BAD_CALLBACK_PARAM);
}

TEST(DrawbotSuites, ARefusedReleaseStillReleasesTheOthers) {
  FakeSuites host;
  AEFX_DrawbotSuites suites;
  ASSERT_EQ(AEFX_AcquireDrawbotSuites(&host.in_data, &host.out_data, &suites), PF_Err_NONE);
  host.releaseError = 99;
  EXPECT_EQ(AEFX_ReleaseDrawbotSuites(&host.in_data, &host.out_data), 99);
  EXPECT_EQ(host.HeldCount(), 0);
}

}  // namespace
