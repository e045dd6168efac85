// The suites about the project: layers, comps, streams and keyframes.
#include <cmath>

#include "workbench/host/EffectHost.h"
#include "workbench/host/SuiteRegistry.h"

namespace {

template <typename Reference, typename Object>
Reference AsReference(Object* object) {
  return static_cast<Reference>(static_cast<void*>(object));
}

// The command's layer, if `reference` is that layer.
Layer* FindLayer(CommandScope& scope, const char* call, AEGP_LayerH reference) {
  if (scope.Instance() != nullptr) {
    Layer& layer = scope.Instance()->EffectLayer();
    if (AsReference<AEGP_LayerH>(&layer) == reference) return &layer;
  }
  scope.Broken(call, "the layer is not one of this project's");
  return nullptr;
}

Comp* FindComp(CommandScope& scope, const char* call, AEGP_CompH reference) {
  if (scope.Instance() != nullptr) {
    Comp* comp = scope.Instance()->EffectLayer().comp;
    if (AsReference<AEGP_CompH>(comp) == reference) return comp;
  }
  scope.Broken(call, "the comp is not one of this project's");
  return nullptr;
}

A_Err GetEffectLayer(PF_ProgPtr effect_ref, AEGP_LayerH* layer) {
  constexpr const char* kCall = "AEGP_GetEffectLayer";
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr) return PF_Err_INVALID_CALLBACK;
  const PF_Err error = scope->EnterCall(kCall, effect_ref);
  if (error != PF_Err_NONE) return error;
  if (scope->Instance() == nullptr) return scope->Broken(kCall, "there is no instance");
  *layer = AsReference<AEGP_LayerH>(&scope->Instance()->EffectLayer());
  return PF_Err_NONE;
}

A_Err GetNewEffectForEffect(AEGP_PluginID /*id*/, PF_ProgPtr effect_ref, AEGP_EffectRefH* effect) {
  constexpr const char* kCall = "AEGP_GetNewEffectForEffect";
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr) return PF_Err_INVALID_CALLBACK;
  const PF_Err error = scope->EnterCall(kCall, effect_ref);
  if (error != PF_Err_NONE) return error;
  if (scope->Instance() == nullptr) return scope->Broken(kCall, "there is no instance");
  *effect = AsReference<AEGP_EffectRefH>(&scope->effects.Open({*scope->Instance()}));
  return PF_Err_NONE;
}

A_Err GetLayerParentComp(AEGP_LayerH reference, AEGP_CompH* comp) {
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr) return PF_Err_INVALID_CALLBACK;
  const PF_Err error = scope->EnterCall();
  if (error != PF_Err_NONE) return error;
  const Layer* layer = FindLayer(*scope, "AEGP_GetLayerParentComp", reference);
  if (layer == nullptr) return PF_Err_BAD_CALLBACK_PARAM;
  *comp = AsReference<AEGP_CompH>(layer->comp);
  return PF_Err_NONE;
}

A_Err ConvertCompToLayerTime(AEGP_LayerH reference, const A_Time* comp_time, A_Time* layer_time) {
  constexpr const char* kCall = "AEGP_ConvertCompToLayerTime";
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr) return PF_Err_INVALID_CALLBACK;
  const PF_Err error = scope->EnterCall();
  if (error != PF_Err_NONE) return error;
  const Layer* layer = FindLayer(*scope, kCall, reference);
  if (layer == nullptr) return PF_Err_BAD_CALLBACK_PARAM;
  if (comp_time->scale == 0) return scope->Broken(kCall, "the time's scale is 0");
  *layer_time = CompToLayerTime(*layer, *comp_time);
  return PF_Err_NONE;
}

// Both ends of the work area differ only in which field is read.
A_Err GetWorkAreaTime(const char* call, AEGP_CompH reference, int32_t Comp::*ticks, A_Time* time) {
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr) return PF_Err_INVALID_CALLBACK;
  const PF_Err error = scope->EnterCall();
  if (error != PF_Err_NONE) return error;
  const Comp* comp = FindComp(*scope, call, reference);
  if (comp == nullptr) return PF_Err_BAD_CALLBACK_PARAM;
  *time = {comp->*ticks, comp->timeScale};
  return PF_Err_NONE;
}

A_Err GetCompWorkAreaStart(AEGP_CompH comp, A_Time* time) {
  return GetWorkAreaTime("AEGP_GetCompWorkAreaStart", comp, &Comp::workAreaStart, time);
}

A_Err GetCompWorkAreaDuration(AEGP_CompH comp, A_Time* time) {
  return GetWorkAreaTime("AEGP_GetCompWorkAreaDuration", comp, &Comp::workAreaDuration, time);
}

