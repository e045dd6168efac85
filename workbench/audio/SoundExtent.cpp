// Walks the chunks of those formats whose stated sizes FFmpeg doesn't hold against the file.
#include "workbench/audio/SoundExtent.h"

#include <array>
#include <limits>
#include <string>
#include <string_view>

namespace {

using namespace std::string_view_literals;

// A chunk begins with its id, then its size:  | id | size | what it holds ... | padding |
struct ChunkLayout {
  std::string_view head;  // the file's first bytes
  std::string_view kind;  // what stands at byte 8, where one head serves several kinds
  int64_t firstChunk;
  size_t idBytes;
  size_t sizeBytes;
  bool isBigEndian;
  bool sizeCountsIdAndSize;
  int64_t alignment;  // of each chunk, from firstChunk on
  std::string_view soundId;
};

constexpr std::array<ChunkLayout, 5> kLayouts = {{
    {"RIFF"sv, "WAVE"sv, 12, 4, 4, false, false, 2, "data"sv},
    // The film's parts follow each other as chunks of the topmost level.
    {"RIFF"sv, "AVI "sv, 0, 4, 4, false, false, 2, "RIFF"sv},
    {"riff\x2E\x91\xCF\x11\xA5\xD6\x28\xDB"sv, ""sv, 40, 16, 8, false, true, 8,
     "data\xF3\xAC\xD3\x11\x8C\xD1\x00\xC0\x4F\x8E\xDB\x8A"sv},
    {"caff"sv, ""sv, 8, 4, 8, true, false, 1, "data"sv},
    {"\x30\x26\xB2\x75\x8E\x66\xCF\x11\xA6\xD9\x00\xAA\x00\x62\xCE\x6C"sv, ""sv, 0, 16, 8, false,
     true, 1, "\x36\x26\xB2\x75\x8E\x66\xCF\x11\xA6\xD9\x00\xAA\x00\x62\xCE\x6C"sv},
}};

constexpr int kMostChunks = 4096;

// What may be added to any position in a file without overflow.
constexpr uint64_t kLargestSize = std::numeric_limits<int64_t>::max() / 2;

std::string ReadAt(std::istream& bytes, int64_t offset, size_t count) {
  std::string read(count, '\0');
  bytes.clear();
  bytes.seekg(offset);
  bytes.read(read.data(), static_cast<std::streamsize>(count));
  read.resize(static_cast<size_t>(bytes.gcount()));
  return read;
}

const ChunkLayout* FindLayout(const std::string& start) {
  const std::string_view view = start;
  for (const ChunkLayout& layout : kLayouts)
    if (view.starts_with(layout.head) && view.substr(8).starts_with(layout.kind)) return &layout;
  return nullptr;
}

uint64_t ReadSize(std::string_view field, bool isBigEndian) {
  uint64_t size = 0;
  for (size_t i = 0; i < field.size(); ++i) {
    const size_t fromTop = isBigEndian ? i : field.size() - 1 - i;
    size = size << 8U | static_cast<unsigned char>(field[fromTop]);
  }
  return size;
}

// Placeholders are 0, and values somewhat below 2 and 4 GiB, the ends of what 32 bits hold with and
// without a sign.
bool IsPlaceholder(uint64_t size, size_t sizeBytes) {
  constexpr uint64_t kMargin = 0x10000;
  constexpr uint64_t kTwoGiB = 0x80000000;
  if (size == 0) return true;
  if (sizeBytes > 4) return false;
  return (size >= kTwoGiB - kMargin && size <= kTwoGiB) || size >= 2 * kTwoGiB - kMargin;
}

struct Chunk {
  std::string id;
  uint64_t size = 0;
  SoundExtent content;
};

// Nothing where the file ends, and where a size is past what a file can have.
std::optional<Chunk> ReadChunk(std::istream& bytes, const ChunkLayout& layout, int64_t position) {
  const size_t headBytes = layout.idBytes + layout.sizeBytes;
  const std::string head = ReadAt(bytes, position, headBytes);
  if (head.size() < headBytes) return std::nullopt;
  const std::string_view size = std::string_view(head).substr(layout.idBytes);
  Chunk chunk = {.id = head.substr(0, layout.idBytes),
                 .size = ReadSize(size, layout.isBigEndian),
                 .content = {.begin = position + static_cast<int64_t>(headBytes)}};
  if (chunk.size > kLargestSize) return std::nullopt;
  const int64_t counted = layout.sizeCountsIdAndSize ? position : chunk.content.begin;
  chunk.content.end = counted + static_cast<int64_t>(chunk.size);
  return chunk;
}

}  // namespace

std::optional<SoundExtent> FindSoundExtent(std::istream& bytes) {
  const std::string start = ReadAt(bytes, 0, 16);
  const ChunkLayout* const layout = start.size() < 16 ? nullptr : FindLayout(start);
  if (layout == nullptr) return std::nullopt;
  std::optional<SoundExtent> sound;
  int64_t position = layout->firstChunk;
  for (int i = 0; i < kMostChunks; ++i) {
    const std::optional<Chunk> chunk = ReadChunk(bytes, *layout, position);
    if (!chunk) break;
    if (chunk->id == layout->soundId) {
      if (IsPlaceholder(chunk->size, layout->sizeBytes)) return std::nullopt;
      sound = chunk->content;
    }
    const int64_t end = chunk->content.end;
    position = end + (layout->alignment - end % layout->alignment) % layout->alignment;
  }
  return sound;
}
