// The facade: stands for one call of the host, holds its records and the suites taken for the call.
#pragma once

#include "AE_EffectCBSuites.h"
#include "host/PluginHost_API.h"

// Lives on the stack of one command and is never kept. The records are the host's; the facade owns
// its two suite references and nothing else.
class PluginHost_AE_Impl final : public PluginHost_API {
 public:
  // A suite that the host doesn't have leaves its text in the return message, and the facade goes
  // on without it. params and output may be null in the commands that have none.
  PluginHost_AE_Impl(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params,
                     PF_LayerDef* output);
  ~PluginHost_AE_Impl() override;
  PluginHost_AE_Impl(const PluginHost_AE_Impl&) = delete;
  PluginHost_AE_Impl& operator=(const PluginHost_AE_Impl&) = delete;

  PluginHost_AE_Impl* GetAEImpl() override { return this; }
  PF_Err GetAppColor(A_u_long index, A_long* red, A_long* green, A_long* blue) override;

  PF_InData* InData() const { return inData; }
  PF_OutData* OutData() const { return outData; }
  PF_ParamDef** Params() const { return params; }
  PF_LayerDef* Output() const { return output; }

 private:
  PF_InData* inData;
  PF_OutData* outData;
  PF_ParamDef** params;
  PF_LayerDef* output;
  const PF_WorldSuite2* worldSuite = nullptr;
  const PF_ColorParamSuite1* colorParamSuite = nullptr;
};
