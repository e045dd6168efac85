// Catches text that is written beyond its room, cut short, or left without its zero.
#include "platform/MultiByteText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

TEST(MultiByteText, FillsItsRoomAndNoMore) {
  constexpr uint16_t kGuard = 0xBEEF;
  const std::string text = "Range 2";
  for (size_t capacity = 1; capacity < text.size() + 3; ++capacity) {
    std::vector<uint16_t> units(text.size() + 4, kGuard);
    MultiByteToUtf16(text.c_str(), units.data(), capacity);
    const std::string fits = text.substr(0, capacity - 1);
    EXPECT_EQ(std::string(units.begin(), units.begin() + static_cast<ptrdiff_t>(fits.size())),
              fits);
    EXPECT_EQ(units[fits.size()], 0) << capacity;
    EXPECT_EQ(units[capacity], kGuard) << capacity;
  }
}
