// What a whole `workbench apply` of a song costs, and what of it is the bank, decoding, the host's
// calls, the export and the rest.
#include <sys/resource.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "Figures.h"
#include "analysis/ResonatorBank.h"
#include "analysis/ResonatorTuning.h"
#include "shell/ParameterTable.h"
#include "workbench/audio/AudioDecoder.h"
#include "workbench/cli/KeyframeRun.h"
#include "workbench/export/WholeFile.h"

namespace {

constexpr int32_t kSeconds = 180;
constexpr int32_t kKeyframesPerSecond = 30;
constexpr int kTurns = 5;

// Three ranges side by side over all 32 bands of a frame of 1920 x 1080.
const std::vector<std::string> kRanges = {
    "Range 1/Active=on", "Range 1 Corner 1=192,108", "Range 1 Corner 2=586,900",
    "Range 2/Active=on", "Range 2 Corner 1=590,108", "Range 2 Corner 2=946,900",
    "Range 3/Active=on", "Range 3 Corner 1=950,108", "Range 3 Corner 2=1342,900",
};

// A beat of decaying low tones over a steady chord, in stereo.
std::vector<int16_t> MakeSong() {
  std::vector<int16_t> samples;
  for (int64_t n = 0; n < int64_t{kSeconds} * kClipSampleRateHz; ++n) {
    const double time = static_cast<double>(n) / kClipSampleRateHz;
    const double beat = std::fmod(time, 0.5);
    const double value = 0.5 * std::exp(-8.0 * beat) * std::sin(2.0 * M_PI * 55.0 * time) +
                         0.1 * std::sin(2.0 * M_PI * 220.0 * time) +
                         0.1 * std::sin(2.0 * M_PI * 1760.0 * time);
    samples.insert(samples.end(), 2, static_cast<int16_t>(32767.0 * value));
  }
  return samples;
}

// A WAV file of `samples`, which goes with the object.
class SongFile {
 public:
  explicit SongFile(const std::vector<int16_t>& samples) {
    const auto bytes = static_cast<uint32_t>(samples.size() * sizeof(int16_t));
    std::ofstream file(path, std::ios::binary);
    const auto put = [&file](const char* tag, auto... numbers) {
      file.write(tag, 4);
      (file.write(reinterpret_cast<const char*>(&numbers), sizeof numbers), ...);
    };
    put("RIFF", bytes + 36U);
    put("WAVE");
    put("fmt ", 16U, uint16_t{1}, uint16_t{2}, 44100U, 176400U, uint16_t{4}, uint16_t{16});
    put("data", bytes);
    file.write(reinterpret_cast<const char*>(samples.data()), bytes);
    if (!file.flush()) throw std::runtime_error("no room for a song in " + path.string());
  }
  ~SongFile() { std::filesystem::remove(path); }
  SongFile(const SongFile&) = delete;
  SongFile& operator=(const SongFile&) = delete;

