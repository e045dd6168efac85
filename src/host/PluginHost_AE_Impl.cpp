// The facade's suites, and the host's colours.
#include "host/PluginHost_AE_Impl.h"

#include <array>

#include "AE_EffectSuites.h"
#include "host/HostApplication.h"
#include "host/SuiteHelper.h"

namespace {

// Effect interface 12.12; earlier hosts have neither suite.
constexpr int kFirstVersionWithSuites = 1212;

// The host's number of each colour, by our index.
constexpr std::array<PF_App_ColorType, 6> kAppColorTypes = {0, 6, 5, 2, 23, 16};

int InterfaceVersion(const PF_InData* in_data) {
  return in_data->version.major * 100 + in_data->version.minor;
}

}  // namespace

PluginHost_AE_Impl::PluginHost_AE_Impl(PF_InData* in_data, PF_OutData* out_data,
                                       PF_ParamDef** paramsOfCall, PF_LayerDef* outputOfCall)
    : inData(in_data), outData(out_data), params(paramsOfCall), output(outputOfCall) {
  if (InterfaceVersion(inData) < kFirstVersionWithSuites) return;
  const void* suite = nullptr;
  AcquireHostSuite(inData, outData, kPFWorldSuite, kPFWorldSuiteVersion2,
                   "Couldn't load kPFWorldSuite.", &suite);
  worldSuite = static_cast<const PF_WorldSuite2*>(suite);
  if (IsPremiere(inData)) return;
  AcquireHostSuite(inData, outData, kPFColorParamSuite, kPFColorParamSuiteVersion1,
                   "Couldn't load kPFColorParamSuite.", &suite);
  colorParamSuite = static_cast<const PF_ColorParamSuite1*>(suite);
}

PluginHost_AE_Impl::~PluginHost_AE_Impl() {
  if (worldSuite != nullptr) {
    ReleaseHostSuite(inData, outData, kPFWorldSuite, kPFWorldSuiteVersion2,
                     "Couldn't release kPFWorldSuite.");
  }
  if (colorParamSuite != nullptr) {
    ReleaseHostSuite(inData, outData, kPFColorParamSuite, kPFColorParamSuiteVersion1,
                     "Couldn't release kPFColorParamSuite.");
  }
}

PF_Err PluginHost_AE_Impl::GetAppColor(A_u_long index, A_long* red, A_long* green, A_long* blue) {
  if (index >= kAppColorTypes.size()) return 1;
  const HeldSuite<PFAppSuite6> appSuite(
      inData, outData, kPFAppSuite, kPFAppSuiteVersion6,
      {"Failed to acquire PFAppSuite4.", "Failed to release PFAppSuite4."});
  if (!appSuite) return appSuite.Error();
  PF_App_Color color{};
  const PF_Err error = appSuite->PF_AppGetColor(kAppColorTypes[index], &color);
  if (error != PF_Err_NONE) return error;
  *red = color.red >> 8;
  *green = color.green >> 8;
  *blue = color.blue >> 8;
  return PF_Err_NONE;
}
