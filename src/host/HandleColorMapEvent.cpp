// Picks the events that are for the panel.
#include "host/HandleColorMapEvent.h"

#include "host/DispatchPanelEvent.h"
#include "host/MainWindow.h"

namespace {

bool IsForPanel(const PF_EventExtra& extra) {
  return extra.contextH != nullptr && *extra.contextH != nullptr &&
         (*extra.contextH)->w_type == PF_Window_EFFECT && extra.effect_win.area == PF_EA_CONTROL;
}

}  // namespace

PF_Err HandleColorMapEvent(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params,
                           PF_LayerDef* output, PF_EventExtra* extra) {
  FetchMainWindow(in_data);
  if (!IsForPanel(*extra)) return PF_Err_NONE;
  return DispatchPanelEvent(in_data, out_data, params, output, extra);
}
