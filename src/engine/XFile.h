// A file that lies in memory, read from front to back.
#pragma once

#include <cstdint>
#include <string>

#include "engine/FileSpec.h"

class XFile {
 public:
  XFile() = default;
  XFile(const XFile&) = delete;
  XFile& operator=(const XFile&) = delete;
  virtual ~XFile() = default;

  // Starts at the front. The bytes are borrowed until Close.
  void Open(const FileSpec& source);

  // Copies up to `count` bytes to `buffer` and moves on behind them.
  //
  // Returns how many there were: fewer than `count` at the end, 0 when nothing is open.
  uint32_t Read(void* buffer, uint32_t count);

  // A position behind the end is the end.
  void Seek(uint32_t position);

  void Close();

 private:
  std::string name;
  const uint8_t* memoryData = nullptr;
  uint32_t memorySize = 0;
  uint32_t readPosition = 0;
};
