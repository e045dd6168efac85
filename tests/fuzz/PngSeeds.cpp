// Writes small PNGs of every kind, for PngFuzz to begin with: PngSeeds FOLDER
#include <filesystem>
#include <fstream>

#include "tests/engine/PngBytes.h"

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const std::filesystem::path folder = argv[1];
  std::filesystem::create_directories(folder);
  for (const PngKind& kind : AllPngKinds()) {
    const std::vector<uint8_t> bytes = MakePng(kind, 5, 4).bytes;
    std::ofstream file(folder / (kind.What() + ".png"), std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
  }
  return 0;
}
