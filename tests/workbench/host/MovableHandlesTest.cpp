// Catches handles that stay in their place, so that a pointer kept past its lock goes unnoticed.
#include "workbench/host/MovableHandles.h"

#include <gtest/gtest.h>

#include <numeric>

namespace {

using Bytes = std::vector<uint8_t>;

Bytes BytesAt(const void* place, size_t size) {
  const auto* bytes = static_cast<const uint8_t*>(place);
  return {bytes, bytes + size};
}

TEST(MovableHandles, MoveAndLeavePoisonAtTheLastUnlockOnly) {
  Bytes content(3112);
  std::iota(content.begin(), content.end(), uint8_t{1});
  const Bytes poison(content.size(), MovableHandles::kPoisonByte);
  MovableHandles handles;
  const PF_Handle handle = handles.NewFrom(content);
  const void* oldPlace = poison.data();
  for (int round = 0; round < 6; ++round) {
    const void* place = handles.Lock(handle).memory;
    EXPECT_EQ(*handle, place);
    EXPECT_EQ(handles.Lock(handle).memory, place);
    EXPECT_EQ(handles.Unlock(handle).broken, "");
    EXPECT_EQ(BytesAt(place, content.size()), content) << "one lock is left in round " << round;
    EXPECT_EQ(BytesAt(oldPlace, content.size()), poison) << "used again in round " << round;
    EXPECT_EQ(handles.Unlock(handle).broken, "");
    EXPECT_EQ(BytesAt(place, content.size()), poison) << round;
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
    const MovableHandles::Outcome outcome = handles.Lock(handle);
    EXPECT_EQ(outcome.memory, nullptr);
    EXPECT_NE(outcome.broken, "");
    EXPECT_NE(handles.Unlock(handle).broken, "");
    EXPECT_NE(handles.Dispose(handle).broken, "");
  }
  const PF_Handle handle = handles.New(8);
  EXPECT_EQ(handles.Unlock(handle).broken, "the handle is not locked");
  handles.Lock(handle);
  EXPECT_EQ(handles.Dispose(handle).broken, "the handle is still locked");
  EXPECT_EQ(handles.LiveCount(), 0U);
}

TEST(MovableHandles, HoldEverySizeThatCanBe) {
  MovableHandles handles;
  for (const uint64_t size : {0, 1, 100000}) {
    const PF_Handle handle = handles.New(size);
    EXPECT_EQ(handles.Size(handle), size);
    EXPECT_NE(handles.Lock(handle).memory, nullptr) << size;
    EXPECT_EQ(handles.Unlock(handle).broken, "") << size;
    EXPECT_EQ(handles.Bytes(handle), Bytes(size, MovableHandles::kFreshByte));
  }
  EXPECT_EQ(handles.New(uint64_t{1} << 40), nullptr);
  EXPECT_EQ(handles.New(~uint64_t{0}), nullptr);
  EXPECT_EQ(handles.LiveCount(), 3U);
}

}  // namespace
