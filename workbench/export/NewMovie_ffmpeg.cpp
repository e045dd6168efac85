// Movies by FFmpeg.
#include "workbench/export/MovieFile.h"
#include "workbench/export/NewMovie.h"

void RequireMovies(const std::filesystem::path& /*target*/) {}

std::unique_ptr<FrameOutput> NewMovie(const std::filesystem::path& target, int32_t width,
                                      int32_t height, uint32_t scale, int32_t step) {
  return std::make_unique<MovieFile>(target, width, height, scale, step);
}
