// The suites about the host's window: parameters' looks, colours, the Info panel.
#include "workbench/drawbot/Drawing.h"
#include "workbench/host/EffectHost.h"
#include "workbench/host/HostCall.h"
#include "workbench/host/Pane.h"
#include "workbench/host/SuiteRegistry.h"

namespace {

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
  *color = call->Host().Profile().interfaceColor;
  return PF_Err_NONE;
}

PF_Err AppGetColor(PF_App_ColorType type, PF_App_Color* color) {
  const HostCall call("PF_AppGetColor");
  if (!call) return call.Error();
  if (type < 0 || type > kLastColorType) {
    return call.Broken("there is no colour " + std::to_string(type));
  }
  *color = call->Host().Profile().interfaceColor;
  return PF_Err_NONE;
}

// Out of an event there is no pane, and the cursor is nobody's.
PF_Err SetCursor(PF_CursorType cursor) {
  const HostCall call("PF_SetCursor");
  if (!call) return call.Error();
  if (call->pane != nullptr) call->pane->cursor = cursor;
  return PF_Err_NONE;
}

PF_Err GetMouse(PF_Point* point) {
  const HostCall call("PF_GetMouse");
  if (!call) return call.Error();
  *point = call->pane != nullptr ? call->pane->mouse : PF_Point{};
  return PF_Err_NONE;
}

// A user who has no answer ready gives up.
PF_Err AppColorPickerDialog(const A_char* /*title0*/, const PF_PixelFloat* sample_color,
                            PF_Boolean /*use_ws_to_monitor_xform*/, PF_PixelFloat* new_color) {
  const HostCall call("PF_AppColorPickerDialog");
  if (!call) return call.Error();
  if (sample_color == nullptr || new_color == nullptr) return call.Broken("a colour is null");
  if (call->pane == nullptr || call->pane->colorAnswers.empty()) return PF_Interrupt_CANCEL;
  const std::optional<PF_PixelFloat> answer = call->pane->colorAnswers.front();
  call->pane->colorAnswers.pop_front();
  if (!answer) return PF_Interrupt_CANCEL;
  *new_color = *answer;
  return PF_Err_NONE;
}

// Whether a context is that of the event at hand. Anything else breaks a rule.
bool IsContextOfEvent(const HostCall& call, PF_ContextH context) {
  if (call->pane != nullptr && context == call->pane->Context()) return true;
  call.Broken("the context is not the one of this event");
  return false;
}

PF_Err InvalidateRect(PF_ContextH context, const PF_Rect* rect) {
  const HostCall call("PF_InvalidateRect");
  if (!call) return call.Error();
  if (!IsContextOfEvent(call, context)) return PF_Err_BAD_CALLBACK_PARAM;
  call->pane->Invalidate(rect);
  return PF_Err_NONE;
}

PF_Err GetDrawingReference(PF_ContextH context, DRAWBOT_DrawRef* reference) {
  const HostCall call("PF_GetDrawingReference");
  if (!call) return call.Error();
  if (!IsContextOfEvent(call, context)) return PF_Err_BAD_CALLBACK_PARAM;
  if (call->drawing == nullptr) return call.Broken("drawing is legal during a draw event only");
  *reference = call->GivesNull() ? nullptr : call->drawing->DrawRef();
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
    made.PF_SetCursor = SetCursor;
    made.PF_AppColorPickerDialog = AppColorPickerDialog;
    made.PF_GetMouse = GetMouse;
    made.PF_InvalidateRect = InvalidateRect;
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

const PF_EffectCustomUISuite1& CustomUISuite() {
  static const PF_EffectCustomUISuite1 suite{GetDrawingReference};
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
