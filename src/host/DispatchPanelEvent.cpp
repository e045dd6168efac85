// Arms the panel for one event and disarms it again.
#include "host/DispatchPanelEvent.h"

#include "gradient/GradientView.h"
#include "host/GradientCallbackBodies.h"
#include "host/HandleLock.h"
#include "host/HeldAppSuite.h"
#include "host/PanelDelivery.h"
#include "host/PluginContext_AE.h"
#include "host/PluginHost_AE_Impl.h"
#include "host/ReturnMessage.h"
#include "host/WindowContext_AE.h"
#include "shell/GlobalRecord.h"
#include "shell/ParameterTable.h"
#include "shell/SequenceRecord.h"
#include "toolkit/ControlWatch.h"
#include "toolkit/CustomPanel.h"
#include "toolkit/PanelRegistry.h"

namespace {

constexpr ColorBGRA kPanelGray(0xFF585858);

// Seen by the host's UI thread alone.
PanelPointer panelPointer;
bool isDelivering = false;

// A host may send events while one of them has its colour picker open. The panel is taken then.
class DeliveryMark {
 public:
  DeliveryMark() : isOutermost(!isDelivering) { isDelivering = true; }
  ~DeliveryMark() {
    if (isOutermost) isDelivering = false;
  }
  DeliveryMark(const DeliveryMark&) = delete;
  DeliveryMark& operator=(const DeliveryMark&) = delete;

  bool IsOutermost() const { return isOutermost; }

 private:
  bool isOutermost;
};

// A grey with full alpha stays in `color` where the host has no colour to tell.
PF_Err GetPanelColor(PF_InData* in_data, PF_OutData* out_data, ColorBGRA* color) {
  *color = kPanelGray;
  const HeldAppSuite appSuite(in_data, out_data);
  if (!appSuite) return appSuite.Error();
  PF_App_Color told{};
  if (appSuite->PF_AppGetBgColor(&told) == PF_Err_NONE) {
    color->red = static_cast<uint8_t>(told.red >> 8);
    color->green = static_cast<uint8_t>(told.green >> 8);
    color->blue = static_cast<uint8_t>(told.blue >> 8);
    color->alpha = 0;
  }
  return PF_Err_NONE;
}

// The panel's links to the event, cut with this object. A panel may go while it has them.
class PanelLinks {
 public:
  explicit PanelLinks(const ControlWatch& linkedPanel) : panel(linkedPanel) {}
  ~PanelLinks() {
    if (CustomPanel* const left = Panel()) {
      left->ClearWindowContext();
      left->SetPluginContext(nullptr);
    }
  }
  PanelLinks(const PanelLinks&) = delete;
  PanelLinks& operator=(const PanelLinks&) = delete;

  CustomPanel* Panel() const { return static_cast<CustomPanel*>(panel.Get()); }

 private:
  ControlWatch panel;
};

// The panel asks the callbacks as soon as it gets a colour map, so that comes last.
void Arm(CustomPanel& panel, PluginContext_AE& pluginContext, WindowContext_AE& windowContext,
         ColorBGRA color, const GradientCallbacks& callbacks, GradientView& view) {
  const PF_UnionableRect& frame = pluginContext.Extra()->effect_win.current_frame;
  panel.SetPluginContext(&pluginContext);
  panel.SetWindowContext(&windowContext);
  panel.MoveTo(frame.left, frame.top);
  panel.SetBackground(color);
  panel.SetPanelCallbacks(&callbacks);
  panel.SetPanelData(&view);
}

PF_Err ReportLostRecord(PF_OutData* out_data, PF_Err error) {
  ShowReturnMessage(out_data, "Delvior could not reach its record, so the color map did nothing.");
  return error;
}

}  // namespace

PF_Err DispatchPanelEvent(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params,
                          PF_LayerDef* output, PF_EventExtra* extra) {
  const DeliveryMark mark;
  if (!mark.IsOutermost()) return PF_Err_NONE;
  ColorBGRA color{};
  const PF_Err result = GetPanelColor(in_data, out_data, &color);
  WindowContext_AE windowContext(extra->effect_win.current_frame, panelPointer);
  const LockedRecord<SequenceRecord> record(in_data, in_data->sequence_data);
  if (!record) return ReportLostRecord(out_data, record.Error());
  const LockedRecord<GlobalRecord> global(in_data, in_data->global_data);
  if (!global) return ReportLostRecord(out_data, global.Error());
  GradientView view(record->gradient);
  const ControlWatch panel(FindCustomPanel(kColorMapPanel));
  if (!panel) return result;
  PluginHost_AE_Impl host(in_data, out_data, params, output);
  PluginContext_AE pluginContext({in_data, out_data, params, output, extra});
  GradientCallbackContext callbackContext{&host, global.Get(), &view, kColorMapPanel};
  const GradientCallbacks callbacks = MakeGradientCallbacks(callbackContext);
  const PanelLinks links(panel);
  try {
    Arm(*links.Panel(), pluginContext, windowContext, color, callbacks, view);
    if (panel) DeliverPanelEvent({pluginContext, windowContext, panelPointer, *global}, panel);
  } catch (...) {
    // The event counts as finished; the tree stands as it was when it gave up.
  }
  return result;
}
