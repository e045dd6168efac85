// Puts the screen buffer on the surface of a draw event.
#pragma once

#include <cstdint>

#include "drawing/NativeImageBuffer.h"
#include "host/PluginContext_AE.h"

// buffer       two pixels for each logical one, in both directions
// srcX, srcY   pixels of the buffer
// width, height, dstX, dstY   logical pixels of the panel's window
//
// Returns false outside of a draw event, where nothing is drawn. A failure paints nothing, leaves
// a line on the error stream and returns true: there is no second way to the screen.
bool BlitToDrawBot(const PluginContext_AE& pluginContext, const NativeImageBuffer& buffer,
                   int32_t srcX, int32_t srcY, int32_t width, int32_t height, int32_t dstX,
                   int32_t dstY);
