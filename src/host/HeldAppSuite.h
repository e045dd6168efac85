// The suite of the host's own window, as the colour map's panel asks for it.
#pragma once

#include "AE_EffectSuites.h"
#include "host/SuiteHelper.h"

class HeldAppSuite : public HeldSuite<PFAppSuite6> {
 public:
  HeldAppSuite(const PF_InData* inData, PF_OutData* outData)
      : HeldSuite(inData, outData, kPFAppSuite, kPFAppSuiteVersion6,
                  {"Failed to acquire PFAppSuite.", "Failed to release PFAppSuite."}) {}
};
