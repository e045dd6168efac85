// One event's surface: suites, references and state, taken in order and let go in reverse.
#include "host/PluginGui_AE_Impl.h"

#include <cstddef>
#include <new>

#include "AE_EffectSuites.h"
#include "host/DRAWBOT_Exception.h"
#include "host/PluginGui_DrawUtils.h"
#include "host/PluginHost_AE_Impl.h"
#include "platform/Truncate.h"

namespace {

constexpr double kFixedOne = 65536.0;

PF_FixedPoint ToFixed(double x, double y) {
  return {Truncate<PF_Fixed>(x * kFixedOne), Truncate<PF_Fixed>(y * kFixedOne)};
}

}  // namespace

PluginGui_AE_Impl::PluginGui_AE_Impl(PluginHost_API* hostOfCall, PF_EventExtra* extraOfCall)
    : host(hostOfCall != nullptr ? hostOfCall->GetAEImpl() : nullptr), extra(extraOfCall) {}

PluginGui_AE_Impl::~PluginGui_AE_Impl() {
  context.currentPath.Release();
  context.currentPen.Release();
  context.defaultFont.Release();
  context.stateGuard.reset();
  if (suitesHeld) AEFX_ReleaseDrawbotSuites(host->InData(), host->OutData());
}

PluginGui_AE_Impl* PluginGui_AE_Impl::GetDrawContext() {
  return context.status == PF_Err_NONE ? this : nullptr;
}

Rect16 PluginGui_AE_Impl::GetPanelFrame() const {
  const PF_UnionableRect& frame = extra->effect_win.current_frame;
  return {ToCoordinate16(frame.top), ToCoordinate16(frame.left), ToCoordinate16(frame.bottom),
          ToCoordinate16(frame.right)};
}

void PluginGui_AE_Impl::RefreshUI() {
  host->OutData()->out_flags |= PF_OutFlag_REFRESH_UI;
}

PF_Point PluginGui_AE_Impl::GetEventPoint() const {
  return extra->u.do_click.screen_point;
}

void PluginGui_AE_Impl::RequestDrag() {
  extra->u.do_click.send_drag = 1;
  extra->evt_out_flags = PF_EO_HANDLED_EVENT;
}

PluginGui_DrawUtilsApi* PluginGui_AE_Impl::GetDrawUtils() {
  // Never destroyed, so that nothing depends on the order in which a process ends; and not on the
  // heap, where nobody would give it back when the library goes.
  alignas(PluginGui_DrawUtils) static std::byte room[sizeof(PluginGui_DrawUtils)];
  static auto* const drawUtils = new (room) PluginGui_DrawUtils;
  return drawUtils;
}

void PluginGui_AE_Impl::BeginDraw() {
  if (host == nullptr) return;
  context.status = AEFX_AcquireDrawbotSuites(host->InData(), host->OutData(), &context.suites);
  if (context.status != PF_Err_NONE) return;
  suitesHeld = true;
  context.status = FetchDrawingReference();
  if (context.drawingRef != nullptr) OpenSurface();
}

PF_Err PluginGui_AE_Impl::FetchDrawingReference() {
  const HeldSuite<PF_EffectCustomUISuite1> customUi(
      host->InData(), host->OutData(), kPFEffectCustomUISuite, kPFEffectCustomUISuiteVersion1, {});
  if (!customUi) return customUi.Error();
  const PF_Err error = customUi->PF_GetDrawingReference(extra->contextH, &context.drawingRef);
  if (error != PF_Err_NONE) context.drawingRef = nullptr;
  return error;
}

void PluginGui_AE_Impl::OpenSurface() {
  const DRAWBOT_DrawbotSuite1& draw = *context.suites.drawSuite;
  if (draw.GetSupplier(context.drawingRef, &context.supplier) != 0) context.supplier = nullptr;
  if (draw.GetSurface(context.drawingRef, &context.surface) != 0) context.surface = nullptr;
  if (context.surface == nullptr) return;
  const DRAWBOT_SurfaceSuite2& surface = *context.suites.surfaceSuite;
  surface.SetAntiAliasPolicy(context.surface, kDRAWBOT_AntiAliasPolicy_High);
  const SPErr error = surface.PushStateStack(context.surface);
  if (error != 0) throw DRAWBOT_Exception{error};
  context.stateGuard =
      std::make_unique<SurfaceStateGuard>(context.suites.surfaceSuite, context.surface);
}

void PluginGui_AE_Impl::EndDraw() {
  GetDrawUtils()->SetPen(this, nullptr, 0.0F);
  context.stateGuard.reset();
  extra->evt_out_flags = PF_EO_HANDLED_EVENT;
}

void PluginGui_AE_Impl::LayerToFrame(double x, double y, double* frameX, double* frameY) {
  const PF_EventCallbacks& convert = extra->cbs;
  const PF_InData& in_data = *host->InData();
  PF_FixedPoint point = ToFixed(x, y);
  convert.layer_to_comp(convert.refcon, extra->contextH, in_data.current_time,
                        static_cast<A_long>(in_data.time_scale), &point);
  convert.source_to_frame(convert.refcon, extra->contextH, &point);
  *frameX = point.x / kFixedOne;
  *frameY = point.y / kFixedOne;
}

void PluginGui_AE_Impl::FrameToLayer(double x, double y, double* layerX, double* layerY) {
  const PF_EventCallbacks& convert = extra->cbs;
  const PF_InData& in_data = *host->InData();
  PF_FixedPoint point = ToFixed(x, y);
  convert.frame_to_source(convert.refcon, extra->contextH, &point);
  convert.comp_to_layer(convert.refcon, extra->contextH, in_data.current_time,
                        static_cast<A_long>(in_data.time_scale), &point);
  *layerX = point.x / kFixedOne;
  *layerY = point.y / kFixedOne;
}

void PluginGui_AE_Impl::SetPenDefault(Color16 color) {
  GetDrawUtils()->SetPen(this, &color, 2.0F);
}

bool PluginGui_AE_Impl::IsHelperActive() {
  constexpr char kHelperSuite[] = "AE Plugin Helper Suite";
  constexpr int kHelperSuiteVersion1 = 1;
  const SPBasicSuite* basic = host->InData()->pica_basicP;
  const void* suite = nullptr;
  if (basic == nullptr || basic->AcquireSuite(kHelperSuite, kHelperSuiteVersion1, &suite) != 0) {
    return false;
  }
  basic->ReleaseSuite(kHelperSuite, kHelperSuiteVersion1);
  return true;
}

PF_Err PluginGui_AE_Impl::InvalidatePanel() {
  const HeldSuite<PFAppSuite6> appSuite(
      host->InData(), host->OutData(), kPFAppSuite, kPFAppSuiteVersion6,
      {"Failed to acquire PFAppSuite4.", "Failed to release PFAppSuite4."});
  return appSuite ? appSuite->PF_InvalidateRect(extra->contextH, nullptr) : appSuite.Error();
}

void PluginGui_AE_Impl::FlushSurface() {
  if (context.surface != nullptr) context.suites.surfaceSuite->Flush(context.surface);
}

PF_Err PluginGui_AE_Impl::GetAppColor(A_u_long index, A_long* red, A_long* green, A_long* blue) {
  return host != nullptr ? host->GetAppColor(index, red, green, blue) : 1;
}
