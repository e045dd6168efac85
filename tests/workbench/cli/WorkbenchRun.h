// Runs the built workbench in a folder of its own, where a sound of a second lies.
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cmath>
#include <cstdlib>
#include <iterator>
#include <sstream>

#include "tests/workbench/audio/PlainSoundBytes.h"
#include "tests/workbench/audio/TemporaryFolder.h"

struct Outcome {
  int status = -1;  // the exit status, or that of a shell that tells of a crash
  std::string out;
  std::string err;
};

class WorkbenchRun : public testing::Test {
 protected:
  // A low tone that swells, on the left; the right is silent.
  WorkbenchRun() {
    std::vector<int16_t> samples;
    for (int n = 0; n < 44100; ++n) {
      const auto left = static_cast<int16_t>(0.6 * n * std::sin(n * 0.0142));
      samples.insert(samples.end(), {left, 0});
    }
    folder.Write("a.wav", WavBytes(samples));
  }

  Outcome Run(const std::vector<std::string>& arguments) const {
    const std::string streamsPath = streams.Path().string();
    std::string command = "cd '" + folder.Path().string() + "' && '" WORKBENCH "'";
    for (const std::string& argument : arguments) command += " '" + argument + "'";
    command += " </dev/null >'" + streamsPath + "/out' 2>'" + streamsPath + "/err'";
    const int status = std::system(command.c_str());
    return {WEXITSTATUS(status), Read(streams.Path() / "out"), Read(streams.Path() / "err")};
  }

  // Runs apply on the left side, with options that are parted by blanks. Returns the file.
  std::string Apply(const std::string& options, const std::string& file = "o.csv") const {
    std::istringstream words("apply a.wav --set Channel=Left --out " + file + " " + options);
    const Outcome outcome = Run({std::istream_iterator<std::string>(words), {}});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
    return Read(folder.Path() / file);
  }

  static std::string Read(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  const TemporaryFolder folder;
  const TemporaryFolder streams;
};
