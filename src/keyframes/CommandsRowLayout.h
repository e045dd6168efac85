// Where the Commands row has its button and its marks.
#pragma once

#include <cstdint>

#include "AE_EffectUI.h"

// Pixels of the host's panel; 64 bits, since the host's frames and points may be anything.
struct RowRect {
  int64_t left, top, right, bottom;
};

//            current_frame.left              current_frame.right
//                   |             rowMid            |
//   x counts from 0, whatever the frame's left:     1 2 3  | Apply |
struct CommandsRowLayout {
  explicit CommandsRowLayout(const PF_UnionableRect& frame)
      : rowMid((int64_t{frame.right} - frame.left) / 2), rowTop(frame.top) {}

  RowRect ApplyButton() const { return {rowMid, rowTop + 1, rowMid + 50, rowTop + 14}; }

  // range   0, 1 or 2
  RowRect ActiveMark(int32_t range) const {
    const int64_t left = rowMid - 45 + int64_t{12} * range;
    return {left, rowTop + 3, left + 10, rowTop + 13};
  }

  int64_t rowMid;
  int64_t rowTop;
};
