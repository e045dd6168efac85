// The suites about the host's window: parameters' looks, colours, the Info panel.
#include "workbench/host/EffectHost.h"
#include "workbench/host/HostCall.h"
#include "workbench/host/SuiteRegistry.h"

namespace {

// A dark grey interface, as hosts of this kind have.
constexpr PF_App_Color kInterfaceColor{0x2D2D, 0x2D2D, 0x2D2D};
constexpr PF_App_ColorType kLastColorType = 23;

PF_Err UpdateParamUi(PF_ProgPtr effect_ref, PF_ParamIndex index, const PF_ParamDef* def) {
  const HostCall call("PF_UpdateParamUI", effect_ref);
  if (!call) return call.Error();
  const PF_Err refusal = call.RefuseInRender();
  if (refusal != PF_Err_NONE) return refusal;
  EffectInstance* instance = call->Instance();
  if (instance == nullptr) return call.Broken("there is no instance in this command");
  if (index < 1 || static_cast<size_t>(index) >= instance->ParameterCount()) {
    return call.Broken("there is no parameter " + std::to_string(index));
  }
  instance->uiFlags[static_cast<size_t>(index)] = def->ui_flags;
  return PF_Err_NONE;
}

PF_Err AppGetBgColor(PF_App_Color* color) {
  const HostCall call("PF_AppGetBgColor");
  if (!call) return call.Error();
  *color = kInterfaceColor;
  return PF_Err_NONE;
}

PF_Err AppGetColor(PF_App_ColorType type, PF_App_Color* color) {
  const HostCall call("PF_AppGetColor");
  if (!call) return call.Error();
  if (type < 0 || type > kLastColorType) {
    return call.Broken("there is no colour " + std::to_string(type));
  }
  *color = kInterfaceColor;
  return PF_Err_NONE;
}

PF_Err InfoDrawText(const A_char* line1, const A_char* /*line2*/) {
  const HostCall call("PF_InfoDrawText");
  if (!call) return call.Error();
  if (line1 != nullptr && call->Host().onInfoText) call->Host().onInfoText(line1);
  return PF_Err_NONE;
}

}  // namespace

const PF_ParamUtilsSuite2& ParamUtilsSuite() {
  static const PF_ParamUtilsSuite2 suite{UpdateParamUi, {}};
  return suite;
}

const PFAppSuite6& AppSuite() {
  static const PFAppSuite6 suite = [] {
    PFAppSuite6 made{};
    made.PF_AppGetBgColor = AppGetBgColor;
    made.PF_AppGetColor = AppGetColor;
    return made;
  }();
  return suite;
}

const PF_AdvAppSuite1& AdvAppSuite() {
  static const PF_AdvAppSuite1 suite = [] {
    PF_AdvAppSuite1 made{};
    made.PF_InfoDrawText = InfoDrawText;
    return made;
  }();
  return suite;
}

// These two are held by the effect but never called.
const PF_WorldSuite2& WorldSuite() {
  static const PF_WorldSuite2 suite{};
  return suite;
}

const PF_ColorParamSuite1& ColorParamSuite() {
  static const PF_ColorParamSuite1 suite{};
  return suite;
}
