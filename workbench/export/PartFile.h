// A file in the making, under another name until it is whole.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

// The bytes gather in a file of another name in the target's folder. Publish gives it the target's
// name; an object that goes without Publish leaves the target as it was and nothing beside it.
//
// Every operation throws JobFailure, which names the target, where it can't be done.
class PartFile {
 public:
  // The target's folder is missing or may not be written to, or the target is a folder or a device:
  // that is a failure already.
  explicit PartFile(std::filesystem::path targetPath);
  ~PartFile();
  PartFile(const PartFile&) = delete;
  PartFile& operator=(const PartFile&) = delete;

  // Puts bytes at the place where the last ones ended, or where Seek led.
  void Write(std::string_view bytes);
  void Seek(int64_t position);
  int64_t Position();

  // Ends the writing: all bytes are on their way to the disk, and the file takes up no descriptor.
  void Close();

  // Gives the closed file its name, in place of the file that may have had it.
  void Publish();

 private:
  void RequireGood();

  std::filesystem::path target;
  std::filesystem::path place;
  std::ofstream stream;
};

// Throws JobFailure where no file can be of this name: what PartFile would say, before the work.
void RequireTarget(const std::filesystem::path& target);
