// Loading a picture from the module's resources.
#include <algorithm>
#include <cstdio>
#include <string>

#include "drawing/NativeImageBuffer.h"
#include "engine/PngFile.h"
#include "platform/NamedResource.h"
#include "platform/Truncate.h"

namespace {

constexpr const char* kPngType = "PNG";
constexpr const char* kDoubleResolution = "_2X";

// "Undo_Normal.png" into its stem and what follows the dot. False for a name without three letters
// behind a dot, and something before it.
bool SplitFileName(const std::string& fileName, std::string& stem, std::string& extension) {
  if (fileName.size() < 5 || fileName[fileName.size() - 4] != '.') return false;
  stem = fileName.substr(0, fileName.size() - 4);
  extension = fileName.substr(fileName.size() - 3);
  return true;
}

// Brings a picture of double resolution to a scale between 1 and 2.
void Reduce(NativeImageBuffer& picture, float scale) {
  const ImageBuffer whole(static_cast<const ImageBuffer&>(picture));
  const auto reduced = [scale](int32_t length) {
    return Truncate<int32_t>(static_cast<float>(length) * scale * 0.5F);
  };
  picture.Allocate(reduced(whole.Width()), reduced(whole.Height()), false);
  whole.ScaleTo(picture, whole.Bounds(), picture.Bounds(), nullptr, {.boxFilter = true});
}

}  // namespace

bool NativeImageBuffer::CreateWithResource(const char* fileName, ModuleHandle module,
                                           float wantedScale) {
  bool loaded = false;
  try {
    std::string name;
    std::string extension;
    if (fileName == nullptr || !SplitFileName(fileName, name, extension)) return false;
    if (extension != "png" && extension != "PNG") {
      SetScale(wantedScale);
      return false;
    }
    float imageScale = 1.0F;
    if (wantedScale != 1.0F) {
      const std::string doubled = name + kDoubleResolution;
      if (FindNamedResource(module, doubled.c_str(), kPngType).bytes != nullptr) {
        name = doubled;
        imageScale = wantedScale;
      }
    }
    loaded = LoadResourceBitmap(module, name.c_str(), kPngType);
    if (loaded && imageScale > 1.0F && imageScale < 2.0F) Reduce(*this, imageScale);
    SetScale(imageScale);
  } catch (...) {
    std::fputs("exception thrown in NativeImageBuffer::CreateWithResource\n", stderr);
  }
  return loaded;
}

bool NativeImageBuffer::LoadResourceBitmap(ModuleHandle module, const char* name,
                                           const char* type) {
  const NamedResource resource = FindNamedResource(module, name, type);
  if (resource.bytes == nullptr) return false;
  try {
    // A damaged PNG must leave this picture alone, and the reader fills its target as it goes.
    ImageBuffer decoded;
    PngFile().ReadFile({"", resource.bytes, resource.size}, decoded);
    Allocate(decoded.Width(), decoded.Height(), false);
    for (int32_t y = 0; y < height; ++y) std::copy_n(decoded.Row(y), width, Row(y));
    return true;
  } catch (...) {
    return false;
  }
}
