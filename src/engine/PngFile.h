// Reads a PNG that lies in memory into a picture.
#pragma once

#include <array>

#include "drawing/ImageBuffer.h"
#include "engine/XFile.h"

class PngFile : public XFile {
 public:
  // Decodes the PNG of `source` into `image`, which gets the PNG's size unless it has it.
  //
  // The pixels have 8 bits a channel and straight alpha, 255 where the PNG has none. Grey and
  // palette become colours, 16 bits lose the lower 8. A grey or palette PNG of less than 8 bits a
  // pixel isn't read.
  // Throws App::ExceptionInfo: kWrongFormat for what isn't a PNG that is read, kLibpngFailed for
  // one that is damaged or cut off, kOutOfMemory. `image` may be partly filled then.
  void ReadFile(const FileSpec& source, ImageBuffer& image);

  // What libpng had to say last, for whoever looks with a debugger. Cleared by each ReadFile.
  using Text = std::array<char, 256>;
  static Text lastError;
  static Text lastWarning;
};
