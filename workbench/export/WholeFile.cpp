// One run of bytes through a file in the making.
#include "workbench/export/WholeFile.h"

#include "workbench/export/PartFile.h"

void WriteWholeFile(const std::filesystem::path& path, std::string_view bytes) {
  PartFile file(path);
  file.Write(bytes);
  file.Close();
  file.Publish();
}
