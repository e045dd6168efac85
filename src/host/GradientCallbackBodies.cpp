// The functions of the table.
#include "host/GradientCallbackBodies.h"

#include "host/HeldAppSuite.h"
#include "host/PluginHost_AE_Impl.h"

namespace {

GradientCallbackContext& ContextOf(void* context) {
  return *static_cast<GradientCallbackContext*>(context);
}

// The sample stands in for a color that a failing host doesn't give.
bool PickColor(float* red, float* green, float* blue, void* context) {
  PluginHost_AE_Impl& host = *ContextOf(context).host->GetAEImpl();
  const HeldAppSuite appSuite(host.InData(), host.OutData());
  if (!appSuite) return false;
  PF_PixelFloat sample{};
  sample.alpha = 1.0F;
  sample.red = *red;
  sample.green = *green;
  sample.blue = *blue;
  PF_PixelFloat picked = sample;
  if (appSuite->PF_AppColorPickerDialog("Select Color", &sample, 1, &picked) ==
      PF_Interrupt_CANCEL) {
    return false;
  }
  *red = picked.red;
  *green = picked.green;
  *blue = picked.blue;
  return true;
}

void NoteEdit(void* context) {
  GradientCallbackContext& own = ContextOf(context);
  own.global->undoOwner = own.ownerIndex;
  own.host->GetAEImpl()->OutData()->out_flags |= PF_OutFlag_REFRESH_UI;
}

}  // namespace

GradientCallbacks MakeGradientCallbacks(GradientCallbackContext& context) {
  GradientCallbacks callbacks;
  callbacks.pickColor = PickColor;
  callbacks.noteEdit = NoteEdit;
  callbacks.context = &context;
  return callbacks;
}
