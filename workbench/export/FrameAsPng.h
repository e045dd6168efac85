// One frame as a PNG file's bytes.
#pragma once

#include <string>

#include "workbench/export/FramePixels.h"

// 8 bits a channel, red, green, blue and straight alpha: the bytes of the pixels as they are, those
// under alpha 0 too. Throws JobFailure where libpng refuses, as it does a frame without pixels.
std::string FrameAsPng(const FramePixels& frame);
