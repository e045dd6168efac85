// Catches icons that are missing, of the wrong size, or not found by their name.
#include "platform/NamedResource.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "drawing/NativeImageBuffer.h"

TEST(NamedResource, EveryIconOfThePanelsIsThereAtItsSize) {
  struct Icon {
    const char* files;  // as controls name them
    int32_t width, height;
  };
  constexpr Icon kIcons[] = {
      {"Undo_Normal Undo_Over Undo_Disabled Redo_Normal Redo_Over Redo_Disabled", 24, 28},
      {"Reset_Normal Reset_Over Reset_Disabled Curve_Normal Curve_Over", 32, 32},
      {"Freehand_Normal Freehand_Over", 32, 32},
      {"Flip_Normal Flip_Over", 39, 32},
  };
  for (const Icon& icon : kIcons) {
    std::istringstream files(icon.files);
    for (std::string file; files >> file;) {
      NativeImageBuffer picture;
      EXPECT_TRUE(picture.CreateWithResource((file + ".png").c_str(), nullptr, 2.0F)) << file;
      EXPECT_EQ(picture.Bounds(), (Rect{0, 0, icon.width, icon.height})) << file;
    }
  }
}

TEST(NamedResource, IsFoundByItsWholeNameAndTypeInAnyCase) {
  EXPECT_NE(FindNamedResource(nullptr, "fLiP_nOrMaL_2x", "png").bytes, nullptr);
  EXPECT_EQ(FindNamedResource(nullptr, "FLIP_NORMAL_2", "PNG").bytes, nullptr);
  EXPECT_EQ(FindNamedResource(nullptr, "FLIP_NORMAL_2X", "JPG").bytes, nullptr);
}
