// Gathers encoded frames in files that have no name yet.
#include "workbench/export/PngFiles.h"

#include "workbench/export/FrameAsPng.h"

std::string PngFiles::Encode(const FramePixels& pixels) const {
  return FrameAsPng(pixels);
}

void PngFiles::Add(int64_t number, const FramePixels& /*pixels*/, const std::string& encoded) {
  PartFile& file = files.emplace_back(names.NameOf(number));
  file.Write(encoded);
  file.Close();
}

void PngFiles::Publish() {
  for (PartFile& file : files) file.Publish();
}
