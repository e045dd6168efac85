// Makes the stored fonts from outlines: make_fonts FOLDER-OF-RECORDS FOLDER-OF-FACES...
#include <cctype>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "tools/fonts/Face.h"
#include "tools/fonts/Fringe.h"
#include "tools/fonts/Glyph.h"
#include "tools/fonts/Recipes.h"
#include "tools/fonts/Symbols.h"

namespace {

namespace fs = std::filesystem;

constexpr int kFirstCode = 32;
constexpr int kLastCode = 126;
constexpr size_t kLineLength = 100;

std::string FindFace(const char* file, const std::vector<fs::path>& folders) {
  for (const fs::path& folder : folders) {
    if (fs::exists(folder / file)) return folder / file;
  }
  throw std::runtime_error(std::string("none of the folders has ") + file);
}

std::vector<Glyph> DrawGlyphs(const Recipe& recipe, const std::vector<fs::path>& folders) {
  std::vector<Glyph> glyphs;
  if (recipe.face == nullptr) {
    for (int code = kFirstCode; code <= kLastCode; ++code)
      glyphs.push_back(DrawSymbol(recipe, code));
    return glyphs;
  }
  Face face(FindFace(recipe.face, folders), recipe);
  for (int code = kFirstCode; code <= kLastCode; ++code) {
    glyphs.push_back(face.Draw(code));
    if (std::isalpha(code) != 0) {
      LayFringe(glyphs.back(), std::isupper(code) != 0, recipe);
    }
  }
  return glyphs;
}

// A list of numbers in lines of at most kLineLength.
class NumberList {
 public:
  void Add(int number) {
    const std::string digits = std::to_string(number) + ",";
    if (line.size() + digits.size() > kLineLength) EndLine();
    line += digits;
  }
  void EndLine() {
    if (!line.empty()) text += line + "\n";
    line.clear();
  }
  std::string Text() {
    EndLine();
    return text;
  }

 private:
  std::string text;
  std::string line;
};

std::string ColumnTable(const Recipe& recipe, const std::vector<Glyph>& glyphs) {
  NumberList columns;
  int column = 0;
  for (const Glyph& glyph : glyphs) {
    columns.Add(column);
    column += glyph.width;
  }
  columns.Add(column);
  std::printf("%-14s %4d of %4d columns\n", recipe.name, column, recipe.stride);
  if (column > recipe.stride) {
    throw std::runtime_error(std::string(recipe.name) + ": the glyphs are wider than the strip");
  }
  return columns.Text();
}

// First or last row that has ink, by `better` one of less and greater; 0 for a blank.
std::string InkTable(const std::vector<Glyph>& glyphs,
                     const std::function<bool(int, int)>& better) {
  NumberList table;
  for (const Glyph& glyph : glyphs) {
    int found = -1;
    for (int row = 0; row < glyph.rows; ++row) {
      bool hasInk = false;
      for (int column = 0; column < glyph.inkWidth; ++column) hasInk |= glyph.At(row, column) != 0;
      if (hasInk && (found < 0 || better(row, found))) found = row;
    }
    table.Add(found < 0 ? 0 : found);
  }
  table.Add(0);
  return table.Text();
}

std::string Strip(const Recipe& recipe, const std::vector<Glyph>& glyphs) {
  NumberList strip;
  for (int row = 0; row < recipe.rows; ++row) {
    int column = 0;
    for (const Glyph& glyph : glyphs) {
      for (int i = 0; i < glyph.width; ++i) strip.Add(glyph.At(row, i));
      column += glyph.width;
    }
    for (; column < recipe.stride; ++column) strip.Add(0);
    strip.EndLine();
  }
  return strip.Text();
}

std::string RecordText(const Recipe& recipe, const std::vector<Glyph>& glyphs) {
  std::ostringstream text;
  text << "// Made by tools/fonts/MakeFonts.cpp from "
       << (recipe.face == nullptr ? "our own symbols" : recipe.face) << " at " << recipe.pixelsPerEm
       << " pixels.\n{{0, " << recipe.nominalSize << ", " << recipe.rows << ", " << recipe.stride
       << ",\n{ // columns\n"
       << ColumnTable(recipe, glyphs) << "}, 0, {},\n{ // ink tops\n"
       << InkTable(glyphs, std::less<>()) << "}, { // ink bottoms\n"
       << InkTable(glyphs, std::greater<>()) << "}}, { // strip\n"
       << Strip(recipe, glyphs) << "}}\n";
  return text.str();
}

void WriteFile(const fs::path& file, const std::string& text) {
  std::ofstream out(file, std::ios::binary);
  out << text;
  if (!out.flush()) throw std::runtime_error("can't write " + file.string());
}

}  // namespace

int main(int argc, char** argv) try {
  if (argc < 3) throw std::runtime_error("usage: make_fonts FOLDER-OF-RECORDS FOLDER-OF-FACES...");
  const std::vector<fs::path> faceFolders(argv + 2, argv + argc);
  std::vector<std::string> records;
  for (const Recipe& recipe : kRecipes) {
    records.push_back(RecordText(recipe, DrawGlyphs(recipe, faceFolders)));
  }
  for (size_t i = 0; i < records.size(); ++i) {
    WriteFile(fs::path(argv[1]) / (std::string(kRecipes[i].name) + ".inc"), records[i]);
  }
  return 0;
} catch (const std::exception& failure) {
  std::fprintf(stderr, "make_fonts: %s\n", failure.what());
  return 1;
}
