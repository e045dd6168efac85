// One effect on one layer: the values of its parameters, its record and its keyframes.
#pragma once

#include <map>
#include <vector>

#include "AE_Effect.h"
#include "workbench/host/Comp.h"
#include "workbench/host/KeyframeStream.h"
#include "workbench/host/ParameterList.h"

// A keyframe as a command has written it.
struct WrittenKeyframe {
  size_t parameter = 0;
  Keyframe keyframe;
  int64_t order = 0;  // the command's keyframes were added in this order
};

class EffectInstance {
 public:
  // Both outlive the instance. Parameters start at the values declared; points are turned from
  // percent of the layer into pixels.
  EffectInstance(const ParameterList& parameterList, Layer& effectLayer);
  EffectInstance(const EffectInstance&) = delete;
  EffectInstance& operator=(const EffectInstance&) = delete;

  Layer& EffectLayer() const { return *layer; }

  PF_ParamDef& Value(size_t index) { return values[index]; }
  const PF_ParamDef& Value(size_t index) const { return values[index]; }
  size_t ParameterCount() const { return values.size(); }

  PF_Handle sequenceData = nullptr;
  std::map<size_t, const Layer*> chosenLayers;  // by parameter; none chosen: no entry
  std::map<size_t, PF_ParamUIFlags> uiFlags;    // as the plug-in last set them
  std::map<size_t, KeyframeStream> streams;     // by parameter
  std::vector<WrittenKeyframe> written;         // by the last command, a parameter at a time

 private:
  Layer* layer;
  std::vector<PF_ParamDef> values;
};
