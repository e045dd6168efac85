// Where rendered frames go: many pictures, or one movie.
#pragma once

#include <cstdint>
#include <string>

#include "workbench/export/FramePixels.h"

// All operations throw JobFailure. An output that goes without Publish leaves no file behind.
class FrameOutput {
 public:
  FrameOutput() = default;
  virtual ~FrameOutput() = default;
  FrameOutput(const FrameOutput&) = delete;
  FrameOutput& operator=(const FrameOutput&) = delete;

  // The part of the work on a frame that several threads may do at once, each on its own frame.
  // Returns what Add is to be given with that frame.
  virtual std::string Encode(const FramePixels& pixels) const = 0;

  // Takes the next frame, one at a time and in order.
  //
  // number    of the frame in the comp, such as names are made of
  virtual void Add(int64_t number, const FramePixels& pixels, const std::string& encoded) = 0;

  // Makes all that was added visible under its name.
  virtual void Publish() = 0;
};
