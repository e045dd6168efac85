// Renders with a facade that stands for the length of the call.
#include "shell/RenderFrame.h"

#include "graph/RenderSpectrumFrame.h"
#include "host/PluginHost_AE_Impl.h"

PF_Err RenderFrame(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params,
                   PF_LayerDef* output) {
  const PluginHost_AE_Impl host(in_data, out_data, params, output);
  return RenderSpectrumFrame(host);
}
