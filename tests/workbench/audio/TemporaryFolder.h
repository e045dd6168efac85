// A folder for files of one test, which goes away with it.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

class TemporaryFolder {
 public:
  TemporaryFolder() { std::filesystem::create_directories(path); }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& Path() const { return path; }

  std::filesystem::path Write(const std::string& name, std::string_view bytes) const {
    std::ofstream(path / name, std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return path / name;
  }

 private:
  const std::filesystem::path path = std::filesystem::temp_directory_path() /
                                     ("delvior-audio-" + std::to_string(std::random_device()()));
};
