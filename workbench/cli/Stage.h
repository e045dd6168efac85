// The project that a command works in: a comp with the sound on a layer, and the effect on it.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "workbench/audio/AudioClip.h"
#include "workbench/cli/Options.h"
#include "workbench/host/Comp.h"
#include "workbench/host/HostSession.h"

class Stage {
 public:
  // Loads the plug-in, lays the sound into the comp, puts the effect on it with the sound as its
  // audio layer, and sets the parameters that the project file and the command line name.
  //
  // sound   null: a layer without sound
  // Throws JobFailure and UsageFailure.
  Stage(StageOptions stageOptions, const std::string& layerName,
        std::shared_ptr<const AudioClip> sound);

  HostSession& Session() { return session; }
  EffectInstance& Instance() { return *instance; }

  // Puts the effect on the layer once more, with the values of the command line. It is not part of
  // the project file.
  EffectInstance& AddInstance();

  const Comp& ProjectComp() const { return comp; }

  // Takes the plug-in down and then writes the files that every command may leave: the project and
  // the record. `publishFirst` gives the command's own file its name, when the others are whole.
  void Finish(const std::function<void()>& publishFirst = {});

 private:
  void ApplySettings(EffectInstance& target);

  StageOptions options;
  Comp comp;  // outlives the session
  HostSession session;
  EffectInstance* instance = nullptr;
};
