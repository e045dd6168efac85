// Who is told of the presses on the buttons undo, redo and reset.
#pragma once

class UndoRedoListener {
 public:
  virtual ~UndoRedoListener() = default;
  virtual void UndoPressed() = 0;
  virtual void RedoPressed() = 0;
  virtual void ResetPressed() = 0;
};
