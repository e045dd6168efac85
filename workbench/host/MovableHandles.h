// Memory that the plug-in may touch only while it holds a lock, and that moves in between.
#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "AE_Effect.h"

// Every unlock that brings a handle's lock count to 0 moves its memory and poisons the old place,
// which stays poisoned until the next move, so that a pointer kept past the lock shows itself. Safe
// to use from several threads.
class MovableHandles {
 public:
  // What memory holds when it is new, and when it is gone.
  static constexpr unsigned char kFreshByte = 0xCD;
  static constexpr unsigned char kPoisonByte = 0xDB;

  MovableHandles();
  ~MovableHandles();
  MovableHandles(const MovableHandles&) = delete;
  MovableHandles& operator=(const MovableHandles&) = delete;

  // Null where `size` bytes are not to be had.
  PF_Handle New(uint64_t size);
  PF_Handle NewFrom(std::span<const uint8_t> bytes);

  // How a call went: `broken` names the rule that it broke, and is empty where it broke none.
  struct Outcome {
    void* memory = nullptr;
    std::string broken;
  };
  Outcome Lock(PF_Handle handle);
  Outcome Unlock(PF_Handle handle);
  Outcome Dispose(PF_Handle handle);

  bool IsLive(PF_Handle handle) const;
  uint64_t Size(PF_Handle handle) const;  // 0 for a handle that isn't live
  std::vector<uint8_t> Bytes(PF_Handle handle) const;
  size_t LiveCount() const;

 private:
  struct Block;

  Block* FindLive(PF_Handle handle) const;

  mutable std::mutex mutex;
  // Blocks stay until the end, so that a handle's address never names a second block.
  std::unordered_map<PF_Handle, std::unique_ptr<Block>> blocks;
};
