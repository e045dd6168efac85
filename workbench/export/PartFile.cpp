// Write beside, then rename.
#include "workbench/export/PartFile.h"

#include <cerrno>
#include <random>
#include <system_error>
#include <utility>

#include "workbench/Failure.h"

namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(const fs::path& target, const std::string& reasonAndRemedy) {
  throw JobFailure("cannot write " + target.string() + ": " + reasonAndRemedy);
}

// The system's words for the last failed call. Streams keep no reason of their own.
std::string LastReason() {
  return std::generic_category().message(errno);
}

fs::path FolderOf(const fs::path& path) {
  return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

// A name of its own, whatever the length of the target's: two runs may write one file.
fs::path NameBeside(const fs::path& path) {
  std::random_device random;
  return FolderOf(path) / (".delvior-" + std::to_string(random()) + ".part");
}

}  // namespace

void RequireTarget(const fs::path& target) {
  std::error_code unknown;
  const fs::path folder = FolderOf(target);
  const fs::file_status folderStatus = fs::status(folder, unknown);
  if (folderStatus.type() == fs::file_type::not_found) {
    Fail(target, "the folder " + folder.string() + " does not exist; create it first");
  }
  const fs::file_status status = fs::status(target, unknown);
  if (fs::is_directory(status) || !target.has_filename()) {
    Fail(target, "it is a folder; name a file in it");
  }
  // A rename would put a plain file in the place of a device or a pipe.
  if (fs::exists(status) && !fs::is_regular_file(status)) {
    Fail(target, "it is not a plain file; choose another name");
  }
}

PartFile::PartFile(fs::path targetPath) : target(std::move(targetPath)) {
  RequireTarget(target);
  place = NameBeside(target);
  errno = 0;
  stream.open(place, std::ios::binary);
  if (stream) return;
  Fail(target, "no file can be made in " + FolderOf(target).string() + " (" + LastReason() +
                   "); choose a folder that you may write to");
}

PartFile::~PartFile() {
  stream.close();
  std::error_code ignored;
  fs::remove(place, ignored);
}

void PartFile::Write(std::string_view bytes) {
  errno = 0;
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  RequireGood();
}

void PartFile::Seek(int64_t position) {
  errno = 0;
  stream.seekp(position);
  RequireGood();
}

int64_t PartFile::Position() {
  return stream.tellp();
}

void PartFile::Close() {
  errno = 0;
  stream.close();
  RequireGood();
}

void PartFile::RequireGood() {
  if (stream) return;
  Fail(target, "the bytes do not fit (" + LastReason() + "); make room on the disk and try again");
}

void PartFile::Publish() {
  std::error_code failure;
  fs::rename(place, target, failure);
  if (failure) {
    Fail(target, "the finished file cannot take this name (" + failure.message() +
                     "); choose another name");
  }
}
