// What the forms of the resonator bank cost beside the plain loop, on music and on silence after a
// click.
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <numbers>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "Figures.h"
#include "analysis/ResonatorForms.h"
#include "shell/ParameterTable.h"
#include "tools/bankcases/BankCase.h"

namespace {

constexpr size_t kFrames = 6629;  // 451 ticks of 1/3000 s, the window at 30 keyframes a second
constexpr double kDefaultQ = 6554.0 / 65536.0;
constexpr int kRounds = 61;

// A sawtooth bass, a chord that stands left and right apart, and a drum of falling noise.
std::vector<int16_t> MakeMusic() {
  std::minstd_rand random(1);
  std::vector<int16_t> samples(2 * kFrames);
  for (size_t i = 0; i < kFrames; ++i) {
    const double seconds = static_cast<double>(i) / 44100.0;
    const double bass = 0.3 * (2.0 * std::fmod(55.0 * seconds, 1.0) - 1.0);
    double chord = 0.0;
    for (const double hz : {220.0, 277.18, 329.63, 1760.0}) {
      chord += 0.1 * std::sin(2.0 * std::numbers::pi * hz * seconds);
    }
    const double noise = static_cast<double>(random()) / std::minstd_rand::max() - 0.5;
    const double drum = 0.5 * noise * std::exp(-30.0 * seconds);
    samples[2 * i] = static_cast<int16_t>(std::lround(32767.0 * (bass + chord + drum)));
    samples[2 * i + 1] = static_cast<int16_t>(std::lround(32767.0 * (bass - 0.5 * chord + drum)));
  }
  return samples;
}

std::vector<int16_t> MakeClick() {
  std::vector<int16_t> samples(2 * kFrames);
  samples[0] = samples[1] = 32767;
  return samples;
}

ResonatorBank LowestBands(int count, double Q) {
  return TunedBank(static_cast<uint32_t>((uint64_t{1} << count) - 1), Q);
}

// Processor time, which neighbours on the machine disturb less than the clock on the wall.
double SecondsOf(const ResonatorForm& form, const ResonatorBank& bank,
                 const std::vector<int16_t>& samples) {
  constexpr int kRuns = 4;
  std::array<double, kBandCount> sums{};
  const std::clock_t begin = std::clock();
  for (int run = 0; run < kRuns; ++run) {
    form.sumMagnitudes(bank, {samples.data(), kFrames}, kChannelMix, sums);
  }
  return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC / kRuns;
}

// What is asked of a form's speed, in times the plain loop's.
struct Demand {
  int bands;
  std::string_view form;
  double wanted;
  double gate;
};

constexpr Demand kDemands[] = {{32, "AVX2", 18.0, 10.0},
                               {11, "AVX2", 9.5, 7.0},
                               {1, "AVX2", 1.0, 0.9},
                               {32, "SSE2", 7.0, 5.0},
                               {1, "SSE2", 1.0, 0.9}};

Figure SpeedFigure(int bands, std::string_view form, double ratio) {
  Figure figure{"Bank, " + std::to_string(bands) + " of 32 bands, " + std::string(form) +
                    ", faster than the plain loop",
                ratio, " times"};
  figure.better = Better::kLarger;
  for (const Demand& demand : kDemands) {
    if (demand.bands != bands || demand.form != form) continue;
    figure.wanted = demand.wanted;
    figure.gate = demand.gate;
  }
  return figure;
}

using Rounds = std::array<std::vector<double>, 3>;  // a ratio a round, for each form

// The forms take turns, and the ratio is the median of the rounds.
void MeasureSpeed(int bands, std::vector<Figure>& figures) {
  const ResonatorBank bank = LowestBands(bands, kDefaultQ);
  const std::vector<int16_t> music = MakeMusic();
  const auto forms = ResonatorForms();
  Rounds ratios;
  for (int round = 0; round < kRounds; ++round) {
    const double plain = SecondsOf(forms[0], bank, music);
    for (size_t i = 1; i < forms.size(); ++i) {
      ratios.at(i).push_back(plain / SecondsOf(forms[i], bank, music));
    }
  }
  for (size_t i = 1; i < forms.size(); ++i) {
    figures.push_back(SpeedFigure(bands, forms[i].name, MedianOf(ratios.at(i))));
  }
}

// At the largest damping the tail sinks below the normal numbers within the window. Only the plain
// loop may take longer for it.
void MeasureTail(std::vector<Figure>& figures) {
  const ResonatorBank bank = LowestBands(kBandCount, 1.0);
  const std::vector<int16_t> music = MakeMusic();
  const std::vector<int16_t> click = MakeClick();
  const auto forms = ResonatorForms();
  Rounds ratios;
  for (int round = 0; round < kRounds; ++round) {
    for (size_t i = 0; i < forms.size(); ++i) {
      const double seconds = SecondsOf(forms[i], bank, click);
      ratios.at(i).push_back(seconds / SecondsOf(forms[i], bank, music));
    }
  }
  for (size_t i = 0; i < forms.size(); ++i) {
    const std::string form = forms[i].name;
    figures.push_back({"Bank, 32 of 32 bands, " + form + ", as long in silence after a click",
                       MedianOf(ratios.at(i)), " times", i == 0 ? 0.0 : 1.05, i == 0 ? 0.0 : 1.15});
  }
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<Figure> figures;
  for (const int bands : {1, 4, 8, 11, 16, 32}) MeasureSpeed(bands, figures);
  MeasureTail(figures);
  return ReportFigures(figures, argc, argv);
}
