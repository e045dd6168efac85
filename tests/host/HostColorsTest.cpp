// Catches colours asked for by the wrong number, and results written on failure.
#include <gtest/gtest.h>

#include "FakeSuites.h"
#include "host/PluginHost_AE_Impl.h"

namespace {

PF_Err colorError = PF_Err_NONE;

// Red tells which colour was asked for; the low byte is to be dropped.
PF_Err GetColor(PF_App_ColorType type, PF_App_Color* color) {
  *color = {static_cast<A_u_short>(type * 256 + 255), 0x80FF, 0xFFFF};
  return colorError;
}

TEST(HostColors, AreTheHostsKindsAtEightBits) {
  PFAppSuite6 appSuite{};
  appSuite.PF_AppGetColor = GetColor;
  FakeSuites host;
  host.tables["PF AE App Suite"] = &appSuite;
  PluginHost_AE_Impl facade(&host.in_data, &host.out_data, nullptr, nullptr);
  constexpr A_long kKinds[] = {0, 6, 5, 2, 23, 16};
  A_long red = -1;
  A_long green = -1;
  A_long blue = -1;
  for (A_u_long index = 0; index < 6; ++index) {
    EXPECT_EQ(facade.GetAEImpl()->GetAppColor(index, &red, &green, &blue), PF_Err_NONE);
    EXPECT_EQ(red, kKinds[index]) << index;
    EXPECT_EQ(green, 0x80) << index;
    EXPECT_EQ(blue, 0xFF) << index;
  }
  colorError = 77;
  red = -1;
  EXPECT_EQ(facade.GetAppColor(0, &red, &green, &blue), 77);
  EXPECT_EQ(facade.GetAppColor(6, &red, &green, &blue), 1);
  EXPECT_EQ(red, -1);
  EXPECT_EQ(host.HeldCount(), 0);
  colorError = PF_Err_NONE;
}

}  // namespace
