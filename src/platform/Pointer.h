// The pointer on the screen. Where a program can't reach it, it stands where it was last put.
#pragma once

#include <cstdint>
#include <optional>

// Pixels of the screen.
struct PointerPosition {
  int32_t x = 0;
  int32_t y = 0;
};

PointerPosition GetPointerPosition();
void SetPointerPosition(const PointerPosition& position);

// The lower right end of the screen; 0 where there is none.
PointerPosition GetScreenExtent();

// Nothing where the system doesn't say.
std::optional<bool> IsPointerShown();

// To be called only where that is a change: a system may count the calls.
void ShowPointer(bool show);
