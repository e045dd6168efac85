// The rules by which parameters are greyed.
#include "shell/UpdateParamsUI.h"

#include <array>

#include "AE_EffectSuites.h"
#include "host/HandleLock.h"
#include "host/ReturnMessage.h"
#include "host/SuiteHelper.h"
#include "shell/ParameterTable.h"
#include "shell/ParameterValue.h"
#include "shell/SequenceRecord.h"

namespace {

using ParamUtilsSuite = HeldSuite<PF_ParamUtilsSuite2>;

struct GreyedRow {
  int32_t index;
  bool disabled;
};

// The rows of one range, in the order in which the host is told.
std::array<GreyedRow, 8> GreyedRangeRows(PF_ParamDef** params, int32_t range) {
  const bool off = !IsRangeActive(params, range);
  const int32_t falloff = PopupChoice(params, RangeParameter(range, kRangeFalloff));
  const bool timeless = falloff == kFalloffInstant || falloff == kFalloffIntegrate;
  const bool custom =
      PopupChoice(params, RangeParameter(range, kRangeOutputMinMax)) == kOutputCustom;
  return {{
      {RangeParameter(range, kRangeCorner1), off},
      {RangeParameter(range, kRangeCorner2), off},
      {RangeParameter(range, kRangeType), off},
      {RangeParameter(range, kRangeFalloff), off},
      {RangeParameter(range, kRangeFalloffTime), off || timeless},
      {RangeParameter(range, kRangeMin), off || !custom},
      {RangeParameter(range, kRangeMax), off || !custom},
      {RangeParameter(range, kRangeOutputMinMax), off},
  }};
}

PF_Err UpdateRow(PF_InData* in_data, PF_ParamDef** params, const ParamUtilsSuite& suite,
                 const GreyedRow& row) {
  PF_ParamDef def = *params[row.index];
  def.ui_flags = row.disabled ? PF_PUI_DISABLED : PF_PUI_NONE;
  return suite->PF_UpdateParamUI(in_data->effect_ref, row.index, &def);
}

template <size_t kCount>
PF_Err UpdateRows(PF_InData* in_data, PF_ParamDef** params, const ParamUtilsSuite& suite,
                  const std::array<GreyedRow, kCount>& rows) {
  for (const GreyedRow& row : rows) {
    const PF_Err error = UpdateRow(in_data, params, suite, row);
    if (error != PF_Err_NONE) return error;
  }
  return PF_Err_NONE;
}

PF_Err UpdateAllRows(PF_InData* in_data, PF_ParamDef** params, const ParamUtilsSuite& suite) {
  for (int32_t range = 0; range < kRangeCount; ++range) {
    const PF_Err error = UpdateRows(in_data, params, suite, GreyedRangeRows(params, range));
    if (error != PF_Err_NONE) return error;
  }
  const bool unquantized = !IsChecked(params, kQuantize);
  const std::array<GreyedRow, 3> rows = {{
      {kKeyframesPerSecond, IsChecked(params, kUseCompFps)},
      {kQuantizeValue, unquantized},
      {kFillSegment, unquantized},
  }};
  return UpdateRows(in_data, params, suite, rows);
}

PF_Err UpdateApplyButton(PF_InData* in_data, PF_ParamDef** params) {
  if (in_data->sequence_data == nullptr) return PF_Err_NONE;
  const LockedRecord<SequenceRecord> record(in_data, in_data->sequence_data);
  if (!record) return record.Error();
  record->applyButtonState = AnyRangeActive(params) ? kApplyButtonNormal : kApplyButtonDisabled;
  record->applySecondState = record->applyButtonState;
  return PF_Err_NONE;
}

PF_Err ShowFailure(PF_OutData* out_data, const char* text, PF_Err error) {
  if (error != PF_Err_NONE) ShowReturnMessage(out_data, text);
  return error;
}

}  // namespace

PF_Err UpdateParamsUI(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params) {
  const PF_Err buttonError =
      ShowFailure(out_data, "Delvior could not update its Apply button, for want of its record.",
                  UpdateApplyButton(in_data, params));
  const ParamUtilsSuite suite(in_data, out_data, kPFParamUtilsSuite, kPFParamUtilsSuiteVersion2,
                              {"Failed to acquire suite.", "Failed to release suite."});
  if (!suite) return suite.Error();
  out_data->out_flags |= PF_OutFlag_REFRESH_UI;
  const PF_Err rowsError =
      ShowFailure(out_data, "Delvior could not update which of its controls are enabled.",
                  UpdateAllRows(in_data, params, suite));
  return buttonError != PF_Err_NONE ? buttonError : rowsError;
}
