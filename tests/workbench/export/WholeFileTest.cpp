// Catches a write that fails and leaves half a file, a lost old file, or a temporary beside it.
#include "workbench/export/WholeFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <iterator>

#include "workbench/Failure.h"

namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;

class WholeFile : public testing::Test {
 protected:
  void SetUp() override {
    fs::create_directories(folder / "sub");
    mkfifo((folder / "pipe").c_str(), 0600);
    WriteWholeFile(old, "old");
  }
  void TearDown() override { fs::remove_all(folder); }

  void ExpectOnlyTheOldFileWith(const std::string& bytes) const {
    std::ifstream stream(old, std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}), bytes);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 3) << "not what SetUp made";
    EXPECT_TRUE(fs::is_empty(folder / "sub") && fs::is_fifo(folder / "pipe"));
  }

  void ExpectFailure(const fs::path& path, const std::string& bytes, const char* reason) const {
    try {
      WriteWholeFile(path, bytes);
      ADD_FAILURE() << path << " was written";
    } catch (const JobFailure& failure) {
      EXPECT_THAT(failure.what(), AllOf(HasSubstr(path.string()), HasSubstr(reason)));
    }
    ExpectOnlyTheOldFileWith("old");
  }

  const fs::path folder = fs::temp_directory_path() / ("delvior-" + std::to_string(getpid()));
  const fs::path old = folder / "old.csv";
};

TEST_F(WholeFile, TakesThePlaceOfTheOldFileAndLeavesNothingElse) {
  for (const std::string& bytes : {std::string(300000, 'x'), std::string("a\0\r\n\xFF", 5), {}}) {
    WriteWholeFile(old, bytes);
    ExpectOnlyTheOldFileWith(bytes);
  }
}

TEST_F(WholeFile, LeavesTheOldFileWhenTheTargetCannotBe) {
  ExpectFailure(folder / "none" / "a.csv", "x", "create it first");
  ExpectFailure(folder / "sub", "x", "it is a folder");
  ExpectFailure(folder / std::string(256, 'n'), "x", "choose another name");
  ExpectFailure(folder / "pipe", "x", "not a plain file");
}

TEST_F(WholeFile, LeavesTheOldFileWhenTheDiskTakesOnlyAPart) {
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{100, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  ExpectFailure(old, std::string(101, 'x'), "make room");  // which only the close tells
  ExpectFailure(old, std::string(300000, 'x'), "make room");
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
}

TEST_F(WholeFile, LeavesTheOldFileWhenTheFolderMayNotBeWrittenTo) {
  constexpr uid_t kNobody = 65534;  // permissions don't bind the superuser
  const uid_t user = geteuid();
  fs::permissions(folder, fs::perms(0555));
  ASSERT_EQ(seteuid(user == 0 ? kNobody : user), 0);
  ExpectFailure(old, "x", "choose a folder that you may write to");
  ASSERT_EQ(seteuid(user), 0);
  fs::permissions(folder, fs::perms::owner_all);
}

}  // namespace