  const std::filesystem::path path = std::filesystem::temp_directory_path() / "apply_bench.wav";
};

double ProcessorSeconds(int whose) {
  rusage usage{};
  getrusage(whose, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

// Seconds of each turn of a piece of work. Neighbours on the machine disturb the processor's time
// less than the clock on the wall.
struct Cost {
  std::vector<double> processor;
  std::vector<double> wall;

  void Add(const std::function<void()>& work, int whose = RUSAGE_SELF) {
    const auto start = std::chrono::steady_clock::now();
    const double used = ProcessorSeconds(whose);
    work();
    processor.push_back(ProcessorSeconds(whose) - used);
    wall.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
};

struct Costs {
  Cost whole, decoding, bank, calls, exporting;
};

// The windows of the run through all bands, straight from the song.
void RunBankAlone(const std::vector<int16_t>& song) {
  PF_ANSICallbacks ansi{};
  ansi.sin = [](double x) { return std::sin(x); };
  std::array<double, kBandCount> mask{};
  mask.fill(1.0);
  constexpr int32_t kWindowFrames = 6629;
  constexpr int32_t kStep = kClipSampleRateHz / kKeyframesPerSecond;
  const int64_t lastFirst = static_cast<int64_t>(song.size()) / 2 - kWindowFrames;
  for (int64_t n = 0; n < int64_t{kSeconds} * kKeyframesPerSecond; ++n) {
    const StereoFrames frames{song.data() + 2 * std::min(n * kStep, lastFirst), kWindowFrames};
    std::array<double, kBandCount> sums{};
    SumMagnitudes(TuneResonators(mask, 0.1, ansi), frames, kChannelMix, sums);
  }
}

void RunWorkbench(const std::filesystem::path& song, const std::filesystem::path& keyframes) {
  std::string command = std::string("'") + WORKBENCH_PATH + "' apply '" + song.string() +
                        "' --quiet --out '" + keyframes.string() + "'";
  for (const std::string& setting : kRanges) command += " --set '" + setting + "'";
  if (std::system(command.c_str()) != 0) throw std::runtime_error("This failed: " + command);
}

StageOptions OptionsOfRun() {
  StageOptions options;
  options.plugin = PLUGIN_PATH;
  options.settings = kRanges;
  return options;
}

// In a frame of one pixel no band lies in a range: the run makes all its calls and the bank none of
// its passes.
StageOptions OptionsWithoutBank() {
  StageOptions options = OptionsOfRun();
  options.size = {1, 1};
  return options;
}

// The steps of the command, each by itself.
//
// finished   a stage whose run is over, for its keyframes
void AddTurn(const std::vector<int16_t>& song, const std::filesystem::path& file, Stage& finished,
             Costs& costs) {
  const std::filesystem::path out = std::filesystem::path(file).replace_extension(".csv");
  costs.whole.Add([&] { RunWorkbench(file, out); }, RUSAGE_CHILDREN);
  std::shared_ptr<const AudioClip> sound;
  costs.decoding.Add([&] { sound = std::make_shared<const AudioClip>(DecodeAudioFile(file)); });
  Stage stage(OptionsWithoutBank(), "song", sound);
  costs.calls.Add([&] { stage.Session().PressApply(stage.Instance()); });
  costs.bank.Add([&] { RunBankAlone(song); });
  costs.exporting.Add([&] {
    WriteWholeFile(out, WriterFor("--out", out)(TableOf(finished, finished.Instance().written)));
  });
  std::filesystem::remove(out);
}

std::vector<Figure> FiguresOf(const Costs& costs) {
  const double whole = MedianOf(costs.whole.processor);
  double left = whole;
  std::vector<Figure> figures = {
      {"Apply, 3 minutes, 3 ranges, on the wall", MedianOf(costs.whole.wall), " s", 0.8},
      {"Apply, on the processor", whole, " s", 0.8, 1.6}};
  const auto addPart = [&](const char* what, double seconds) {
    left -= seconds;
    figures.push_back({std::string("Apply, ") + what, 100.0 * seconds / whole, " %"});
  };
  const double bank = MedianOf(costs.bank.processor);
  addPart("the bank", bank);
  addPart("decoding", MedianOf(costs.decoding.processor));
  const double neither = left;
  addPart("the run's calls of the host", MedianOf(costs.calls.processor));
  addPart("export", MedianOf(costs.exporting.processor));
  addPart("start and end of the process, and the rest", left);
  figures.push_back(
      {"Apply, what is neither bank nor decoding", neither / bank, " of the bank", 1.0, 2.0});
  return figures;
}

Costs Measure() {
  const std::vector<int16_t> song = MakeSong();
  const SongFile file(song);
  Stage finished(OptionsOfRun(), "song",
                 std::make_shared<const AudioClip>(DecodeAudioFile(file.path)));
  finished.Session().PressApply(finished.Instance());
  Costs costs;
  for (int turn = 0; turn < kTurns; ++turn) AddTurn(song, file.path, finished, costs);
  return costs;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return ReportFigures(FiguresOf(Measure()), argc, argv);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
}
