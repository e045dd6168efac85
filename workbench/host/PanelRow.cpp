// Builds events, and does what the effect asks for in return.
#include "workbench/host/PanelRow.h"

#include <algorithm>
#include <limits>

namespace {

A_long SaturatedSum(A_long a, A_long b) {
  using Limits = std::numeric_limits<A_long>;
  return static_cast<A_long>(std::clamp<int64_t>(int64_t{a} + b, Limits::min(), Limits::max()));
}

}  // namespace

PanelRow::PanelRow(EffectHost& effectHost, EffectInstance& rowInstance, size_t parameter,
                   const PF_UnionableRect& frame, Judge rowJudge)
    : pane(frame),
      host(effectHost),
      instance(rowInstance),
      index(parameter),
      judge(std::move(rowJudge)) {}

PF_Point PanelRow::InPane(PF_Point point) const {
  return {SaturatedSum(point.h, pane.Frame().left), SaturatedSum(point.v, pane.Frame().top)};
}

PF_EventExtra PanelRow::MakeEvent(PF_EventType type) const {
  PF_EventExtra event{};
  event.e_type = type;
  event.effect_win.index = static_cast<PF_ParamIndex>(index);
  event.effect_win.area = PF_EA_CONTROL;
  event.effect_win.current_frame = pane.Frame();
  return event;
}

void PanelRow::Send(PF_EventExtra& event, Drawing* drawing) {
  event.contextH = pane.Context();
  lastResult = host.SendEvent(instance, event, {&pane, drawing}, fault);
  lastEvent = event;
  if (!instance.written.empty()) lastRun = instance.written;
  if ((lastResult.outFlags & PF_OutFlag_FORCE_RERENDER) != 0) ++rerenderCount;
  if ((lastResult.outFlags & PF_OutFlag_REFRESH_UI) != 0) pane.Invalidate(nullptr);
}

void PanelRow::SendPointer(PF_EventExtra& event) {
  DrawIfInvalid();
  Send(event, nullptr);
  if (judge) judge(lastResult);
  if ((event.evt_out_flags & PF_EO_ALWAYS_UPDATE) != 0) pane.Invalidate(nullptr);
  if ((event.evt_out_flags & PF_EO_UPDATE_NOW) != 0) DrawIfInvalid();
}

void PanelRow::Click(PF_Point point, PF_Modifiers modifiers, A_long clicks) {
  constexpr A_u_long kMillisecondsBetweenPresses = 1000;
  PF_EventExtra event = MakeEvent(PF_Event_DO_CLICK);
  clock += kMillisecondsBetweenPresses;
  pane.mouse = InPane(point);
  event.u.do_click.when = clock;
  event.u.do_click.screen_point = pane.mouse;
  event.u.do_click.num_clicks = clicks;
  event.u.do_click.modifiers = modifiers;
  isTracking = false;
  SendPointer(event);
  press = event.u.do_click;
  isTracking = press.send_drag != 0;
}

void PanelRow::SendDrag(PF_Point point, PF_Modifiers modifiers, bool isLast) {
  pane.mouse = InPane(point);
  if (!isTracking) return;
  isTracking = !isLast;
  PF_EventExtra event = MakeEvent(PF_Event_DRAG);
  event.u.do_click = press;
  event.u.do_click.when = ++clock;
  event.u.do_click.screen_point = pane.mouse;
  event.u.do_click.modifiers = modifiers;
  event.u.do_click.last_time = isLast ? 1 : 0;
  SendPointer(event);
  press = event.u.do_click;
}

void PanelRow::Drag(PF_Point point, PF_Modifiers modifiers) {
  SendDrag(point, modifiers, false);
}

void PanelRow::Release(PF_Point point, PF_Modifiers modifiers) {
  SendDrag(point, modifiers, true);
}

PF_CursorType PanelRow::Move(PF_Point point, PF_Modifiers modifiers) {
  PF_EventExtra event = MakeEvent(PF_Event_ADJUST_CURSOR);
  pane.mouse = InPane(point);
  event.u.adjust_cursor = {pane.mouse, modifiers, 0};
  SendPointer(event);
  return event.u.adjust_cursor.set_cursor;
}

void PanelRow::DrawIfInvalid() {
  if (pane.IsInvalid()) Draw();
}

void PanelRow::Draw() {
  constexpr A_long kBitsPerPixel = 32;
  PF_EventExtra event = MakeEvent(PF_Event_DRAW);
  const PF_UnionableRect area = pane.TakeInvalid();
  event.u.draw = {area, kBitsPerPixel};
  const auto edge = [](A_long coordinate) { return static_cast<double>(coordinate); };
  Drawing drawing(canvas, {edge(area.left), edge(area.top), edge(area.right), edge(area.bottom)},
                  screenScale);
  Send(event, &drawing);
  lastCalls = std::move(drawing.calls);
  ++drawCount;
  if (judge) judge(lastResult);
}
