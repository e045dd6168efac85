// Files that appear whole or not at all: write beside, then rename.
#include "workbench/export/WholeFile.h"

#include <cerrno>
#include <fstream>
#include <random>
#include <string>
#include <system_error>

#include "workbench/Failure.h"

namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(const fs::path& path, const std::string& reasonAndRemedy) {
  throw JobFailure("cannot write " + path.string() + ": " + reasonAndRemedy);
}

// The system's words for the last failed call. Streams keep no reason of their own.
std::string LastReason() {
  return std::generic_category().message(errno);
}

// Removes the file at the end of the scope; does nothing when it has been renamed by then.
class TemporaryFile {
 public:
  explicit TemporaryFile(fs::path where) : path(std::move(where)) {}
  ~TemporaryFile() {
    std::error_code ignored;
    fs::remove(path, ignored);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  const fs::path path;
};

fs::path FolderOf(const fs::path& path) {
  return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

void CheckTarget(const fs::path& path) {
  std::error_code unknown;
  const fs::path folder = FolderOf(path);
  const fs::file_status folderStatus = fs::status(folder, unknown);
  if (folderStatus.type() == fs::file_type::not_found) {
    Fail(path, "the folder " + folder.string() + " does not exist; create it first");
  }
  const fs::file_status status = fs::status(path, unknown);
  if (fs::is_directory(status) || !path.has_filename()) {
    Fail(path, "it is a folder; name a file in it");
  }
  // A rename would put a plain file in the place of a device or a pipe.
  if (fs::exists(status) && !fs::is_regular_file(status)) {
    Fail(path, "it is not a plain file; choose another name");
  }
}

// A name of its own, whatever the length of the target's: two runs may write one file.
fs::path NameBeside(const fs::path& path) {
  std::random_device random;
  return FolderOf(path) / (".delvior-" + std::to_string(random()) + ".part");
}

void WriteBytes(const fs::path& path, const fs::path& temporary, std::string_view bytes) {
  errno = 0;
  std::ofstream stream(temporary, std::ios::binary);
  if (!stream) {
    Fail(path, "no file can be made in " + FolderOf(path).string() + " (" + LastReason() +
                   "); choose a folder that you may write to");
  }
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  stream.close();
  if (!stream) {
    Fail(path, "the bytes do not fit (" + LastReason() + "); make room on the disk and try again");
  }
}

}  // namespace

void WriteWholeFile(const fs::path& path, std::string_view bytes) {
  CheckTarget(path);
  const TemporaryFile temporary(NameBeside(path));
  WriteBytes(path, temporary.path, bytes);
  std::error_code failure;
  fs::rename(temporary.path, path, failure);
  if (failure) {
    Fail(path, "the finished file cannot take this name (" + failure.message() +
                   "); choose another name");
  }
}
