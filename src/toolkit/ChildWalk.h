// Goes through the children of a control while they may be added, removed and deleted.
#pragma once

#include <cstddef>
#include <list>

class ControlPane;

// Visits no more children than there were at the start, so that a child that moves itself to where
// the walk is going doesn't keep it going for ever.
class ChildWalk {
 public:
  enum class Direction { kFromTop, kFromBottom };

  ChildWalk(ControlPane& walkedPane, Direction direction);
  ChildWalk(const ChildWalk&) = delete;
  ChildWalk& operator=(const ChildWalk&) = delete;
  ~ChildWalk();

  void StartAt(const ControlPane& child);
  // Null at the end, and when the control whose children these are is gone.
  ControlPane* Next();
  bool PaneIsGone() const { return pane == nullptr; }

 private:
  friend class ControlPane;

  void Step();
  void End();

  ControlPane* pane = nullptr;
  std::list<ControlPane*>::iterator at;
  size_t remaining = 0;
  bool upward = false;
  ChildWalk* next = nullptr;  // of those that walk through the same children
  ChildWalk** pointerToThis = nullptr;
};
