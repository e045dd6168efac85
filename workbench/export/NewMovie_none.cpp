// Refuses movies: this program has no codecs.
#include "workbench/Failure.h"
#include "workbench/export/NewMovie.h"

void RequireMovies(const std::filesystem::path& target) {
  throw JobFailure("cannot write " + target.string() +
                   ": this workbench has no codecs; render to PNG files, such as %05d.png");
}

std::unique_ptr<FrameOutput> NewMovie(const std::filesystem::path& target, int32_t /*width*/,
                                      int32_t /*height*/, uint32_t /*scale*/, int32_t /*step*/) {
  RequireMovies(target);
  return nullptr;
}
