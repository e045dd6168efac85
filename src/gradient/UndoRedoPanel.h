// The group of the buttons undo, redo and reset.
#pragma once

#include "gradient/UndoRedoListener.h"
#include "toolkit/ControlPane.h"
#include "toolkit/QvIconButton.h"

class UndoRedoPanel : public ControlPane {
 public:
  // newListener    told of presses; not owned, may be null
  // withUndoRedo   else the group has the reset button alone
  UndoRedoPanel(ControlPane* ownerPane, const Rect& initialBounds, UndoRedoListener* newListener,
                bool withUndoRedo);

  void NotifyPressed(ControlPane* source) override;

  // A button that isn't there is left out.
  void SetUndoEnabled(bool enabled);
  void SetRedoEnabled(bool enabled);
  void SetResetEnabled(bool enabled);

 private:
  UndoRedoListener* listener;
  QvIconButton* undoButton = nullptr;
  QvIconButton* redoButton = nullptr;
  QvIconButton* resetButton = nullptr;
};
