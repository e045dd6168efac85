// The suites of a keyframe run, each acquired on its first use and held until the handler goes.
#pragma once

#include "AE_AdvEffectSuites.h"
#include "AE_GeneralPlug.h"
#include "SPBasic.h"

// Every accessor throws the integer PF_Err_BAD_CALLBACK_PARAM where the host doesn't have its
// suite.
class AEGP_SuiteHandler {
 public:
  // basic   borrowed for the handler's life; may be null, and then no suite is to be had
  explicit AEGP_SuiteHandler(const SPBasicSuite* basicSuite) : basic(basicSuite) {}
  ~AEGP_SuiteHandler();
  AEGP_SuiteHandler(const AEGP_SuiteHandler&) = delete;
  AEGP_SuiteHandler& operator=(const AEGP_SuiteHandler&) = delete;

  const AEGP_PFInterfaceSuite1& PFInterfaceSuite() { return Held(pfInterface); }
  const AEGP_LayerSuite5& LayerSuite() { return Held(layer); }
  const AEGP_CompSuite4& CompSuite() { return Held(comp); }
  const AEGP_StreamSuite7& StreamSuite() { return Held(stream); }
  const AEGP_KeyframeSuite4& KeyframeSuite() { return Held(keyframe); }
  const AEGP_EffectSuite1& EffectSuite() { return Held(effect); }
  const PF_AdvAppSuite1& AdvAppSuite() { return Held(advApp); }

 private:
  template <typename Suite>
  struct Slot {
    const char* name = nullptr;
    int version = 0;
    const Suite* suite = nullptr;
  };

  template <typename Suite>
  const Suite& Held(Slot<Suite>& slot) {
    if (slot.suite == nullptr) {
      slot.suite = static_cast<const Suite*>(Acquire(slot.name, slot.version));
    }
    return *slot.suite;
  }

  template <typename Suite>
  void Release(const Slot<Suite>& slot) const {
    if (slot.suite != nullptr) basic->ReleaseSuite(slot.name, slot.version);
  }

  const void* Acquire(const char* name, int version) const;

  const SPBasicSuite* basic;
  Slot<AEGP_PFInterfaceSuite1> pfInterface{kAEGPPFInterfaceSuite, kAEGPPFInterfaceSuiteVersion1};
  Slot<AEGP_LayerSuite5> layer{kAEGPLayerSuite, kAEGPLayerSuiteVersion5};
  Slot<AEGP_CompSuite4> comp{kAEGPCompSuite, kAEGPCompSuiteVersion4};
  Slot<AEGP_StreamSuite7> stream{kAEGPStreamSuite, kAEGPStreamSuiteVersion7};
  Slot<AEGP_KeyframeSuite4> keyframe{kAEGPKeyframeSuite, kAEGPKeyframeSuiteVersion4};
  Slot<AEGP_EffectSuite1> effect{kAEGPEffectSuite, kAEGPEffectSuiteVersion1};
  Slot<PF_AdvAppSuite1> advApp{kPFAdvAppSuite, kPFAdvAppSuiteVersion1};
};
