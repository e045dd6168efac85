// Tells whether a control is still there after a call that may have deleted it.
#pragma once

class ControlPane;

// Holds a control weakly: from the moment that its destructor begins, Get gives null.
class ControlWatch {
 public:
  ControlWatch() = default;
  explicit ControlWatch(ControlPane* watched);  // null watches nothing
  ControlWatch(const ControlWatch& other);
  ControlWatch& operator=(const ControlWatch& other);
  ControlWatch& operator=(ControlPane* watched);
  ~ControlWatch();

  ControlPane* Get() const { return control; }
  ControlPane* operator->() const { return control; }
  explicit operator bool() const { return control != nullptr; }

 private:
  friend class ControlPane;

  void Begin(ControlPane* watched);
  void End();

  ControlPane* control = nullptr;
  ControlWatch* next = nullptr;  // of those that watch the same control
  ControlWatch** pointerToThis = nullptr;
};
