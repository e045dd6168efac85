// Writes the pages of specimens as PNG files, each at both scales: specimens FOLDER
#include <png.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "tools/specimens/Pages.h"

namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 400;

const std::vector<Page> kPages = {
    {"icons", DrawIconPage},
    {"buttons", DrawButtonPage},
    {"ranges", DrawRangePage},
    {"switches", DrawSwitchPage},
    {"titled", DrawTitledPage},
    {"text-controls", DrawTextControlsPage},
    {"shapes", DrawShapePage},
    {"blends", DrawBlendPage},
    {"editor", DrawEditorPage},
    {"editor-ends", DrawEditorEndsPage},
    {"evolution", DrawEvolutionPage},
    {"evolution-ends", DrawEvolutionEndsPage},
    {"curve-presets", DrawCurvePresetPage},
    {"text", DrawTextPage},
    {"glyphs", DrawGlyphsPage},
};

void Write(const ImageBuffer& picture, const std::filesystem::path& file) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(picture.Width());
  image.height = static_cast<png_uint_32>(picture.Height());
  image.format = PNG_FORMAT_BGRA;
  if (png_image_write_to_file(&image, file.c_str(), 0, picture.Row(0), picture.RowBytes(),
                              nullptr) == 0) {
    throw std::filesystem::filesystem_error(image.message, file, {});
  }
  std::printf("%s\n", file.c_str());
}

void WritePage(const Page& page, int scale, const std::filesystem::path& folder) {
  ImageBuffer picture;
  picture.Allocate(kWidth * scale, kHeight * scale, false);
  picture.SetScale(static_cast<float>(scale));
  picture.SetScaleAware(true);
  page.draw(picture);
  Write(picture, folder / (std::string(page.name) + "-" + std::to_string(scale) + "x.png"));
}

}  // namespace

int main(int argc, char** argv) try {
  const std::filesystem::path folder = argc > 1 ? argv[1] : ".";
  std::filesystem::create_directories(folder);
  for (const Page& page : kPages) {
    for (const int scale : {1, 2}) WritePage(page, scale, folder);
  }
  return 0;
} catch (const std::exception& failure) {
  std::fprintf(stderr, "specimens: %s\n", failure.what());
  return 1;
}
