// Catches handles that stay in their place, so that a pointer kept past its lock goes unnoticed.
#include "workbench/host/MovableHandles.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr size_t kSize = 3112;

bool AllAre(const void* place, uint8_t value) {
  const auto* bytes = static_cast<const uint8_t*>(place);
  return std::all_of(bytes, bytes + kSize, [value](uint8_t byte) { return byte == value; });
}

TEST(MovableHandles, MoveAndLeavePoisonAtTheLastUnlockOnly) {
  const std::vector<uint8_t> content(kSize, 7);
  MovableHandles handles;
  const PF_Handle handle = handles.NewFrom(content);
  const void* oldPlace = nullptr;
  for (int round = 0; round < 6; ++round) {
    const void* place = handles.Lock(handle).memory;
    EXPECT_EQ(*handle, place);
    EXPECT_EQ(handles.Lock(handle).memory, place);
    EXPECT_EQ(handles.Unlock(handle).broken, "");
    EXPECT_TRUE(AllAre(place, 7)) << "one lock is left in round " << round;
    EXPECT_TRUE(round == 0 || AllAre(oldPlace, MovableHandles::kPoisonByte)) << round;
    EXPECT_EQ(handles.Unlock(handle).broken, "");
    EXPECT_TRUE(AllAre(place, MovableHandles::kPoisonByte)) << round;
    EXPECT_EQ(*handle, nullptr);
    EXPECT_EQ(handles.Bytes(handle), content);
    oldPlace = place;
  }
}

TEST(MovableHandles, TellOfCallsOnWhatIsForeignGoneOrUnlocked) {
  MovableHandles handles;
  A_char* place = nullptr;
  const PF_Handle gone = handles.New(8);
  EXPECT_EQ(handles.Dispose(gone).broken, "");
  for (const PF_Handle handle : {PF_Handle{nullptr}, &place, gone}) {
    EXPECT_NE(handles.Lock(handle).broken, "");
    EXPECT_NE(handles.Unlock(handle).broken, "");
    EXPECT_NE(handles.Dispose(handle).broken, "");
  }
  const PF_Handle handle = handles.New(8);
  EXPECT_EQ(handles.Unlock(handle).broken, "the handle is not locked");
  handles.Lock(handle);
  EXPECT_EQ(handles.Dispose(handle).broken, "the handle is still locked");
  EXPECT_EQ(handles.LiveCount(), 0U);
}

TEST(MovableHandles, MayBeEmptyButNotLargerThanMemory) {
  MovableHandles handles;
  const PF_Handle empty = handles.New(0);
  EXPECT_NE(handles.Lock(empty).memory, nullptr);
  EXPECT_EQ(handles.Unlock(empty).broken, "");
  EXPECT_TRUE(handles.Bytes(empty).empty());
  for (const uint64_t size : {(uint64_t{1} << 30) + 1, ~uint64_t{0}}) {
    EXPECT_EQ(handles.New(size), nullptr) << size;
  }
}

}  // namespace