A_Err GetNewEffectStreamByIndex(AEGP_PluginID /*id*/, AEGP_EffectRefH reference,
                                PF_ParamIndex index, AEGP_StreamRefH* stream) {
  constexpr const char* kCall = "AEGP_GetNewEffectStreamByIndex";
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr) return PF_Err_INVALID_CALLBACK;
  const PF_Err error = scope->EnterCall();
  if (error != PF_Err_NONE) return error;
  OpenEffect* effect = scope->effects.Find(reference);
  if (effect == nullptr) return scope->Broken(kCall, "the effect reference is not open");
  if (index < 1 || static_cast<size_t>(index) >= effect->instance.ParameterCount() ||
      !HasValue(effect->instance.Value(static_cast<size_t>(index)).param_type)) {
    return scope->Broken(kCall, "parameter " + std::to_string(index) + " has no stream");
  }
  *stream =
      AsReference<AEGP_StreamRefH>(&scope->streams.Open({*effect, static_cast<size_t>(index)}));
  return PF_Err_NONE;
}

// Letting go takes effect even where the host then answers with an error; so do the two below.
A_Err DisposeStream(AEGP_StreamRefH reference) {
  constexpr const char* kCall = "AEGP_DisposeStream";
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr) return PF_Err_INVALID_CALLBACK;
  const PF_Err error = scope->EnterCall();
  const OpenStream* stream = scope->streams.Find(reference);
  if (stream == nullptr) return scope->Broken(kCall, "the stream is not open");
  if (scope->batches.Any([stream](const OpenBatch& batch) { return &batch.stream == stream; })) {
    return scope->Broken(kCall, "a batch of keyframes is still open on the stream");
  }
  scope->streams.Close(stream);
  return error;
}

A_Err DisposeEffect(AEGP_EffectRefH reference) {
  constexpr const char* kCall = "AEGP_DisposeEffect";
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr) return PF_Err_INVALID_CALLBACK;
  const PF_Err error = scope->EnterCall();
  const OpenEffect* effect = scope->effects.Find(reference);
  if (effect == nullptr) return scope->Broken(kCall, "the effect reference is not open");
  if (scope->streams.Any([effect](const OpenStream& stream) { return &stream.effect == effect; })) {
    return scope->Broken(kCall, "a stream of the effect is still open");
  }
  scope->effects.Close(effect);
  return error;
}

A_Err StartAddKeyframes(AEGP_StreamRefH reference, AEGP_AddKeyframesInfoH* info) {
  constexpr const char* kCall = "AEGP_StartAddKeyframes";
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr) return PF_Err_INVALID_CALLBACK;
  const PF_Err error = scope->EnterCall();
  if (error != PF_Err_NONE) return error;
  const PF_Err refusal = scope->RefuseInRender(kCall);
  if (refusal != PF_Err_NONE) return refusal;
  OpenStream* stream = scope->streams.Find(reference);
  if (stream == nullptr) return scope->Broken(kCall, "the stream is not open");
  const PF_ParamDef& def = stream->effect.instance.Value(stream->parameter);
  if ((def.flags & PF_ParamFlag_CANNOT_TIME_VARY) != 0) {
    return scope->Broken(kCall, std::string(def.name) + " can't vary over time");
  }
  *info = AsReference<AEGP_AddKeyframesInfoH>(&scope->batches.Open({*stream, {}}));
  return PF_Err_NONE;
}

// "keyframe 12 of Output 2", counted from 1.
std::string KeyframeName(const OpenBatch& batch, size_t number) {
  const PF_ParamDef& def = batch.stream.effect.instance.Value(batch.stream.parameter);
  return "keyframe " + std::to_string(number) + " of " + def.name;
}

A_Err AddKeyframes(AEGP_AddKeyframesInfoH info, AEGP_LTimeMode mode, const A_Time* time,
                   A_long* key_index) {
  constexpr const char* kCall = "AEGP_AddKeyframes";
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr) return PF_Err_INVALID_CALLBACK;
  const PF_Err error = scope->EnterCall();
  if (error != PF_Err_NONE) return error;
  OpenBatch* batch = scope->batches.Find(info);
  if (batch == nullptr) return scope->Broken(kCall, "the batch is not open");
  const size_t number = batch->keyframes.size() + 1;
  if (time->scale == 0) {
    return scope->Broken(kCall, KeyframeName(*batch, number) + ": the time's scale is 0");
  }
  StagedKeyframe staged;
  const Layer& layer = batch->stream.effect.instance.EffectLayer();
  staged.keyframe.time = mode == AEGP_LTimeMode_CompTime ? CompToLayerTime(layer, *time) : *time;
  staged.order = scope->stagedCount++;
  if (number > 1 && !IsEarlier(batch->keyframes.back().keyframe.time, staged.keyframe.time)) {
    return scope->Broken(kCall, KeyframeName(*batch, number) + ": time not behind keyframe " +
                                    std::to_string(number - 1));
  }
  *key_index = static_cast<A_long>(batch->keyframes.size());
  batch->keyframes.push_back(staged);
  return PF_Err_NONE;
}

