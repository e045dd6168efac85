// Pictures of specimens: making one of a scale, and writing it as a PNG file.
#include "tools/specimens/DemoPicture.h"

#include <png.h>

void MakeDemoPicture(ImageBuffer& picture, int32_t width, int32_t height, int32_t scale) {
  picture.Allocate(width * scale, height * scale, false);
  picture.SetScale(static_cast<float>(scale));
  picture.SetScaleAware(true);
}

void WriteDemoPicture(const ImageBuffer& picture, const std::filesystem::path& file) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(picture.Width());
  image.height = static_cast<png_uint_32>(picture.Height());
  image.format = PNG_FORMAT_BGRA;
  if (png_image_write_to_file(&image, file.string().c_str(), 0, picture.Row(0), picture.RowBytes(),
                              nullptr) == 0) {
    throw std::filesystem::filesystem_error(image.message, file, {});
  }
}
