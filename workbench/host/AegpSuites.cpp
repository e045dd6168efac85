// The suites about the project: layers, comps, streams and keyframes.
#include <cmath>

#include "workbench/host/EffectHost.h"
#include "workbench/host/HostCall.h"
#include "workbench/host/SuiteRegistry.h"

namespace {

template <typename Reference, typename Object>
Reference AsReference(Object* object) {
  return static_cast<Reference>(static_cast<void*>(object));
}

// The command's layer, if `reference` is that layer.
Layer* FindLayer(const HostCall& call, AEGP_LayerH reference) {
  if (call->Instance() != nullptr) {
    Layer& layer = call->Instance()->EffectLayer();
    if (AsReference<AEGP_LayerH>(&layer) == reference) return &layer;
  }
  call.Broken("the layer is not one of this project's");
  return nullptr;
}

Comp* FindComp(const HostCall& call, AEGP_CompH reference) {
  if (call->Instance() != nullptr) {
    Comp* comp = call->Instance()->EffectLayer().comp;
    if (AsReference<AEGP_CompH>(comp) == reference) return comp;
  }
  call.Broken("the comp is not one of this project's");
  return nullptr;
}

A_Err GetEffectLayer(PF_ProgPtr effect_ref, AEGP_LayerH* layer) {
  const HostCall call("AEGP_GetEffectLayer", effect_ref);
  if (!call) return call.Error();
  if (call->GivesNull()) return PF_Err_NONE;
  if (call->Instance() == nullptr) return call.Broken("there is no instance");
  *layer = AsReference<AEGP_LayerH>(&call->Instance()->EffectLayer());
  return PF_Err_NONE;
}

A_Err GetNewEffectForEffect(AEGP_PluginID /*id*/, PF_ProgPtr effect_ref, AEGP_EffectRefH* effect) {
  const HostCall call("AEGP_GetNewEffectForEffect", effect_ref);
  if (!call) return call.Error();
  if (call->GivesNull()) return PF_Err_NONE;
  if (call->Instance() == nullptr) return call.Broken("there is no instance");
  *effect = AsReference<AEGP_EffectRefH>(&call->effects.Open({*call->Instance()}));
  return PF_Err_NONE;
}

A_Err GetLayerParentComp(AEGP_LayerH reference, AEGP_CompH* comp) {
  const HostCall call("AEGP_GetLayerParentComp");
  if (!call) return call.Error();
  if (call->GivesNull()) return PF_Err_NONE;
  const Layer* layer = FindLayer(call, reference);
  if (layer == nullptr) return PF_Err_BAD_CALLBACK_PARAM;
  *comp = AsReference<AEGP_CompH>(layer->comp);
  return PF_Err_NONE;
}

A_Err ConvertCompToLayerTime(AEGP_LayerH reference, const A_Time* comp_time, A_Time* layer_time) {
  const HostCall call("AEGP_ConvertCompToLayerTime");
  if (!call) return call.Error();
  if (call->GivesNull()) return PF_Err_NONE;
  const Layer* layer = FindLayer(call, reference);
  if (layer == nullptr) return PF_Err_BAD_CALLBACK_PARAM;
  if (comp_time->scale == 0) return call.Broken("the time's scale is 0");
  *layer_time = CompToLayerTime(*layer, *comp_time);
  return PF_Err_NONE;
}

// Both ends of the work area differ only in which field is read.
A_Err GetWorkAreaTime(const char* callName, AEGP_CompH reference, int32_t Comp::*ticks,
                      A_Time* time) {
  const HostCall call(callName);
  if (!call) return call.Error();
  if (call->GivesNull()) return PF_Err_NONE;
  const Comp* comp = FindComp(call, reference);
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
  const HostCall call("AEGP_GetNewEffectStreamByIndex");
  if (!call) return call.Error();
  if (call->GivesNull()) return PF_Err_NONE;
  OpenEffect* effect = call->effects.Find(reference);
  if (effect == nullptr) return call.Broken("the effect reference is not open");
  if (index < 1 || static_cast<size_t>(index) >= effect->instance.ParameterCount() ||
      !HasValue(effect->instance.Value(static_cast<size_t>(index)).param_type)) {
    return call.Broken("parameter " + std::to_string(index) + " has no stream");
  }
  *stream =
      AsReference<AEGP_StreamRefH>(&call->streams.Open({*effect, static_cast<size_t>(index)}));
  return PF_Err_NONE;
}

// Letting go takes effect even where the host then answers with an error; so do the two below.
A_Err DisposeStream(AEGP_StreamRefH reference) {
  const HostCall call("AEGP_DisposeStream");
  if (!call.IsWithinCommand()) return call.Error();
  const OpenStream* stream = call->streams.Find(reference);
  if (stream == nullptr) return call.Broken("the stream is not open");
  if (call->batches.Any([stream](const OpenBatch& batch) { return &batch.stream == stream; })) {
    return call.Broken("a batch of keyframes is still open on the stream");
  }
  call->streams.Close(stream);
  return call.Error();
}

A_Err DisposeEffect(AEGP_EffectRefH reference) {
  const HostCall call("AEGP_DisposeEffect");
  if (!call.IsWithinCommand()) return call.Error();
  const OpenEffect* effect = call->effects.Find(reference);
  if (effect == nullptr) return call.Broken("the effect reference is not open");
  if (call->streams.Any([effect](const OpenStream& stream) { return &stream.effect == effect; })) {
    return call.Broken("a stream of the effect is still open");
  }
  call->effects.Close(effect);
  return call.Error();
}

A_Err StartAddKeyframes(AEGP_StreamRefH reference, AEGP_AddKeyframesInfoH* info) {
  const HostCall call("AEGP_StartAddKeyframes");
  if (!call) return call.Error();
  if (call->GivesNull()) return PF_Err_NONE;
  const PF_Err refusal = call.RefuseInRender();
  if (refusal != PF_Err_NONE) return refusal;
  OpenStream* stream = call->streams.Find(reference);
  if (stream == nullptr) return call.Broken("the stream is not open");
  const PF_ParamDef& def = stream->effect.instance.Value(stream->parameter);
  if ((def.flags & PF_ParamFlag_CANNOT_TIME_VARY) != 0) {
    return call.Broken(std::string(def.name) + " can't vary over time");
  }
  *info = AsReference<AEGP_AddKeyframesInfoH>(&call->batches.Open({*stream, {}}));
  return PF_Err_NONE;
}

// "keyframe 12 of Output 2", counted from 1.
std::string KeyframeName(const OpenBatch& batch, size_t number) {
  const PF_ParamDef& def = batch.stream.effect.instance.Value(batch.stream.parameter);
  return "keyframe " + std::to_string(number) + " of " + def.name;
}

A_Err AddKeyframes(AEGP_AddKeyframesInfoH info, AEGP_LTimeMode mode, const A_Time* time,
                   A_long* key_index) {
  const HostCall call("AEGP_AddKeyframes");
  if (!call) return call.Error();
  OpenBatch* batch = call->batches.Find(info);
  if (batch == nullptr) return call.Broken("the batch is not open");
  const size_t number = batch->keyframes.size() + 1;
  if (time->scale == 0) {
    return call.Broken(KeyframeName(*batch, number) + ": the time's scale is 0");
  }
  StagedKeyframe staged;
  const Layer& layer = batch->stream.effect.instance.EffectLayer();
  staged.keyframe.time = mode == AEGP_LTimeMode_CompTime ? CompToLayerTime(layer, *time) : *time;
  staged.order = call->stagedCount++;
  if (number > 1 && !IsEarlier(batch->keyframes.back().keyframe.time, staged.keyframe.time)) {
    return call.Broken(KeyframeName(*batch, number) + ": time not behind keyframe " +
                       std::to_string(number - 1));
  }
  *key_index = static_cast<A_long>(batch->keyframes.size());
  batch->keyframes.push_back(staged);
  return PF_Err_NONE;
}

A_Err SetAddKeyframe(AEGP_AddKeyframesInfoH info, A_long key_index,
                     const AEGP_StreamValue2* value) {
  const HostCall call("AEGP_SetAddKeyframe");
  if (!call) return call.Error();
  OpenBatch* batch = call->batches.Find(info);
  if (batch == nullptr) return call.Broken("the batch is not open");
  if (key_index < 0 || static_cast<size_t>(key_index) >= batch->keyframes.size()) {
    return call.Broken("there is no keyframe " + std::to_string(key_index));
  }
  if (call->streams.Find(value->streamH) != &batch->stream) {
    return call.Broken("the value is for another stream");
  }
  if (!std::isfinite(value->val.one_d)) {
    const auto number = static_cast<size_t>(key_index) + 1;
    return call.Broken(KeyframeName(*batch, number) + ": the value is no finite number");
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
  const HostCall call("AEGP_EndAddKeyframes");
  if (!call.IsWithinCommand()) return call.Error();
  const OpenBatch* batch = call->batches.Find(info);
  if (batch == nullptr) return call.Broken("the batch is not open");
  if (add != 0 && call) Commit(call.Scope(), *batch);
  call->batches.Close(batch);
  return call.Error();
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
