// Pictures and calls of a row.
#include "workbench/cli/RowFile.h"

#include "workbench/Failure.h"
#include "workbench/export/FrameAsPng.h"

namespace {

bool IsPicture(const std::filesystem::path& path) {
  return path.extension() == ".png";
}

}  // namespace

bool IsRowFile(const std::filesystem::path& path) {
  return IsPicture(path) || path.extension() == ".txt";
}

void RequirePaintable(const std::filesystem::path& path) {
  if (!IsPicture(path) || CanPaintPictures()) return;
  throw JobFailure(path.string() +
                   ": this workbench has no painter for rows. Name a .txt file, which gets the "
                   "drawing calls with the pixels of their images.");
}

std::string RowFileBytes(const std::filesystem::path& path, const PictureCanvas* canvas,
                         const std::vector<DrawCall>& calls) {
  if (IsPicture(path)) {
    const Picture picture = canvas->Copy();
    const auto rowBytes = picture.width * static_cast<int32_t>(sizeof(PF_Pixel8));
    return FrameAsPng({picture.pixels.data(), rowBytes, picture.width, picture.height});
  }
  std::string text;
  for (const DrawCall& call : calls) text += DrawCallTextWithPixels(call);
  return text;
}
