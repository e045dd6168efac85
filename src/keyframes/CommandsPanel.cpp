// Press, drag and release on the Apply button.
#include "keyframes/CommandsPanel.h"

#include <cstdint>

#include "host/HandleLock.h"
#include "host/ReturnMessage.h"
#include "keyframes/ApplyKeyframes.h"
#include "shell/SequenceRecord.h"

namespace {

// Where the button's border runs in the row: a point counts as inside when it is past the left and
// top and before the right and bottom. 64 bits, since the host's frames and points may be anything.
struct ButtonBounds {
  int64_t left, top, right, bottom;
};

//            current_frame.left              current_frame.right
//                   |             rowMid            |
//   x counts from 0, whatever the frame's left:     | Apply  50 |
ButtonBounds ApplyButtonBounds(const PF_EventExtra& extra) {
  constexpr int64_t kWidth = 50;
  constexpr int64_t kHeight = 13;
  const PF_UnionableRect& frame = extra.effect_win.current_frame;
  const int64_t rowMid = (static_cast<int64_t>(frame.right) - frame.left) / 2;
  const int64_t top = static_cast<int64_t>(frame.top) + 1;
  return {rowMid, top, rowMid + kWidth, top + kHeight};
}

bool IsInColumns(const ButtonBounds& button, const PF_Point& point) {
  return point.h > button.left && point.h < button.right;
}

bool IsInside(const ButtonBounds& button, const PF_Point& point) {
  return IsInColumns(button, point) && point.v > button.top && point.v < button.bottom;
}

// The height of a press plays no part; a release has to fall inside the button's rows as well.
void Press(SequenceRecord& record, PF_EventExtra& extra) {
  PF_DoClickEventInfo& click = extra.u.do_click;
  const bool pressed = IsInColumns(ApplyButtonBounds(extra), click.screen_point) &&
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
  if (!IsInside(ApplyButtonBounds(extra), drag.screen_point)) {
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

}  // namespace

PF_Err HandleCommandsEvent(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params,
                           PF_EventExtra* extra) {
  if (extra->e_type != PF_Event_DO_CLICK && extra->e_type != PF_Event_DRAG) return PF_Err_NONE;
  extra->evt_out_flags = PF_EO_HANDLED_EVENT;
  const LockedRecord<SequenceRecord> record(in_data, in_data->sequence_data);
  if (!record) {
    ShowReturnMessage(out_data,
                      "Delvior could not reach its record, so the Apply button did nothing.");
    return record.Error();
  }
  if (extra->e_type == PF_Event_DO_CLICK) {
    Press(*record, *extra);
  } else if (Drag(in_data, out_data, params, *record, *extra)) {
    out_data->out_flags |= PF_OutFlag_REFRESH_UI;
  }
  return PF_Err_NONE;
}
