// Catches a pointer that isn't where it was put.
#include "platform/Pointer.h"

#include <gtest/gtest.h>

TEST(Pointer, StandsWhereItWasPut) {
  for (const PointerPosition& at : {PointerPosition{0, 0}, {17, 403}, {640, 5}}) {
    SetPointerPosition(at);
    EXPECT_EQ(GetPointerPosition().x, at.x);
    EXPECT_EQ(GetPointerPosition().y, at.y);
  }
}
