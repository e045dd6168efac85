// Pixels between guards.
#include "workbench/host/OutputWorld.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "workbench/Failure.h"

namespace {

// What is drawn close to an edge of a small world may miss it by many of its short rows.
constexpr size_t kGuardBytes = 4096;
constexpr size_t kGuardRows = 2;

// Puts guard bytes in the place of others. Returns how many there were.
int64_t Mend(uint8_t* bytes, size_t count) {
  const auto isDamage = [](uint8_t byte) { return byte != OutputWorld::kGuardByte; };
  const auto damaged = std::count_if(bytes, bytes + count, isDamage);
  if (damaged > 0) std::memset(bytes, OutputWorld::kGuardByte, count);
  return damaged;
}

bool IsSameRecord(const PF_EffectWorld& a, const PF_EffectWorld& b) {
  return a.data == b.data && a.rowbytes == b.rowbytes && a.width == b.width &&
         a.height == b.height && a.world_flags == b.world_flags &&
         a.extent_hint.left == b.extent_hint.left && a.extent_hint.top == b.extent_hint.top &&
         a.extent_hint.right == b.extent_hint.right && a.extent_hint.bottom == b.extent_hint.bottom;
}

}  // namespace

OutputWorld::OutputWorld(int32_t worldWidth, int32_t worldHeight)
    : width(worldWidth),
      height(worldHeight),
      rowBytes(width * static_cast<int32_t>(sizeof(PF_Pixel8)) + kRowPaddingBytes),
      guardBytes(kGuardBytes + kGuardRows * static_cast<size_t>(rowBytes)),
      memory(new (std::nothrow) uint8_t[PixelBytes() + 2 * guardBytes]),
      record() {
  if (memory == nullptr) {
    throw JobFailure("There is no memory for a frame of " + std::to_string(width) + " x " +
                     std::to_string(height) + " pixels. Choose a smaller --size, or --downsample.");
  }
  std::memset(memory.get(), kGuardByte, PixelBytes() + 2 * guardBytes);
  for (int32_t y = 0; y < height; ++y) {
    std::memset(Row(y).data(), kFreshByte, UsedRowBytes());
  }
  record = MakeRecord();
}

std::span<PF_Pixel8> OutputWorld::Row(int32_t y) {
  void* row = Pixels() + OffsetOf(y);
  return {static_cast<PF_Pixel8*>(row), static_cast<size_t>(width)};
}

std::span<const PF_Pixel8> OutputWorld::Row(int32_t y) const {
  const void* row = Pixels() + OffsetOf(y);
  return {static_cast<const PF_Pixel8*>(row), static_cast<size_t>(width)};
}

PF_EffectWorld OutputWorld::MakeRecord() const {
  void* pixels = Pixels();
  PF_EffectWorld made{};
  made.world_flags = PF_WorldFlag_WRITEABLE;
  made.data = static_cast<PF_PixelPtr>(pixels);
  made.rowbytes = rowBytes;
  made.width = width;
  made.height = height;
  made.extent_hint = {0, 0, width, height};
  made.pix_aspect_ratio = {1, 1};
  return made;
}

std::vector<std::string> OutputWorld::TakeDamage() {
  std::vector<std::string> damage;
  const auto note = [&damage](int64_t bytes, const std::string& where) {
    if (bytes == 0) return;
    damage.push_back("wrote outside the world: " + std::to_string(bytes) + " byte(s) " + where);
  };
  note(Mend(memory.get(), guardBytes), "before its first row");
  int64_t inPadding = 0;
  int32_t lastRow = 0;
  for (int32_t y = 0; y < height; ++y) {
    const int64_t inThisRow = Mend(Pixels() + OffsetOf(y) + UsedRowBytes(), kRowPaddingBytes);
    inPadding += inThisRow;
    if (inThisRow > 0) lastRow = y;
  }
  note(inPadding, "behind the ends of rows, the last of them row " + std::to_string(lastRow));
  note(Mend(Pixels() + PixelBytes(), guardBytes), "behind its last row");
  if (!IsSameRecord(record, MakeRecord())) {
    damage.emplace_back("changed the output world's record");
    record = MakeRecord();
  }
  return damage;
}
