// How far the mouse moves during a press, also where the pointer is held by the edge of the screen.
#pragma once

#include "platform/Pointer.h"

// One press at a time, on the host's UI thread. Each call says where the event has the pointer: a
// system that can't count the mouse's own movement takes the pointer's for it.

// window   the host's, for systems that give the mouse to a window; may be null
// Nothing is reported where the mouse can't be had: the press goes on with the pointer's movement.
void StartRawMouse(void* window, const PointerPosition& position);

// The movement since the call before, in counts of the mouse or in pixels.
void ReadMouseDelta(const PointerPosition& position, float* dx, float* dy);

void StopRawMouse();
