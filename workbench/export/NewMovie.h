// The seam to what writes movies.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>

#include "workbench/export/FrameOutput.h"

// Throws JobFailure where this program was built without codecs.
void RequireMovies(const std::filesystem::path& target);

// A movie with alpha in the making.
//
// target          a name that ends in .mov
// width, height   of every frame
// scale, step     scale / step frames a second
// Throws JobFailure.
std::unique_ptr<FrameOutput> NewMovie(const std::filesystem::path& target, int32_t width,
                                      int32_t height, uint32_t scale, int32_t step);
