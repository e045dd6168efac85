// Catches memory that is lost, kept too long or too small, and a scale that outlives its picture.
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <memory>

#include "drawing/NativeImageBuffer.h"
#include "engine/ExceptionInfo.h"

namespace {

constexpr int32_t kMost = std::numeric_limits<int32_t>::max();

std::unique_ptr<ImageBuffer> MakePicture(bool native) {
  std::unique_ptr<ImageBuffer> picture;
  if (native) {
    picture = std::make_unique<NativeImageBuffer>();
  } else {
    picture = std::make_unique<ImageBuffer>();
  }
  picture->Allocate(5, 3, true);
  picture->SetScale(2.0F);
  picture->SetScaleAware(true);
  picture->FillRect(picture->Bounds(), ColorBGRA(0xFF112233), 256, nullptr);
  return picture;
}

void ExpectUntouched(const ImageBuffer& picture, const char* what) {
  ASSERT_EQ(picture.Bounds(), (Rect{0, 0, 5, 3})) << what;
  EXPECT_EQ(picture.Row(2)[4], ColorBGRA(0xFF112233)) << what;
  EXPECT_EQ(picture.Scale(), 2.0F) << what;
  EXPECT_TRUE(picture.IsScaleAware()) << what;
}

TEST(ImageBufferMemory, ASizeThatCannotBeKeepsThePicture) {
  constexpr int32_t kTooLarge[][2] = {{kMost, kMost}, {kMost, 1}, {1, kMost}, {30000, 30000}};
  for (const bool native : {false, true}) {
    const auto picture = MakePicture(native);
    for (const auto& size : kTooLarge) {
      EXPECT_THROW(picture->Allocate(size[0], size[1], true), App::ExceptionInfo);
      ExpectUntouched(*picture, "too large");
    }
    picture->Allocate(5, 3, false);
    ExpectUntouched(*picture, "the same size");
    picture->EnsureSize(4, -1);
    ExpectUntouched(*picture, "large enough");
    picture->Allocate(0, -3, false);
    EXPECT_EQ(picture->Row(0) != nullptr, native) << "below one";
  }
}

TEST(ImageBufferMemory, ANewSizeIsBlankAndAtScaleOne) {
  for (const bool native : {false, true}) {
    const auto picture = MakePicture(native);
    EXPECT_EQ(picture->RowBytes(), native ? 20 : 32);
    EXPECT_EQ(ImageBuffer(*picture).Row(2)[4], ColorBGRA(0xFF112233));
    EXPECT_EQ(ImageBuffer(*picture).Scale(), 1.0F);
    picture->EnsureSize(2, 4);
    EXPECT_EQ(picture->Bounds(), (Rect{0, 0, 5, 4}));
    EXPECT_EQ(picture->RowBytes(), 20);
    EXPECT_EQ(picture->Row(3)[4], ColorBGRA(0));
    EXPECT_EQ(picture->Scale(), 1.0F);
    EXPECT_FALSE(picture->IsScaleAware());
    picture->Release();
    EXPECT_EQ(picture->Row(0), nullptr);
    EXPECT_EQ(picture->Bounds(), Rect());
    picture->FillRect({0, 0, 5, 5}, ColorBGRA(0), 256, nullptr);
    picture->CopyTo(*picture, {0, 0, 5, 5}, 0, 0, 256, nullptr);
    const auto target = MakePicture(native);
    picture->ScaleTo(*target, {0, 0, 5, 5}, target->Bounds(), nullptr, {});
    ExpectUntouched(*target, "scaled from nothing");
  }
}

}  // namespace
