// The group of the buttons undo, redo and reset.
#include "gradient/UndoRedoPanel.h"

#include <string>

#include "gradient/EnabledState.h"
#include "gradient/PanelChildren.h"
#include "gradient/PanelIcon.h"
#include "platform/Truncate.h"

namespace {

constexpr int32_t kResetId = 300;
constexpr int32_t kRedoId = 301;
constexpr int32_t kUndoId = 302;
constexpr int32_t kButtonSide = 16;

// name   of the icons' files, before what tells the state
QvIconButton* AddIconButton(ControlPane& group, const Point& place, int32_t id,
                            const std::string& name) {
  const Rect bounds = {place.x, place.y, place.x + kButtonSide, place.y + kButtonSide};
  auto* const button = AddButton<QvIconButton>(group, bounds, id, "");
  button->SetIcon(kButtonDisabled, LoadPanelIcon((name + "_Disabled.png").c_str()).release());
  button->SetIcon(kButtonNormal, LoadPanelIcon((name + "_Normal.png").c_str()).release());
  button->SetIcon(kButtonOver, LoadPanelIcon((name + "_Over.png").c_str()).release());
  return button;
}

}  // namespace

UndoRedoPanel::UndoRedoPanel(ControlPane* ownerPane, const Rect& initialBounds,
                             UndoRedoListener* newListener, bool withUndoRedo)
    : ControlPane(ownerPane, initialBounds), listener(newListener) {
  const Rect area = GetLocalBounds();
  const int32_t gap = (area.right - 3 * kButtonSide) / 2;
  const auto top = Truncate<int32_t>(area.bottom * 0.5 - 8.0);
  const int32_t redoLeft = gap / 2 + kButtonSide;
  if (withUndoRedo) {
    undoButton = AddIconButton(*this, {0, top}, kUndoId, "Undo");
    undoButton->SetEnabled(false);
    redoButton = AddIconButton(*this, {redoLeft, top}, kRedoId, "Redo");
    redoButton->SetEnabled(false);
  }
  resetButton = AddIconButton(*this, {redoLeft + gap + kButtonSide, top}, kResetId, "Reset");
}

void UndoRedoPanel::NotifyPressed(ControlPane* source) {
  if (listener == nullptr || source == nullptr) return;
  switch (source->GetId()) {
    case kResetId:
      listener->ResetPressed();
      break;
    case kRedoId:
      listener->RedoPressed();
      break;
    case kUndoId:
      listener->UndoPressed();
      break;
    default:
      ControlPane::NotifyPressed(source);
  }
}

void UndoRedoPanel::SetUndoEnabled(bool enabled) {
  ChangeEnabled(undoButton, enabled);
}

void UndoRedoPanel::SetRedoEnabled(bool enabled) {
  ChangeEnabled(redoButton, enabled);
}

void UndoRedoPanel::SetResetEnabled(bool enabled) {
  ChangeEnabled(resetButton, enabled);
}
