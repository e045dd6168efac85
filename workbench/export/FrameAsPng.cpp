// Encodes through libpng's interface for whole images.
#include "workbench/export/FrameAsPng.h"

#include <png.h>

#include <memory>

#include "workbench/Failure.h"

namespace {

struct ImageDeleter {
  void operator()(png_image* image) const { png_image_free(image); }
};

// libpng's bound for the whole file, in 64 bits: its own macro counts in 32.
size_t LargestPngSize(const FramePixels& frame) {
  const auto height = static_cast<size_t>(frame.height);
  const size_t rows = (static_cast<size_t>(frame.width) * sizeof(PF_Pixel8) + 1) * height;
  return rows + rows / 8 + rows / 64 + 4096;
}

}  // namespace

std::string FrameAsPng(const FramePixels& frame) {
  png_image image{};
  const std::unique_ptr<png_image, ImageDeleter> owner(&image);
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(frame.width);
  image.height = static_cast<png_uint_32>(frame.height);
  image.format = PNG_FORMAT_ARGB;
  image.flags = PNG_IMAGE_FLAG_FAST;
  std::string bytes(LargestPngSize(frame), '\0');
  png_alloc_size_t size = bytes.size();
  const int done = png_image_write_to_memory(&image, bytes.data(), &size, /*convert_to_8_bit=*/0,
                                             frame.first, frame.rowBytes, /*colormap=*/nullptr);
  if (done == 0) {
    throw JobFailure("A frame of " + std::to_string(frame.width) + " x " +
                     std::to_string(frame.height) + " pixels can't be made a PNG (" +
                     image.message + "). Choose another --size or --downsample.");
  }
  bytes.resize(size);
  return bytes;
}
