// Pictures of specimens: making one of a scale, and writing it as a PNG file.
#pragma once

#include <cstdint>
#include <filesystem>

#include "drawing/ImageBuffer.h"

// Gives `picture` a size in logical pixels, each of `scale` by `scale`, and makes drawing in it
// take those.
void MakeDemoPicture(ImageBuffer& picture, int32_t width, int32_t height, int32_t scale);

// Throws std::filesystem::filesystem_error.
void WriteDemoPicture(const ImageBuffer& picture, const std::filesystem::path& file);
