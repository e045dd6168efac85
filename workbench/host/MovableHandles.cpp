// Blocks that move at each last unlock.
#include "workbench/host/MovableHandles.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace {

constexpr uint64_t kLargestHandle = uint64_t{1} << 30;

using Memory = std::unique_ptr<char[]>;

// At least one byte, so that an empty handle has an address too. Null where there is no room.
Memory Allocate(uint64_t size) {
  return Memory(new (std::nothrow) char[std::max<uint64_t>(size, 1)]);
}

}  // namespace

struct MovableHandles::Block {
  // A handle points here: the address of the memory while it is locked, else null.
  char* visible = nullptr;
  Memory memory;
  // Where the block stood before its last move, poisoned. Were it freed at once, the next move
  // would come back to it, and a pointer kept from before would be right again.
  Memory oldPlace;
  uint64_t size = 0;
  int lockCount = 0;
  bool live = true;

  void Poison() const { std::memset(memory.get(), kPoisonByte, std::max<uint64_t>(size, 1)); }
};

MovableHandles::MovableHandles() = default;
MovableHandles::~MovableHandles() = default;

PF_Handle MovableHandles::New(uint64_t size) {
  if (size > kLargestHandle) return nullptr;
  auto block = std::make_unique<Block>();
  block->memory = Allocate(size);
  if (block->memory == nullptr) return nullptr;
  block->size = size;
  std::memset(block->memory.get(), kFreshByte, std::max<uint64_t>(size, 1));
  const PF_Handle handle = &block->visible;
  const std::scoped_lock guard(mutex);
  blocks.emplace(handle, std::move(block));
  return handle;
}

PF_Handle MovableHandles::NewFrom(std::span<const uint8_t> bytes) {
  const PF_Handle handle = New(bytes.size());
  if (handle != nullptr && !bytes.empty()) {
    const std::scoped_lock guard(mutex);
    std::memcpy(FindLive(handle)->memory.get(), bytes.data(), bytes.size());
  }
  return handle;
}

MovableHandles::Block* MovableHandles::FindLive(PF_Handle handle) const {
  const auto found = blocks.find(handle);
  return found != blocks.end() && found->second->live ? found->second.get() : nullptr;
}

MovableHandles::Outcome MovableHandles::Lock(PF_Handle handle) {
  const std::scoped_lock guard(mutex);
  Block* block = FindLive(handle);
  if (block == nullptr) return {nullptr, "the handle is not one of the host's, or is disposed of"};
  // Whoever holds a lock already may be reading the address on another thread.
  if (block->lockCount++ == 0) block->visible = block->memory.get();
  return {block->memory.get(), ""};
}

MovableHandles::Outcome MovableHandles::Unlock(PF_Handle handle) {
  const std::scoped_lock guard(mutex);
  Block* block = FindLive(handle);
  if (block == nullptr) return {nullptr, "the handle is not one of the host's, or is disposed of"};
  if (block->lockCount == 0) return {nullptr, "the handle is not locked"};
  if (--block->lockCount > 0) return {};
  block->visible = nullptr;
  Memory moved = Allocate(block->size);
  if (moved == nullptr) return {};
  std::memcpy(moved.get(), block->memory.get(), block->size);
  block->Poison();
  block->oldPlace = std::exchange(block->memory, std::move(moved));
  return {};
}

MovableHandles::Outcome MovableHandles::Dispose(PF_Handle handle) {
  const std::scoped_lock guard(mutex);
  Block* block = FindLive(handle);
  if (block == nullptr) return {nullptr, "the handle is not one of the host's, or is disposed of"};
  const bool locked = block->lockCount > 0;
  block->Poison();
  block->memory.reset();
  block->oldPlace.reset();
  block->visible = nullptr;
  block->live = false;
  return {nullptr, locked ? "the handle is still locked" : ""};
}

bool MovableHandles::IsLive(PF_Handle handle) const {
  const std::scoped_lock guard(mutex);
  return FindLive(handle) != nullptr;
}

uint64_t MovableHandles::Size(PF_Handle handle) const {
  const std::scoped_lock guard(mutex);
  const Block* block = FindLive(handle);
  return block != nullptr ? block->size : 0;
}

std::vector<uint8_t> MovableHandles::Bytes(PF_Handle handle) const {
  const std::scoped_lock guard(mutex);
  const Block* block = FindLive(handle);
  if (block == nullptr) return {};
  std::vector<uint8_t> bytes(block->size);
  if (!bytes.empty()) std::memcpy(bytes.data(), block->memory.get(), bytes.size());
  return bytes;
}

size_t MovableHandles::LiveCount() const {
  const std::scoped_lock guard(mutex);
  return static_cast<size_t>(std::count_if(blocks.begin(), blocks.end(),
                                           [](const auto& entry) { return entry.second->live; }));
}
