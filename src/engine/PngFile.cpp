// PNG reading, by libpng.
#include "engine/PngFile.h"

#include <png.h>

#include <csetjmp>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <new>

#include "engine/ExceptionInfo.h"

PngFile::Text PngFile::lastError = {};
PngFile::Text PngFile::lastWarning = {};

namespace {

constexpr uint32_t kSignatureLength = 8;

struct Header {
  png_uint_32 width = 0;
  png_uint_32 height = 0;
  int depth = 0;
  int colorType = 0;
};

// libpng's two structures, destroyed together.
struct Decoder {
  png_structp png = nullptr;
  png_infop info = nullptr;

  Decoder() = default;
  Decoder(const Decoder&) = delete;
  Decoder& operator=(const Decoder&) = delete;
  ~Decoder() { png_destroy_read_struct(&png, &info, nullptr); }
};

// Closes the file on every way out.
struct OpenFile {
  XFile& file;

  OpenFile(XFile& opened, const FileSpec& source) : file(opened) { file.Open(source); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() { file.Close(); }
};

void KeepText(PngFile::Text& kept, const char* text) {
  std::snprintf(kept.data(), kept.size(), "%s", text != nullptr ? text : "");
}

[[noreturn]] void ThrowWrongFormat() {
  throw App::ExceptionInfo{App::kWrongFormat, "PngFile::ReadFile wrong format"};
}

[[noreturn]] void ThrowFatalError() {
  throw App::ExceptionInfo{App::kLibpngFailed, "PngFile ErrorCallback  fatal error encountered!"};
}

// An exception would have to unwind libpng's frames, and a C compiler need not leave the tables for
// that: the way out is libpng's own jump. It passes frames of libpng and of the functions below
// that own nothing, and lands in InLibpng.
[[noreturn]] void ErrorCallback(png_structp png, png_const_charp text) {
  KeepText(PngFile::lastError, text);
  png_longjmp(png, 1);
}

void WarningCallback(png_structp /*png*/, png_const_charp text) {
  KeepText(PngFile::lastWarning, text);
}

void ReadCallback(png_structp png, png_bytep buffer, size_t count) {
  auto& file = *static_cast<XFile*>(png_get_io_ptr(png));
  if (file.Read(buffer, static_cast<uint32_t>(count)) != count) png_error(png, "Read Error");
}

void ReadHeader(Decoder& decoder, Header& header) {
  png_read_info(decoder.png, decoder.info);
  png_get_IHDR(decoder.png, decoder.info, &header.width, &header.height, &header.depth,
               &header.colorType, nullptr, nullptr, nullptr);
}

// Asks libpng for B, G, R, A bytes, whatever the PNG holds.
void SetTransformations(const Decoder& decoder, const Header& header) {
  const png_structp png = decoder.png;
  if (header.depth == 16) png_set_strip_16(png);
  if (header.colorType == PNG_COLOR_TYPE_PALETTE ||
      png_get_valid(png, decoder.info, PNG_INFO_tRNS) != 0) {
    png_set_expand(png);
  }
  if ((header.colorType & PNG_COLOR_MASK_COLOR) == 0) png_set_gray_to_rgb(png);
  png_set_bgr(png);
  png_set_filler(png, 255, PNG_FILLER_AFTER);
}

struct Pixels {
  const Header& header;
  png_bytepp rows;
};

void ReadPixels(Decoder& decoder, Pixels& pixels) {
  SetTransformations(decoder, pixels.header);
  png_read_image(decoder.png, pixels.rows);
  png_read_end(decoder.png, nullptr);
}

// Runs one of the two steps above; an error of libpng's comes back as an exception.
template <typename Argument>
void InLibpng(void (*step)(Decoder&, Argument&), Decoder& decoder, Argument& argument) {
  if (setjmp(png_jmpbuf(decoder.png)) != 0) ThrowFatalError();
  step(decoder, argument);
}

void CreateDecoder(Decoder& decoder, XFile& file) {
  decoder.png =
      png_create_read_struct(PNG_LIBPNG_VER_STRING, &file, ErrorCallback, WarningCallback);
  if (decoder.png != nullptr) decoder.info = png_create_info_struct(decoder.png);
  if (decoder.info == nullptr) throw App::ExceptionInfo{App::kOutOfMemory, nullptr};
  png_set_read_fn(decoder.png, &file, ReadCallback);
}

bool CanRead(const Header& header) {
  switch (header.colorType) {
    case PNG_COLOR_TYPE_GRAY:
    case PNG_COLOR_TYPE_RGB:
    case PNG_COLOR_TYPE_PALETTE:
    case PNG_COLOR_TYPE_GRAY_ALPHA:
    case PNG_COLOR_TYPE_RGB_ALPHA:
      return header.depth >= 8;
    default:
      return false;
  }
}

// Deflate makes at most 258 bytes of 2 bits. A file too short for its header's size is cut off, and
// is found out here before memory is taken for it.
bool HasRoomFor(const Decoder& decoder, const Header& header, uint32_t fileSize) {
  constexpr uint64_t kMostExpansion = 258 * 8 / 2;
  const uint64_t imageBytes = uint64_t{png_get_rowbytes(decoder.png, decoder.info)} * header.height;
  return imageBytes <= kMostExpansion * fileSize;
}

void CheckSignature(XFile& file) {
  std::array<png_byte, kSignatureLength> signature = {};
  file.Read(signature.data(), kSignatureLength);
  if (png_sig_cmp(signature.data(), 0, kSignatureLength) != 0) ThrowWrongFormat();
  file.Seek(0);  // libpng wants to see it too
}

std::unique_ptr<png_bytep[]> RowTable(ImageBuffer& image) {
  const auto height = static_cast<size_t>(image.Height());
  std::unique_ptr<png_bytep[]> rows(new (std::nothrow) png_bytep[height]);
  if (rows == nullptr) throw App::ExceptionInfo{App::kOutOfMemory, nullptr};
  for (size_t y = 0; y < height; ++y) {
    rows[y] = reinterpret_cast<png_bytep>(image.Row(static_cast<int32_t>(y)));
  }
  return rows;
}

}  // namespace

void PngFile::ReadFile(const FileSpec& source, ImageBuffer& image) {
  lastError = {};
  lastWarning = {};
  const OpenFile open(*this, source);
  CheckSignature(*this);

  Decoder decoder;
  CreateDecoder(decoder, *this);
  Header header;
  InLibpng(ReadHeader, decoder, header);
  if (!CanRead(header)) ThrowWrongFormat();
  if (!HasRoomFor(decoder, header, source.memorySize)) {
    KeepText(lastError, "Not enough image data");
    ThrowFatalError();
  }

  // libpng's own limit on width and height is far below the end of int32.
  image.Allocate(static_cast<int32_t>(header.width), static_cast<int32_t>(header.height), false);
  const std::unique_ptr<png_bytep[]> rows = RowTable(image);
  Pixels pixels{header, rows.get()};
  InLibpng(ReadPixels, decoder, pixels);
}
