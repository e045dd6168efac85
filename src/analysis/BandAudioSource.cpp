// Check-out, fetch and check-in of the audio layer's sound.
#include "analysis/BandAudioSource.h"

#include "shell/ParameterTable.h"

namespace {

constexpr PF_UFixed kSampleRateFixed = 0xAC440000;  // 44100.0
constexpr A_long kBytesPerSample = 2;
constexpr A_long kChannelCount = 2;
constexpr A_long kSignedSamples = 1;

}  // namespace

BandAudioSource::BandAudioSource(const PF_InData* in_data, const AudioWindow& window)
    : hostData(in_data) {
  checkoutError = hostData->inter.checkout_layer_audio(
      hostData->effect_ref, kAudioLayer, window.start, window.duration, window.timeScale,
      kSampleRateFixed, kBytesPerSample, kChannelCount, kSignedSamples, &audio);
  if (checkoutError != PF_Err_NONE) audio = nullptr;
}

BandAudioSource::~BandAudioSource() {
  if (audio != nullptr) hostData->inter.checkin_layer_audio(hostData->effect_ref, audio);
}

PF_Err BandAudioSource::Fetch(StereoFrames& frames) const {
  frames = {};
  if (audio == nullptr) return checkoutError;
  PF_SndSamplePtr data = nullptr;
  A_long count = 0;
  const PF_Err err = hostData->inter.get_audio_data(hostData->effect_ref, audio, &data, &count,
                                                    nullptr, nullptr, nullptr, nullptr);
  if (err != PF_Err_NONE || data == nullptr || count <= 0) return err;
  frames = {static_cast<const int16_t*>(data), count};
  return PF_Err_NONE;
}
