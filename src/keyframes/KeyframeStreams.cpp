// Opens, writes and closes through the host's keyframe suites.
#include "keyframes/KeyframeStreams.h"

#include "keyframes/HandedOut.h"

namespace {

// The effect asks under no plug-in id of its own.
constexpr AEGP_PluginID kNoPluginId = 0;

}  // namespace

// Every suite that closing needs is taken before anything opens, so that closing can't fail for
// want of one.
KeyframeStreams::KeyframeStreams(AEGP_SuiteHandler& suites, PF_ProgPtr effectRef,
                                 const ActiveRanges& active)
    : interfaceSuite(suites.PFInterfaceSuite()),
      streamSuite(suites.StreamSuite()),
      keyframeSuite(suites.KeyframeSuite()),
      effectSuite(suites.EffectSuite()) {
  error = Open(effectRef, active);
}

KeyframeStreams::~KeyframeStreams() {
  Close();
}

PF_Err KeyframeStreams::Open(PF_ProgPtr effectRef, const ActiveRanges& active) {
  PF_Err openError =
      HandedOut(interfaceSuite.AEGP_GetNewEffectForEffect(kNoPluginId, effectRef, &effect), effect);
  if (openError != PF_Err_NONE) return openError;
  for (int32_t range = 0; range < kRangeCount; ++range) {
    const auto slot = static_cast<size_t>(range);
    if (!active[slot]) continue;
    AEGP_StreamRefH& stream = outputs[slot].stream;
    openError = HandedOut(streamSuite.AEGP_GetNewEffectStreamByIndex(
                              kNoPluginId, effect, RangeParameter(range, kRangeOutput), &stream),
                          stream);
    if (openError != PF_Err_NONE) return openError;
  }
  for (Output& output : outputs) {
    if (output.stream == nullptr) continue;
    openError = HandedOut(keyframeSuite.AEGP_StartAddKeyframes(output.stream, &output.addHandle),
                          output.addHandle);
    if (openError != PF_Err_NONE) return openError;
  }
  return PF_Err_NONE;
}

PF_Err KeyframeStreams::Add(int32_t range, int32_t tick, uint32_t ticksPerSecond, double value) {
  const Output& output = outputs[static_cast<size_t>(range)];
  AEGP_StreamValue2 streamValue{};
  streamValue.streamH = output.stream;
  streamValue.val.one_d = value;
  const A_Time time{tick, ticksPerSecond};
  A_long keyIndex = 0;
  const PF_Err addError =
      keyframeSuite.AEGP_AddKeyframes(output.addHandle, AEGP_LTimeMode_LayerTime, &time, &keyIndex);
  if (addError != PF_Err_NONE) return addError;
  return keyframeSuite.AEGP_SetAddKeyframe(output.addHandle, keyIndex, &streamValue);
}

PF_Err KeyframeStreams::Close() {
  PF_Err firstError = PF_Err_NONE;
  const auto note = [&firstError](PF_Err closeError) {
    if (firstError == PF_Err_NONE) firstError = closeError;
  };
  for (Output& output : outputs) {
    if (output.addHandle != nullptr) note(keyframeSuite.AEGP_EndAddKeyframes(1, output.addHandle));
    output.addHandle = nullptr;
  }
  for (Output& output : outputs) {
    if (output.stream != nullptr) note(streamSuite.AEGP_DisposeStream(output.stream));
    output.stream = nullptr;
  }
  if (effect != nullptr) note(effectSuite.AEGP_DisposeEffect(effect));
  effect = nullptr;
  return firstError;
}
