// Press, drag and release on the Apply button, and how the row then looks.
#include "keyframes/CommandsPanel.h"

#include "host/HandleLock.h"
#include "host/PanelPrimitives.h"
#include "host/PluginGui_AE_Impl.h"
#include "host/PluginHost_AE_Impl.h"
#include "host/ReturnMessage.h"
#include "keyframes/ApplyKeyframes.h"
#include "keyframes/CommandsRowLayout.h"
#include "keyframes/CommandsRowPicture.h"
#include "shell/ParameterTable.h"
#include "shell/ParameterValue.h"
#include "shell/SequenceRecord.h"

namespace {

bool IsInColumns(const RowRect& button, const PF_Point& point) {
  return point.h > button.left && point.h < button.right;
}

bool IsInside(const RowRect& button, const PF_Point& point) {
  return IsInColumns(button, point) && point.v > button.top && point.v < button.bottom;
}

RowRect ApplyButtonOf(const PF_EventExtra& extra) {
  return CommandsRowLayout(extra.effect_win.current_frame).ApplyButton();
}

// The height of a press plays no part; a release has to fall inside the button's rows as well.
void Press(SequenceRecord& record, PF_EventExtra& extra) {
  PF_DoClickEventInfo& click = extra.u.do_click;
  const bool pressed = IsInColumns(ApplyButtonOf(extra), click.screen_point) &&
                       record.applyButtonState != kApplyButtonDisabled;
  record.applyTracking = pressed ? 1 : 0;
  if (!pressed) return;
  record.applyButtonState = kApplyButtonPressed;
  click.send_drag = 1;
}

// Marks a run in the record for as long as it lasts, also when something is thrown out of it.
class RunMark {
 public:
  explicit RunMark(SequenceRecord& markedRecord) : record(markedRecord) {
    record.applyReserved = 0;
  }
  ~RunMark() { record.applyReserved = 2; }
  RunMark(const RunMark&) = delete;
  RunMark& operator=(const RunMark&) = delete;

 private:
  SequenceRecord& record;
};

// Shows the button as `state`. Tells whether that is a change.
bool ShowButton(SequenceRecord& record, ApplyButtonState state) {
  const bool changed = record.applyButtonState != state;
  record.applyButtonState = state;
  return changed;
}

// Follows the pointer. Tells whether the button looks different now.
bool Drag(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params, SequenceRecord& record,
          PF_EventExtra& extra) {
  if (record.applyTracking != 1) return false;
  const PF_DoClickEventInfo& drag = extra.u.do_click;
  const bool released = drag.last_time != 0;
  if (!IsInside(ApplyButtonOf(extra), drag.screen_point)) {
    if (released) record.applyTracking = 0;
    return ShowButton(record, kApplyButtonNormal);
  }
  if (!released) return ShowButton(record, kApplyButtonPressed);
  record.applyButtonState = kApplyButtonNormal;
  record.applyTracking = 0;
  const RunMark mark(record);
  ApplyKeyframes(in_data, out_data, params, &extra);
  return false;
}

// While a press is tracked the button looks as the pointer left it; else it follows the ranges.
CommandsRowLook Look(SequenceRecord& record, PF_ParamDef** params) {
  if (record.applyTracking == 0) {
    record.applyButtonState = AnyRangeActive(params) ? kApplyButtonNormal : kApplyButtonDisabled;
    record.applySecondState = record.applyButtonState;
  }
  CommandsRowLook look;
  look.applyButtonState = record.applyButtonState;
  for (int32_t range = 0; range < kRangeCount; ++range) {
    look.active[static_cast<size_t>(range)] = IsRangeActive(params, range);
  }
  return look;
}

// The row's record, and a text for the user where there is none.
class RowRecord {
 public:
  RowRecord(PF_InData* in_data, PF_OutData* out_data) : record(in_data, in_data->sequence_data) {
    if (!record) {
      ShowReturnMessage(out_data,
                        "Delvior could not reach its record, so the Apply button did nothing.");
    }
  }

  explicit operator bool() const { return static_cast<bool>(record); }
  PF_Err Error() const { return record.Error(); }
  SequenceRecord& operator*() const { return *record; }

 private:
  LockedRecord<SequenceRecord> record;
};

PF_Err Draw(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params, PF_EventExtra& extra) {
  PluginHost_AE_Impl host(in_data, out_data, params, nullptr);
  PluginGui_AE_Impl gui(&host, &extra);
  const PanelDrawing drawing(&gui);
  extra.evt_out_flags = PF_EO_NONE;
  const RowRecord record(in_data, out_data);
  if (!record) return record.Error();
  DrawCommandsRow(extra.effect_win.current_frame, Look(*record, params));
  extra.evt_out_flags = PF_EO_HANDLED_EVENT;
  return PF_Err_NONE;
}

PF_Err PressOrDrag(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params,
                   PF_EventExtra& extra) {
  const RowRecord record(in_data, out_data);
  if (!record) return record.Error();
  if (extra.e_type == PF_Event_DO_CLICK) {
    Press(*record, extra);
  } else if (Drag(in_data, out_data, params, *record, extra)) {
    out_data->out_flags |= PF_OutFlag_REFRESH_UI;
  }
  return PF_Err_NONE;
}

// Only a draw event shows what changed, so the host is asked for one, at once.
void RequestRedraw(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params,
                   PF_EventExtra& extra) {
  PluginHost_AE_Impl host(in_data, out_data, params, nullptr);
  PluginGui_AE_Impl gui(&host, &extra);
  gui.InvalidatePanel();
  extra.evt_out_flags |= PF_EO_UPDATE_NOW;
}

PF_Err PressOrDragAndRedraw(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params,
                            PF_EventExtra& extra) {
  extra.evt_out_flags = PF_EO_HANDLED_EVENT;
  try {
    const PF_Err error = PressOrDrag(in_data, out_data, params, extra);
    RequestRedraw(in_data, out_data, params, extra);
    return error;
  } catch (...) {
    // The button is up again, whatever ended its run.
    RequestRedraw(in_data, out_data, params, extra);
    throw;
  }
}

}  // namespace

PF_Err HandleCommandsEvent(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params,
                           PF_EventExtra* extra) {
  switch (extra->e_type) {
    case PF_Event_DRAW:
      return Draw(in_data, out_data, params, *extra);
    case PF_Event_DO_CLICK:
    case PF_Event_DRAG:
      return PressOrDragAndRedraw(in_data, out_data, params, *extra);
    default:
      return PF_Err_NONE;
  }
}
