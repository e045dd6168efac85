// The output sliders, open for writing keyframes.
#pragma once

#include <array>
#include <cstdint>

#include "AE_Effect.h"
#include "host/SuiteHandler.h"
#include "shell/ParameterTable.h"

// Which of the three ranges take part in a run.
using ActiveRanges = std::array<bool, kRangeCount>;

// Opens one keyframe stream for each active range, and closes them when it goes. Keyframes reach
// the sliders at the close; those that stand there already stay, unless the host replaces one at
// the same time.
class KeyframeStreams {
 public:
  // Throws the integer PF_Err_BAD_CALLBACK_PARAM where a suite is missing; nothing is open then.
  // A failure of the host's leaves its code in Error(), and what could be opened is open.
  KeyframeStreams(AEGP_SuiteHandler& suites, PF_ProgPtr effectRef, const ActiveRanges& active);
  ~KeyframeStreams();
  KeyframeStreams(const KeyframeStreams&) = delete;
  KeyframeStreams& operator=(const KeyframeStreams&) = delete;

  // 0 if every active range is open.
  PF_Err Error() const { return error; }

  // Adds a keyframe for an active range.
  //
  // tick, ticksPerSecond   layer time
  // Returns 0 or the host's error, and then the keyframe is missing or has no value of ours.
  PF_Err Add(int32_t range, int32_t tick, uint32_t ticksPerSecond, double value);

  // Hands the keyframes to the sliders and closes all that is open. Returns the host's first error:
  // a slider may lack its keyframes then. What goes without it closes by itself.
  PF_Err Close();

 private:
  struct Output {
    AEGP_StreamRefH stream = nullptr;
    AEGP_AddKeyframesInfoH addHandle = nullptr;
  };

  PF_Err Open(PF_ProgPtr effectRef, const ActiveRanges& active);

  const AEGP_PFInterfaceSuite1& interfaceSuite;
  const AEGP_StreamSuite7& streamSuite;
  const AEGP_KeyframeSuite4& keyframeSuite;
  const AEGP_EffectSuite1& effectSuite;
  AEGP_EffectRefH effect = nullptr;
  std::array<Output, kRangeCount> outputs{};
  PF_Err error = PF_Err_NONE;
};
