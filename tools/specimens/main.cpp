// Writes the pages of specimens as PNG files, each at both scales: specimens FOLDER
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "tools/specimens/DemoPicture.h"
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

void WritePage(const Page& page, int scale, const std::filesystem::path& folder) {
  ImageBuffer picture;
  MakeDemoPicture(picture, kWidth, kHeight, scale);
  page.draw(picture);
  const auto file = folder / (std::string(page.name) + "-" + std::to_string(scale) + "x.png");
  WriteDemoPicture(picture, file);
  std::printf("%s\n", file.string().c_str());
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
