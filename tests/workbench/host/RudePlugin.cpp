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
  PF_InData* in;
  PF_OutData* out;
  PF_ParamDef** params;
  PF_Err error = PF_Err_NONE;
};

void AcquireSuite(Call& call) {
  const void* suite = nullptr;
  call.error = call.in->pica_basicP->AcquireSuite(kPFAppSuite, kPFAppSuiteVersion6, &suite);
}

void AcquireAndRelease(Call& call) {
  AcquireSuite(call);
  if (call.error != PF_Err_NONE) return;
  call.error = call.in->pica_basicP->ReleaseSuite(kPFAppSuite, kPFAppSuiteVersion6);
}

void CheckOutAudio(Call& call) {
  PF_LayerAudio audio = nullptr;
  call.in->inter.checkout_layer_audio(call.in->effect_ref, 2, 0, 1, 30, 44100U << 16, 2, 2, 1,
                                      &audio);
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

// Any suite, released again: this host's tables outlive the release.
template <typename Table>
const Table& Borrow(const Call& call, const char* name, int version) {
  const void* table = nullptr;
  call.in->pica_basicP->AcquireSuite(name, version, &table);
  call.in->pica_basicP->ReleaseSuite(name, version);
  return *static_cast<const Table*>(table);
}

// Closes batch, stream and effect reference in this order, but leaves the last `leftOpen` of them.
void WriteKeyframes(const Call& call, std::initializer_list<A_Time> times, double value,
                    int leftOpen = 0) {
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
  if (leftOpen < 3) keyframes.AEGP_EndAddKeyframes(1, batch);
  if (leftOpen < 2) streams.AEGP_DisposeStream(stream);
  if (leftOpen < 1) Borrow<AEGP_EffectSuite1>(call, kAEGPEffectSuite, 1).AEGP_DisposeEffect(effect);
}

struct Deed {
  std::string_view name;
  void (*act)(Call& call);
};
constexpr Deed kDeeds[] = {
    {"nothing", [](Call&) {}},
    {"two calls", AcquireAndRelease},
    {"keyframes",
     [](Call& c) {
       WriteKeyframes(c, {{-5, 30}, {5, 30}}, 2.5);
     }},
    {"stay locked", [](Call& c) { NewLocked(c); }},
    {"unlock twice", UnlockTwice},
    {"dispose locked", [](Call& c) { c.in->utils->host_dispose_handle(NewLocked(c)); }},
    {"lock foreign", [](Call& c) { c.in->utils->host_lock_handle(ForeignHandle()); }},
    {"keep suite", AcquireSuite},
    {"keep audio", CheckOutAudio},
    {"keep effect", [](Call& c) { WriteKeyframes(c, {}, 0.0, 1); }},
    {"keep stream", [](Call& c) { WriteKeyframes(c, {}, 0.0, 2); }},
    {"keep batch", [](Call& c) { WriteKeyframes(c, {}, 0.0, 3); }},
    {"backwards",
     [](Call& c) {
       WriteKeyframes(c, {{5, 30}, {4, 30}}, 1.0);
     }},
    {"same time",
     [](Call& c) {
       WriteKeyframes(c, {{5, 30}, {10, 60}}, 1.0);
     }},
    {"NaN",
     [](Call& c) {
       WriteKeyframes(c, {{5, 30}}, NAN);
     }},
    {"write params", [](Call& c) { c.params[1]->u.fd.value = 7; }},
    {"other effect", [](Call& c) { c.in->inter.checkin_layer_audio(nullptr, nullptr); }},
    {"empty slot", [](Call& c) { c.in->inter.abort(c.in->effect_ref); }},
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
