// Cuts windows out of a layer's sound.
#include "workbench/host/AudioCallbacks.h"

#include "workbench/host/EffectInstance.h"
#include "workbench/host/FloorDivide.h"
#include "workbench/host/HostCall.h"

namespace {

constexpr PF_UFixed kClipRate = PF_UFixed{kClipSampleRateHz} << 16;
constexpr A_long kBytesPerSample = 2;

// More than any window that an effect could want at once: half an hour.
constexpr int64_t kLargestWindowFrames = int64_t{kClipSampleRateHz} * 1800;

// floor(ticks x 44100 / scale)
int64_t FrameAt(int64_t ticks, A_u_long scale) {
  return FloorDivide(ticks * kClipSampleRateHz, scale);
}

// The sound of the layer that the user has chosen in a layer parameter; null where there is none.
const AudioClip* ChosenSound(const EffectInstance& instance, PF_ParamIndex index) {
  const auto chosen = instance.chosenLayers.find(static_cast<size_t>(index));
  return chosen != instance.chosenLayers.end() ? chosen->second->sound.get() : nullptr;
}

bool IsLayerParameter(const EffectInstance* instance, PF_ParamIndex index) {
  return instance != nullptr && index >= 0 &&
         static_cast<size_t>(index) < instance->ParameterCount() &&
         instance->Value(static_cast<size_t>(index)).param_type == PF_Param_LAYER;
}

}  // namespace

PF_Err CheckoutLayerAudio(PF_ProgPtr effect_ref, PF_ParamIndex index, A_long start_time,
                          A_long duration, A_u_long time_scale, PF_UFixed rate,
                          A_long bytes_per_sample, A_long num_channels, A_long fmt_signed,
                          PF_LayerAudio* audio) {
  const HostCall call("checkout_layer_audio", effect_ref);
  if (!call) return call.Error();
  *audio = nullptr;
  const EffectInstance* instance = call->Instance();
  if (!IsLayerParameter(instance, index)) {
    return call.Broken("parameter " + std::to_string(index) + " is no layer parameter");
  }
  if (rate != kClipRate || bytes_per_sample != kBytesPerSample || num_channels != kClipChannels ||
      fmt_signed == 0) {
    return call.Broken("this host has 16-bit signed stereo at 44100 Hz only");
  }
  if (time_scale == 0) return call.Broken("the time scale is 0");
  const int64_t frames = FrameAt(duration, time_scale);
  if (frames < 0) return call.Broken("the duration is negative");
  if (frames > kLargestWindowFrames) return PF_Err_OUT_OF_MEMORY;
  const AudioClip* sound = ChosenSound(*instance, index);
  if (sound == nullptr) return PF_Err_NONE;

  AudioCheckout checkout;
  checkout.samples.resize(static_cast<size_t>(frames) * kClipChannels);
  sound->CopyFrames(FrameAt(start_time, time_scale), static_cast<int32_t>(frames),
                    checkout.samples.data());
  void* reference = &call->audio.Open(std::move(checkout));
  *audio = static_cast<PF_LayerAudio>(reference);
  return PF_Err_NONE;
}

PF_Err CheckinLayerAudio(PF_ProgPtr effect_ref, PF_LayerAudio audio) {
  const HostCall call("checkin_layer_audio", effect_ref);
  if (!call.IsWithinCommand()) return call.Error();
  const AudioCheckout* checkout = call->audio.Find(audio);
  if (checkout == nullptr) return call.Broken("this audio is not checked out");
  // Letting go takes effect even where the host then answers with an error.
  call->audio.Close(checkout);
  return call.Error();
}

PF_Err GetAudioData(PF_ProgPtr effect_ref, PF_LayerAudio audio, PF_SndSamplePtr* data0,
                    A_long* num_samples0, PF_UFixed* rate0, A_long* bytes_per_sample0,
                    A_long* num_channels0, A_long* fmt_signed0) {
  const HostCall call("get_audio_data", effect_ref);
  if (!call) return call.Error();
  AudioCheckout* checkout = call->audio.Find(audio);
  if (checkout == nullptr) return call.Broken("this audio is not checked out");
  if (data0 != nullptr) *data0 = checkout->samples.data();
  if (num_samples0 != nullptr) {
    *num_samples0 = static_cast<A_long>(checkout->samples.size() / kClipChannels);
  }
  if (rate0 != nullptr) *rate0 = kClipRate;
  if (bytes_per_sample0 != nullptr) *bytes_per_sample0 = kBytesPerSample;
  if (num_channels0 != nullptr) *num_channels0 = kClipChannels;
  if (fmt_signed0 != nullptr) *fmt_signed0 = 1;
  return PF_Err_NONE;
}
