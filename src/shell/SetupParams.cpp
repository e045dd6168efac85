// Turns rows of the table into the host's definitions.
#include "shell/SetupParams.h"

#include <cstdio>

#include "AE_EffectUI.h"
#include "shell/ParameterRows.h"
#include "shell/ParameterTable.h"

namespace {

// Both kinds of slider have these fields, in units of their own.
template <typename SliderDef>
SliderDef WithLimits(const SliderRange& range) {
  SliderDef def{};
  def.value = range.initial;
  def.valid_min = range.validMin;
  def.valid_max = range.validMax;
  def.slider_min = range.sliderMin;
  def.slider_max = range.sliderMax;
  def.dephault = range.initial;
  return def;
}

PF_FixedSliderDef FixedSliderDef(const SliderRange& range) {
  auto def = WithLimits<PF_FixedSliderDef>(range);
  def.precision = range.precision;
  def.display_flags = range.displayFlags;
  return def;
}

PF_PopupDef PopupDef(const PopupChoices& popup) {
  PF_PopupDef def{};
  def.value = popup.initial;
  def.num_choices = popup.count;
  def.dephault = popup.initial;
  def.u.namesptr = popup.names;
  return def;
}

PF_CheckBoxDef CheckBoxDef(bool initial) {
  PF_CheckBoxDef def{};
  def.value = initial ? 1 : 0;
  def.dephault = initial ? 1 : 0;
  def.u.nameptr = " ";
  return def;
}

PF_PointDef PointDef(const PointPercent& point) {
  PF_PointDef def{};
  def.x_value = point.x;
  def.y_value = point.y;
  def.x_dephault = point.x;
  def.y_dephault = point.y;
  return def;
}

PF_ParamDef Definition(const ParameterRow& row) {
  PF_ParamDef def{};
  def.uu.id = row.id;
  def.param_type = row.type;
  def.flags = row.flags;
  def.ui_flags = row.uiFlags;
  def.ui_width = row.uiWidth;
  def.ui_height = row.uiHeight;
  std::snprintf(def.name, sizeof def.name, "%s", row.name);
  switch (row.type) {
    case PF_Param_FIX_SLIDER:
      def.u.fd = FixedSliderDef(row.slider);
      break;
    case PF_Param_SLIDER:
      def.u.sd = WithLimits<PF_SliderDef>(row.slider);
      break;
    case PF_Param_POPUP:
      def.u.pd = PopupDef(row.popup);
      break;
    case PF_Param_CHECKBOX:
      def.u.bd = CheckBoxDef(row.checked);
      break;
    case PF_Param_POINT:
      def.u.td = PointDef(row.point);
      break;
    case PF_Param_LAYER:
      def.u.ld.dephault = PF_LayerDefault_NONE;
      break;
    default:
      break;
  }
  return def;
}

PF_Err RegisterPanels(PF_InData* in_data) {
  PF_CustomUIInfo info{};
  info.events = PF_CustomEFlag_EFFECT;
  return in_data->inter.register_ui(in_data->effect_ref, &info);
}

}  // namespace

PF_Err SetupParams(PF_InData* in_data, PF_OutData* out_data) {
  for (const ParameterRow& row : ParameterRows()) {
    PF_ParamDef def = Definition(row);
    const PF_Err error = in_data->inter.add_param(in_data->effect_ref, -1, &def);
    if (error != PF_Err_NONE) return error;
  }
  const PF_Err error = RegisterPanels(in_data);
  if (error != PF_Err_NONE) return error;
  out_data->num_params = kParameterCount;
  return PF_Err_NONE;
}
