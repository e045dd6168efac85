// The functions of the table.
#include "host/GradientCallbackBodies.h"

#include "gradient/GradientClipboard.h"
#include "gradient/GradientUndo.h"
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

GradientClipboard ClipboardOf(void* context) {
  GlobalRecord& global = *ContextOf(context).global;
  return {global.clipboard, global.clipboardFilled};
}

GradientUndoSlots UndoSlotsOf(void* context) {
  GlobalRecord& global = *ContextOf(context).global;
  return {global.undoSnapshot, global.redoSnapshot, global.undoOwner};
}

void Copy(void* context) {
  CopyStops(*ContextOf(context).view, ClipboardOf(context));
}

void Paste(void* context) {
  PasteStops(ClipboardOf(context), *ContextOf(context).view);
}

bool MayPaste(void* context) {
  return CanPaste(ClipboardOf(context));
}

void Undo(void* context) {
  UndoStops(UndoSlotsOf(context), *ContextOf(context).view);
}

void Redo(void* context) {
  RedoStops(UndoSlotsOf(context), *ContextOf(context).view);
}

bool MayUndo(void* context) {
  return CanUndo(UndoSlotsOf(context), ContextOf(context).ownerIndex);
}

bool MayRedo(void* context) {
  return CanRedo(UndoSlotsOf(context), ContextOf(context).ownerIndex);
}

void Push(void* context) {
  const GradientCallbackContext& own = ContextOf(context);
  PushUndo(UndoSlotsOf(context), *own.view, own.ownerIndex);
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
  callbacks.copyStops = Copy;
  callbacks.pasteStops = Paste;
  callbacks.canPaste = MayPaste;
  callbacks.undo = Undo;
  callbacks.redo = Redo;
  callbacks.canUndo = MayUndo;
  callbacks.canRedo = MayRedo;
  callbacks.pushUndo = Push;
  callbacks.noteEdit = NoteEdit;
  callbacks.context = &context;
  return callbacks;
}