A_Err SetAddKeyframe(AEGP_AddKeyframesInfoH info, A_long key_index,
                     const AEGP_StreamValue2* value) {
  constexpr const char* kCall = "AEGP_SetAddKeyframe";
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr) return PF_Err_INVALID_CALLBACK;
  const PF_Err error = scope->EnterCall();
  if (error != PF_Err_NONE) return error;
  OpenBatch* batch = scope->batches.Find(info);
  if (batch == nullptr) return scope->Broken(kCall, "the batch is not open");
  if (key_index < 0 || static_cast<size_t>(key_index) >= batch->keyframes.size()) {
    return scope->Broken(kCall, "there is no keyframe " + std::to_string(key_index));
  }
  if (scope->streams.Find(value->streamH) != &batch->stream) {
    return scope->Broken(kCall, "the value is for another stream");
  }
  if (!std::isfinite(value->val.one_d)) {
    const auto number = static_cast<size_t>(key_index) + 1;
    return scope->Broken(kCall, KeyframeName(*batch, number) + ": the value is no finite number");
  }
  StagedKeyframe& staged = batch->keyframes[static_cast<size_t>(key_index)];
  staged.keyframe.value = value->val.one_d;
  staged.hasValue = true;
  return PF_Err_NONE;
}

// Puts the batch's keyframes on its slider and into the list of what was written.
void Commit(CommandScope& scope, const OpenBatch& batch) {
  EffectInstance& instance = batch.stream.effect.instance;
  std::vector<Keyframe> keyframes;
  for (const StagedKeyframe& staged : batch.keyframes) {
    if (!staged.hasValue && !scope.FaultStruck()) {
      scope.Broken("AEGP_EndAddKeyframes",
                   KeyframeName(batch, keyframes.size() + 1) + ": it was given no value");
    }
    keyframes.push_back(staged.keyframe);
    instance.written.push_back({batch.stream.parameter, staged.keyframe, staged.order});
  }
  instance.streams[batch.stream.parameter].Set(std::move(keyframes));
}

A_Err EndAddKeyframes(A_Boolean add, AEGP_AddKeyframesInfoH info) {
  constexpr const char* kCall = "AEGP_EndAddKeyframes";
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr) return PF_Err_INVALID_CALLBACK;
  const PF_Err error = scope->EnterCall();
  const OpenBatch* batch = scope->batches.Find(info);
  if (batch == nullptr) return scope->Broken(kCall, "the batch is not open");
  if (add != 0 && error == PF_Err_NONE) Commit(*scope, *batch);
  scope->batches.Close(batch);
  return error;
}

}  // namespace

const AEGP_PFInterfaceSuite1& PFInterfaceSuite() {
  static const AEGP_PFInterfaceSuite1 suite{GetEffectLayer, GetNewEffectForEffect, nullptr, nullptr,
                                            nullptr};
  return suite;
}

const AEGP_LayerSuite5& LayerSuite() {
  static const AEGP_LayerSuite5 suite = [] {
    AEGP_LayerSuite5 made{};
    made.AEGP_GetLayerParentComp = GetLayerParentComp;
    made.AEGP_ConvertCompToLayerTime = ConvertCompToLayerTime;
    return made;
  }();
  return suite;
}

const AEGP_CompSuite4& CompSuite() {
  static const AEGP_CompSuite4 suite = [] {
    AEGP_CompSuite4 made{};
    made.AEGP_GetCompWorkAreaStart = GetCompWorkAreaStart;
    made.AEGP_GetCompWorkAreaDuration = GetCompWorkAreaDuration;
    return made;
  }();
  return suite;
}

const AEGP_StreamSuite7& StreamSuite() {
  static const AEGP_StreamSuite7 suite = [] {
    AEGP_StreamSuite7 made{};
    made.AEGP_GetNewEffectStreamByIndex = GetNewEffectStreamByIndex;
    made.AEGP_DisposeStream = DisposeStream;
    return made;
  }();
  return suite;
}

const AEGP_KeyframeSuite4& KeyframeSuite() {
  static const AEGP_KeyframeSuite4 suite = [] {
    AEGP_KeyframeSuite4 made{};
    made.AEGP_StartAddKeyframes = StartAddKeyframes;
    made.AEGP_AddKeyframes = AddKeyframes;
    made.AEGP_SetAddKeyframe = SetAddKeyframe;
    made.AEGP_EndAddKeyframes = EndAddKeyframes;
    return made;
  }();
  return suite;
}

const AEGP_EffectSuite1& EffectSuite() {
  static const AEGP_EffectSuite1 suite = [] {
    AEGP_EffectSuite1 made{};
    made.AEGP_DisposeEffect = DisposeEffect;
    return made;
  }();
  return suite;
}
