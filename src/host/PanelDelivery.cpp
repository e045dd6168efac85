// Deliveries by the type of event.
#include "host/PanelDelivery.h"

#include "host/HeldAppSuite.h"
#include "host/MainWindow.h"
#include "host/PluginContext_AE.h"
#include "host/WindowContext_AE.h"
#include "platform/RawMouse.h"
#include "shell/ParameterTable.h"
#include "toolkit/CustomPanel.h"
#include "toolkit/RectAlgebra.h"

namespace {

CustomPanel* PanelOf(const ControlWatch& panel) {
  return static_cast<CustomPanel*>(panel.Get());
}

Rect ToRect(const PF_UnionableRect& rect) {
  return {rect.left, rect.top, rect.right, rect.bottom};
}

PF_Rect ToHostRect(const Rect& rect) {
  return {rect.left, rect.top, rect.right, rect.bottom};
}

void TakePointer(const PanelEvent& event, const PF_Point& point, PF_Modifiers modifiers) {
  const auto has = [modifiers](PF_Modifiers key) { return (modifiers & key) != 0; };
  const bool command = has(PF_Mod_CMD_CTRL_KEY);
  event.pointer.point = {point.h, point.v};
  event.pointer.modifiers = {has(PF_Mod_SHIFT_KEY), has(PF_Mod_OPT_ALT_KEY), command, command,
                             false};
}

PointerPosition PositionOf(const PF_Point& point) {
  return {point.h, point.v};
}

// What the tree has painted since the event began, and what waits to be painted, comes to the
// screen with a draw event that the host is asked for.
void RequestRepaint(const PanelEvent& event, const ControlWatch& panel) {
  Rect area = event.window.GetInvalidRect();
  if (CustomPanel* const left = PanelOf(panel)) {
    const Rect dirty = left->CollectDirtyRect();
    if (!IsEmpty(dirty)) area = IsEmpty(area) ? dirty : UnionOf(area, dirty);
  }
  if (IsEmpty(area)) return;
  PF_EventExtra& extra = *event.plugin.Extra();
  const HeldAppSuite appSuite(event.plugin.InData(), event.plugin.OutData());
  const PF_Rect hostArea = ToHostRect(area);
  if (appSuite && extra.contextH != nullptr) {
    appSuite->PF_InvalidateRect(extra.contextH, &hostArea);
  }
  extra.evt_out_flags |= PF_EO_UPDATE_NOW;
}

void DeliverClick(const PanelEvent& event, const ControlWatch& panel) {
  PF_EventExtra& extra = *event.plugin.Extra();
  PF_DoClickEventInfo& click = extra.u.do_click;
  TakePointer(event, click.screen_point, click.modifiers);
  click.send_drag = 1;
  StartRawMouse(MainWindow(), PositionOf(click.screen_point));
  PanelOf(panel)->MouseDown(event.pointer.point, event.pointer.modifiers, click.num_clicks == 2,
                            kLeftButton);
  extra.evt_out_flags |= PF_EO_HANDLED_EVENT | PF_EO_ALWAYS_UPDATE;
  event.plugin.OutData()->out_flags |= PF_OutFlag_FORCE_RERENDER;
  RequestRepaint(event, panel);
}

// The last drag of a press is its release.
void DeliverDrag(const PanelEvent& event, const ControlWatch& panel) {
  PF_EventExtra& extra = *event.plugin.Extra();
  PF_DoClickEventInfo& drag = extra.u.do_click;
  TakePointer(event, drag.screen_point, drag.modifiers);
  const bool released = drag.last_time != 0;
  drag.send_drag = released ? 0 : 1;
  event.plugin.OutData()->out_flags |= PF_OutFlag_FORCE_RERENDER;
  float dx = 0.0F;
  float dy = 0.0F;
  ReadMouseDelta(PositionOf(drag.screen_point), &dx, &dy);
  if (released) {
    PanelOf(panel)->MouseUp(event.pointer.point, kLeftButton);
    StopRawMouse();
  } else {
    PanelOf(panel)->MouseDrag(event.pointer.point, dx, dy, event.pointer.modifiers, kLeftButton);
  }
  extra.evt_out_flags |= PF_EO_HANDLED_EVENT;
  RequestRepaint(event, panel);
}

void DeliverDraw(const PanelEvent& event, const ControlWatch& panel) {
  PF_EventExtra& extra = *event.plugin.Extra();
  if ((extra.evt_in_flags & PF_EI_DONT_DRAW) != 0) return;
  PanelOf(panel)->SetPanelActive(event.global.undoOwner == kColorMapPanel);
  const PF_UnionableRect& frame = extra.effect_win.current_frame;
  const Rect area =
      MovedBy(ToRect(extra.u.draw.update_rect), -int64_t{frame.left}, -int64_t{frame.top});
  if (CustomPanel* const left = PanelOf(panel)) left->Redraw(area);
  extra.evt_out_flags |= PF_EO_HANDLED_EVENT;
}

// The host's cursor for one of the tree's.
PF_CursorType HostCursor(int32_t cursor) {
  switch (cursor) {
    case 5:
      return 24;
    case 6:
      return 26;
    case 8:
      return 8;
    case 17:
      return 27;
    default:
      return 2;
  }
}

void DeliverCursor(const PanelEvent& event, const ControlWatch& panel) {
  PF_EventExtra& extra = *event.plugin.Extra();
  PF_AdjustCursorEventInfo& adjust = extra.u.adjust_cursor;
  TakePointer(event, adjust.screen_point, adjust.modifiers);
  PanelOf(panel)->MouseOver(event.pointer.point, event.pointer.modifiers);
  const CustomPanel* const left = PanelOf(panel);
  adjust.set_cursor = HostCursor(left != nullptr ? left->CurrentCursor() : 0);
  extra.evt_out_flags |= PF_EO_HANDLED_EVENT;
}

}  // namespace

void DeliverPanelEvent(const PanelEvent& event, const ControlWatch& panel) {
  switch (event.plugin.Extra()->e_type) {
    case PF_Event_DO_CLICK:
      return DeliverClick(event, panel);
    case PF_Event_DRAG:
      return DeliverDrag(event, panel);
    case PF_Event_DRAW:
      return DeliverDraw(event, panel);
    case PF_Event_ADJUST_CURSOR:
      return DeliverCursor(event, panel);
    default:
      return;
  }
}
