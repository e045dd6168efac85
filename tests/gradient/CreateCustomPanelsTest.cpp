// Catches panels that are missing, made at the wrong size, or left behind.
#include "gradient/CreateCustomPanels.h"

#include <gtest/gtest.h>

#include "toolkit/CustomPanel.h"
#include "toolkit/PanelRegistry.h"
#include "toolkit/SharedBuffers.h"

namespace {

TEST(CreateCustomPanels, MakeAndDestroyInAnyOrder) {
  DestroyCustomPanels();
  EXPECT_EQ(FindCustomPanel(12), nullptr);
  for (int time = 0; time < 2; ++time) {
    CreateCustomPanels();
    CreateCustomPanels();
    ASSERT_NE(FindCustomPanel(12), nullptr);
    EXPECT_EQ(FindCustomPanel(12)->GetBounds(), (Rect{0, 0, 306, 130}));
    ASSERT_NE(ScreenBuffer(), nullptr);
    EXPECT_EQ(ScreenBuffer()->Bounds(), (Rect{0, 0, 1024, 1024}));
    EXPECT_EQ(ScreenBuffer()->ToPhysical(Rect{1, 2, 3, 4}), (Rect{2, 4, 6, 8}));
    DestroyCustomPanels();
    EXPECT_EQ(FindCustomPanel(12), nullptr);
    EXPECT_EQ(ScreenBuffer(), nullptr);
  }
}

TEST(CreateCustomPanels, ALargerPanelMakesANewBufferAtScaleOne) {
  CreateCustomPanels();
  const CustomPanel wide({0, 0, 1500, 10}, 13);
  EXPECT_EQ(ScreenBuffer()->Bounds(), (Rect{0, 0, 1500, 1024}));
  EXPECT_FALSE(ScreenBuffer()->ConvertsCoordinates());
  EXPECT_EQ(FindCustomPanel(13), nullptr);
  DestroyCustomPanels();
}

}  // namespace
