// Names of numbered files, such as frames/00012.png.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

class FrameNames {
 public:
  // pattern   a path whose last part may hold one %d or %0Nd, N 1 to 20, in the place of the
  // number;
  //           other percent signs only in the folders
  // Throws UsageFailure for another pattern.
  explicit FrameNames(const std::filesystem::path& pattern);

  // Whether each number has a name of its own.
  bool HasNumber() const { return hasNumber; }

  // The number with leading zeros up to N letters, of which a minus sign is the first.
  std::filesystem::path NameOf(int64_t number) const;

 private:
  std::filesystem::path folder;
  std::string before;
  std::string behind;
  size_t shortest = 0;  // letters of the number
  bool hasNumber = false;
};
