// Acquires and releases by name, counted for each command.
#include "workbench/host/SuiteRegistry.h"

#include <string_view>

#include "workbench/host/EffectHost.h"

namespace {

constexpr SPErr kSuiteNotFound = 0x53214664;  // 'S!Fd'

struct SuiteEntry {
  const char* name;
  int version;
  const void* table;
};

SPErr AcquireSuite(const char* name, int version, const void** suite) {
  CommandScope* scope = CommandScope::Current();
  *suite = nullptr;
  if (scope == nullptr) return kSuiteNotFound;
  const PF_Err error = scope->EnterCall();
  if (error != PF_Err_NONE) return error;
  if (scope->Host().Profile().missingSuites.contains(name)) return kSuiteNotFound;
  *suite = FindSuite(name, version);
  if (*suite == nullptr) return kSuiteNotFound;
  ++scope->suites[{name, version}];
  return 0;
}

// Letting go takes effect even where the host then answers with an error.
SPErr ReleaseSuite(const char* name, int version) {
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr) return kSuiteNotFound;
  const PF_Err error = scope->EnterCall();
  int& count = scope->suites[{name, version}];
  if (count <= 0) {
    return scope->Broken("ReleaseSuite", "\"" + std::string(name) + "\" is not acquired");
  }
  --count;
  return error;
}

SPErr Undefined() {
  return kSuiteNotFound;
}

}  // namespace

const void* FindSuite(const char* name, int version) {
  static const SuiteEntry kSuites[] = {
      {kPFParamUtilsSuite, kPFParamUtilsSuiteVersion2, &ParamUtilsSuite()},
      {kPFAppSuite, kPFAppSuiteVersion6, &AppSuite()},
      {kPFAdvAppSuite, kPFAdvAppSuiteVersion1, &AdvAppSuite()},
      {kPFEffectCustomUISuite, kPFEffectCustomUISuiteVersion1, &CustomUISuite()},
      {kDRAWBOT_DrawSuite, kDRAWBOT_DrawSuite_Version1, &DrawSuite()},
      {kDRAWBOT_SupplierSuite, kDRAWBOT_SupplierSuite_Version1, &SupplierSuite()},
      {kDRAWBOT_SurfaceSuite, kDRAWBOT_SurfaceSuite_Version2, &SurfaceSuite()},
      {kDRAWBOT_PathSuite, kDRAWBOT_PathSuite_Version1, &PathSuite()},
      {kPFWorldSuite, kPFWorldSuiteVersion2, &WorldSuite()},
      {kPFColorParamSuite, kPFColorParamSuiteVersion1, &ColorParamSuite()},
      {kAEGPPFInterfaceSuite, kAEGPPFInterfaceSuiteVersion1, &PFInterfaceSuite()},
      {kAEGPLayerSuite, kAEGPLayerSuiteVersion5, &LayerSuite()},
      {kAEGPCompSuite, kAEGPCompSuiteVersion4, &CompSuite()},
      {kAEGPStreamSuite, kAEGPStreamSuiteVersion7, &StreamSuite()},
      {kAEGPKeyframeSuite, kAEGPKeyframeSuiteVersion4, &KeyframeSuite()},
      {kAEGPEffectSuite, kAEGPEffectSuiteVersion1, &EffectSuite()},
  };
  for (const SuiteEntry& entry : kSuites) {
    if (std::string_view(name) == entry.name && version == entry.version) return entry.table;
  }
  return nullptr;
}

SPBasicSuite* BasicSuite() {
  static SPBasicSuite suite = [] {
    SPBasicSuite made{};
    made.AcquireSuite = AcquireSuite;
    made.ReleaseSuite = ReleaseSuite;
    made.Undefined = Undefined;
    return made;
  }();
  return &suite;
}
