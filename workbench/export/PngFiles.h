// Frames as PNG files, one each.
#pragma once

#include <deque>

#include "workbench/export/FrameNames.h"
#include "workbench/export/FrameOutput.h"
#include "workbench/export/PartFile.h"

// The files appear together at the end: a run that fails leaves none.
class PngFiles : public FrameOutput {
 public:
  explicit PngFiles(FrameNames frameNames) : names(std::move(frameNames)) {}

  std::string Encode(const FramePixels& pixels) const override;
  void Add(int64_t number, const FramePixels& pixels, const std::string& encoded) override;
  void Publish() override;

 private:
  FrameNames names;
  std::deque<PartFile> files;
};
