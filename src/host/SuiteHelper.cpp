// Suites through the host's basic suite.
#include "host/SuiteHelper.h"

#include <array>

#include "SPBasic.h"
#include "host/ReturnMessage.h"

namespace {

// What the host's interface answers where it gets no record to fill.
constexpr PF_Err kNoSuiteRecord = 514;

struct DrawbotSuiteName {
  const char* name;
  A_long version;
};

constexpr std::array<DrawbotSuiteName, 4> kDrawbotSuites = {{
    {kDRAWBOT_DrawSuite, kDRAWBOT_DrawSuite_Version1},
    {kDRAWBOT_SupplierSuite, kDRAWBOT_SupplierSuite_Version1},
    {kDRAWBOT_SurfaceSuite, kDRAWBOT_SurfaceSuite_Version2},
    {kDRAWBOT_PathSuite, kDRAWBOT_PathSuite_Version1},
}};

PF_Err ReportFailure(const PF_InData* in_data, PF_OutData* out_data, const char* text) {
  out_data->out_flags |= PF_OutFlag_DISPLAY_ERROR_MESSAGE;
  in_data->utils->ansi.sprintf(out_data->return_msg, "%s", text);
  return PF_Err_BAD_CALLBACK_PARAM;
}

}  // namespace

PF_Err AcquireHostSuite(const PF_InData* in_data, PF_OutData* out_data, const char* name,
                        A_long version, const char* failureText, const void** suite) {
  *suite = nullptr;
  const SPBasicSuite* basic = in_data->pica_basicP;
  // A host may fill the pointer of a suite that it doesn't have with a stub, so its answer counts.
  const bool refused = basic == nullptr || basic->AcquireSuite(name, version, suite) != 0;
  if (!refused && *suite != nullptr) return PF_Err_NONE;
  *suite = nullptr;
  return ReportFailure(in_data, out_data,
                       failureText != nullptr ? failureText : "Not able to acquire AEFX Suite.");
}

PF_Err ReleaseHostSuite(const PF_InData* in_data, PF_OutData* out_data, const char* name,
                        A_long version, const char* failureText) {
  const char* text = failureText != nullptr ? failureText : "Not able to release AEFX Suite.";
  const SPBasicSuite* basic = in_data->pica_basicP;
  if (basic == nullptr) return ReportFailure(in_data, out_data, text);
  const SPErr hostError = basic->ReleaseSuite(name, version);
  if (hostError != 0) ReportFailure(in_data, out_data, text);
  return hostError;
}

PF_Err AEFX_AcquireDrawbotSuites(const PF_InData* in_data, PF_OutData* out_data,
                                 AEFX_DrawbotSuites* suites) {
  if (suites == nullptr) {
    ReportFailure(in_data, out_data, "NULL suite pointer passed to AEFX_AcquireDrawbotSuites");
    return kNoSuiteRecord;
  }
  *suites = AEFX_DrawbotSuites{};
  std::array<const void*, kDrawbotSuites.size()> acquired{};
  for (size_t i = 0; i < kDrawbotSuites.size(); ++i) {
    const auto& [name, version] = kDrawbotSuites[i];
    const PF_Err error = AcquireHostSuite(in_data, out_data, name, version, nullptr, &acquired[i]);
    if (error == PF_Err_NONE) continue;
    while (i-- > 0) {
      ReleaseHostSuite(in_data, out_data, kDrawbotSuites[i].name, kDrawbotSuites[i].version,
                       nullptr);
    }
    return error;
  }
  suites->drawSuite = static_cast<const DRAWBOT_DrawbotSuite1*>(acquired[0]);
  suites->supplierSuite = static_cast<const DRAWBOT_SupplierSuite1*>(acquired[1]);
  suites->surfaceSuite = static_cast<const DRAWBOT_SurfaceSuite2*>(acquired[2]);
  suites->pathSuite = static_cast<const DRAWBOT_PathSuite1*>(acquired[3]);
  return PF_Err_NONE;
}

PF_Err AEFX_ReleaseDrawbotSuites(const PF_InData* in_data, PF_OutData* out_data) {
  PF_Err firstError = PF_Err_NONE;
  for (const auto& [name, version] : kDrawbotSuites) {
    const PF_Err error = ReleaseHostSuite(in_data, out_data, name, version, nullptr);
    if (firstError == PF_Err_NONE) firstError = error;
  }
  return firstError;
}
