// An effect that does at each command the deed that `extra` names, most of them against the rules.
#include <cmath>
#include <cstring>
#include <initializer_list>
#include <stdexcept>
#include <string_view>

#include "AE_EffectSuites.h"
#include "AE_GeneralPlug.h"

namespace {

struct Call {
  PF_InData* in = nullptr;
  PF_OutData* out = nullptr;
  PF_ParamDef** params = nullptr;
  PF_Err error = PF_Err_NONE;
};

void KeepSuite(Call& call) {
  const void* suite = nullptr;
  call.error = call.in->pica_basicP->AcquireSuite(kPFAppSuite, kPFAppSuiteVersion6, &suite);
}

void KeepAudio(Call& call) {
  PF_LayerAudio audio = nullptr;
  call.error = call.in->inter.checkout_layer_audio(call.in->effect_ref, 2, 0, 1, 30, 44100U << 16,
                                                   2, 2, 1, &audio);
}

void KeepSuiteAndAudio(Call& call) {
  KeepSuite(call);
  KeepAudio(call);
}

PF_Handle NewLocked(const Call& call) {
  const PF_Handle handle = call.in->utils->host_new_handle(8);
  call.in->utils->host_lock_handle(handle);
  return handle;
}

void UnlockTwice(Call& call) {
  const PF_Handle handle = NewLocked(call);
  call.in->utils->host_unlock_handle(handle);
  call.in->utils->host_unlock_handle(handle);
}

PF_Handle ForeignHandle() {
  static A_char* place = nullptr;
  return &place;
}

// A suite that is released again: the host's tables outlive the release.
template <typename Table>
const Table& Borrow(const Call& call, const char* name, int version) {
  const void* table = nullptr;
  call.in->pica_basicP->AcquireSuite(name, version, &table);
  call.in->pica_basicP->ReleaseSuite(name, version);
  return *static_cast<const Table*>(table);
}

// Ends the batch, then disposes of stream and effect reference, as far as `steps` goes.
void WriteKeyframes(const Call& call, std::initializer_list<A_Time> times, double value,
                    int steps) {
  const auto& effects = Borrow<AEGP_PFInterfaceSuite1>(call, kAEGPPFInterfaceSuite, 1);
  const auto& streams = Borrow<AEGP_StreamSuite7>(call, kAEGPStreamSuite, 7);
  const auto& keyframes = Borrow<AEGP_KeyframeSuite4>(call, kAEGPKeyframeSuite, 4);
  AEGP_EffectRefH effect = nullptr;
  AEGP_StreamRefH stream = nullptr;
  AEGP_AddKeyframesInfoH batch = nullptr;
  effects.AEGP_GetNewEffectForEffect(0, call.in->effect_ref, &effect);
  streams.AEGP_GetNewEffectStreamByIndex(0, effect, 1, &stream);
  keyframes.AEGP_StartAddKeyframes(stream, &batch);
  for (const A_Time& time : times) {
    A_long index = 0;
    keyframes.AEGP_AddKeyframes(batch, AEGP_LTimeMode_LayerTime, &time, &index);
    AEGP_StreamValue2 given{stream, {}};
    given.val.one_d = value;
    keyframes.AEGP_SetAddKeyframe(batch, index, &given);
  }
  if (steps > 0) keyframes.AEGP_EndAddKeyframes(1, batch);
  if (steps > 1) streams.AEGP_DisposeStream(stream);
  if (steps > 2) Borrow<AEGP_EffectSuite1>(call, kAEGPEffectSuite, 1).AEGP_DisposeEffect(effect);
}

struct Deed {
  std::string_view name;
  void (*act)(Call& call);
};
constexpr Deed kDeeds[] = {
    {"keyframes",
     [](Call& c) {
       WriteKeyframes(c, {{-5, 30}, {5, 30}}, 2.5, 3);
     }},
    {"stay locked", [](Call& c) { NewLocked(c); }},
    {"unlock twice", UnlockTwice},
    {"dispose locked", [](Call& c) { c.in->utils->host_dispose_handle(NewLocked(c)); }},
    {"lock foreign", [](Call& c) { c.in->utils->host_lock_handle(ForeignHandle()); }},
    {"keep suite", KeepSuite},
    {"keep audio", KeepAudio},
    {"keep both", KeepSuiteAndAudio},
    {"keep stream", [](Call& c) { WriteKeyframes(c, {}, 0.0, 1); }},
    {"keep batch", [](Call& c) { WriteKeyframes(c, {}, 0.0, 0); }},
    {"backwards",
     [](Call& c) {
       WriteKeyframes(c, {{5, 30}, {4, 30}}, 1.0, 3);
     }},
    {"NaN",
     [](Call& c) {
       WriteKeyframes(c, {{5, 30}}, NAN, 3);
     }},
    {"foreign effect",
     [](Call& c) {
       PF_CustomUIInfo info{};
       c.in->inter.register_ui(nullptr, &info);
     }},
    {"write params", [](Call& c) { c.params[1]->u.fd.value = 7; }},
    {"throw", [](Call&) { throw std::runtime_error("rude"); }},
    {"endless", [](Call& c) { std::memset(c.out->return_msg, 'x', sizeof c.out->return_msg); }},
    {"foreign global", [](Call& c) { c.out->global_data = ForeignHandle(); }},
    {"foreign record", [](Call& c) { c.out->sequence_data = ForeignHandle(); }},
};

}  // namespace

extern "C" __attribute__((visibility("default"))) PF_Err EntryPointFunc(
    PF_Cmd /*cmd*/, PF_InData* in_data, PF_OutData* out_data, PF_ParamDef* params[],
    PF_LayerDef* /*output*/, void* extra) {
  Call call{in_data, out_data, params};
  for (const Deed& deed : kDeeds) {
    if (deed.name == static_cast<const char*>(extra)) deed.act(call);
  }
  return call.error;
}
