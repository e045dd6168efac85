// The pictures of a button, one for each of its states, which may belong to the button.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "toolkit/ButtonColors.h"

// The same picture may stand in several slots; an owned one is deleted when the last one lets go.
template <typename Image>
class ImageSlots {
 public:
  explicit ImageSlots(bool ownsImages) : owned(ownsImages) {}
  ImageSlots(const ImageSlots&) = delete;
  ImageSlots& operator=(const ImageSlots&) = delete;
  ~ImageSlots() {
    for (int32_t i = 0; i < kButtonStateCount; ++i) Set(i, nullptr);
  }

  // Whether pictures are deleted when they are replaced, and with the slots.
  void SetOwned(bool ownsImages) { owned = ownsImages; }

  // Null outside 0 to 6.
  Image* Get(int32_t index) const { return Holds(index) ? slots[Position(index)] : nullptr; }

  // Puts a picture, or null, in the place of another. Returns false where nothing changes; outside
  // 0 to 6 the picture stays the caller's.
  bool Set(int32_t index, Image* image) {
    if (!Holds(index) || slots[Position(index)] == image) return false;
    const Image* replaced = std::exchange(slots[Position(index)], image);
    if (owned && std::find(slots.begin(), slots.end(), replaced) == slots.end()) delete replaced;
    return true;
  }

 private:
  static bool Holds(int32_t index) { return index >= 0 && index < kButtonStateCount; }
  static size_t Position(int32_t index) { return static_cast<size_t>(index); }

  std::array<Image*, kButtonStateCount> slots = {};
  bool owned;
};
