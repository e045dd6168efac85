// The buffers that all panels paint in.
#pragma once

#include <cstdint>

#include "drawing/NativeImageBuffer.h"

// Null until one is made.
NativeImageBuffer* ScreenBuffer();

// Nothing fills it: null.
ImageBuffer* ScratchBuffer();

// Makes a new screen buffer in place of the old one, in physical pixels, at scale 1. Throws
// App::ExceptionInfo kOutOfMemory.
NativeImageBuffer& MakeScreenBuffer(int32_t width, int32_t height);

// Makes a screen buffer at least as large as a panel, and as the one before it. False where that
// one will do, or where there is nothing to hold.
bool EnsureScreenBuffer(int32_t width, int32_t height);

// Makes drawing in the screen buffer take logical coordinates, of so many pixels each, and text be
// set for it. Nothing happens without a buffer.
void ScaleScreenBuffer(float scale);

void DestroyScreenBuffer();
