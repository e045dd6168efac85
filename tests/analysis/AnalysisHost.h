// A host with one sound and one set of parameters; it keeps what the audio calls asked of it.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "AE_Effect.h"
#include "AE_EffectCB.h"
#include "analysis/BandTable.h"
#include "shell/ParameterTable.h"

constexpr PF_Fixed kFixedOne = 65536;

using BandArray = std::array<double, kBandCount>;

// Parameters at their defaults, but ranges inactive and corners at 0, 0.
struct TestParameters {
  std::array<PF_ParamDef, kParameterCount> records{};
  std::array<const PF_ParamDef*, kParameterCount> pointers{};

  TestParameters() {
    for (size_t i = 0; i < records.size(); ++i) pointers[i] = &records[i];
    for (const int32_t i : {kScale, kSubBase, kBase, kMid, kTreble}) At(i).fd.value = kFixedOne;
    At(kQ).fd.value = 6554;
    At(kChannel).pd.value = kChannelMix;
  }
  TestParameters(const TestParameters&) = delete;
  TestParameters& operator=(const TestParameters&) = delete;

  PF_ParamDefUnion& At(int32_t index) { return records[static_cast<size_t>(index)].u; }
  PF_ParamDefUnion& At(int32_t range, RangeRow row) { return At(RangeParameter(range, row)); }
  operator const PF_ParamDef* const*() const { return pointers.data(); }
};

struct AudioAnswers {
  PF_Err checkoutError = PF_Err_NONE;
  bool hasSound = true;
  PF_Err fetchError = PF_Err_NONE;
  bool givesData = true;
  A_long framesBeside = 0;  // added to the frame count that is told
};

struct AnalysisHost {
  PF_InData in_data{};
  PF_UtilCallbacks utils{};
  std::vector<int16_t> samples;  // interleaved; handed out whole, whatever window is asked for
  AudioAnswers answers;
  int fetches = 0;
  int checkins = 0;
  A_long start = 0;
  A_long duration = 0;

  AnalysisHost() {
    in_data.effect_ref = reinterpret_cast<PF_ProgPtr>(this);
    in_data.utils = &utils;
    in_data.inter.checkout_layer_audio =
        [](PF_ProgPtr ref, PF_ParamIndex index, A_long from, A_long length, A_u_long,
           PF_UFixed rate, A_long bytes, A_long channels, A_long isSigned, PF_LayerAudio* audio) {
          EXPECT_TRUE(index == 2 && rate == 44100U << 16U) << "the audio layer at 44100 Hz";
          EXPECT_TRUE(bytes == 2 && channels == 2 && isSigned == 1);
          AnalysisHost& host = Of(ref);
          host.start = from;
          host.duration = length;
          *audio = host.answers.hasSound ? reinterpret_cast<PF_LayerAudio>(ref) : nullptr;
          return host.answers.checkoutError;
        };
    in_data.inter.get_audio_data = [](PF_ProgPtr ref, PF_LayerAudio, PF_SndSamplePtr* data,
                                      A_long* frames, PF_UFixed*, A_long*, A_long*, A_long*) {
      AnalysisHost& host = Of(ref);
      ++host.fetches;
      *data = host.answers.givesData ? host.samples.data() : nullptr;
      *frames = static_cast<A_long>(host.samples.size() / 2) + host.answers.framesBeside;
      return host.answers.fetchError;
    };
    in_data.inter.checkin_layer_audio = [](PF_ProgPtr ref, PF_LayerAudio) {
      ++Of(ref).checkins;
      return PF_Err{PF_Err_NONE};
    };
    utils.ansi.sin = [](double x) { return std::sin(x); };
    utils.ansi.sqrt = [](double x) { return std::sqrt(x); };
    utils.ansi.log = [](double x) { return std::log(x); };
    utils.ansi.pow = [](double x, double y) { return std::pow(x, y); };
  }
  AnalysisHost(const AnalysisHost&) = delete;
  AnalysisHost& operator=(const AnalysisHost&) = delete;

  static AnalysisHost& Of(PF_ProgPtr ref) { return *reinterpret_cast<AnalysisHost*>(ref); }
};

// Noise that is the same everywhere, interleaved, each sample shifted right by `shift` bits.
inline std::vector<int16_t> MakeNoise(size_t frames, int shift) {
  std::vector<int16_t> samples(2 * frames);
  uint32_t state = 1;
  for (int16_t& sample : samples) {
    state = state * 1664525U + 1013904223U;
    sample = static_cast<int16_t>(static_cast<int16_t>(state >> 16U) >> shift);
  }
  return samples;
}
