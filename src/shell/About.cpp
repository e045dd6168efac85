// Formats the About text.
#include "shell/About.h"

#include "host/PluginHost_AE_Impl.h"
#include "shell/PluginIdentity.h"

PF_Err ShowAbout(PF_InData* in_data, PF_OutData* out_data) {
  const PluginHost_AE_Impl host(in_data, out_data, nullptr, nullptr);
  in_data->utils->ansi.sprintf(out_data->return_msg, "%s, v%d.%d.%d\r%s", kPluginName,
                               kMajorVersion, kMinorVersion, kBugfixVersion, kPluginDescription);
  return PF_Err_NONE;
}
