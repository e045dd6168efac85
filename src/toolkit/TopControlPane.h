// The root of a tree of controls: the mouse, the keyboard's focus, hover and the open popup.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "toolkit/ControlPane.h"
#include "toolkit/ControlWatch.h"
#include "toolkit/MouseMoveFilter.h"
#include "toolkit/ParameterOwner.h"

class TopControlPane : public ControlPane, public ParameterOwner {
 public:
  explicit TopControlPane(const Rect& initialBounds);
  ~TopControlPane() override;

  WindowContext* GetWindowContext() override;
  NativeImageBuffer* GetScreenBuffer() override;
  ImageBuffer* GetScratchBuffer() override;
  ControlPane* HitTest(const Point& point) override;
  void IdleTree() override;
  void UpdateTree() override;
  void OnParameterChanged(int32_t index) override;

  // A control is about to leave the tree: forgets it and all under it.
  virtual void OnChildRemoved(ControlPane* control);
  // Valid during one event of the host; not owned.
  virtual void SetWindowContext(WindowContext* context);
  virtual void ClearWindowContext();

  // Events; points are global. A press captures the control that it hits until the release.
  virtual bool MouseDown(const Point& point, const Modifiers& modifiers, bool isDoubleClick,
                         int32_t button);
  virtual bool RightMouseDown(const Point& point, const Modifiers& modifiers, bool isDoubleClick);
  // dx, dy   the pointer's movement, not held by the edge of the screen
  virtual void MouseDrag(const Point& point, float dx, float dy, const Modifiers& modifiers,
                         int32_t button);
  virtual bool MouseUp(const Point& point, int32_t button);
  // Returns the cursor's id with the sign that the control gave it.
  virtual int32_t MouseOver(const Point& point, const Modifiers& modifiers);

  virtual void OnCaptureGained(ControlPane* control);
  virtual void OnCaptureLost(ControlPane* control);  // null where nothing was captured
  // A control that isn't in the tree counts as null.
  virtual void SetCapture(ControlPane* control);
  virtual void ReleaseCapture();
  virtual ControlPane* GetCapture() const;
  virtual Point GetLastMousePoint() const;
  virtual void GetLastMouseDelta(float* dx, float* dy) const;

  // Drags that match are thrown away, until the release or another filter; null for none.
  void SetMouseMoveFilter(std::unique_ptr<MouseMoveFilter> filter);

  // A control that isn't in the tree is ignored.
  // notify   whether a control that loses the focus keeps what was entered: see FocusNotifies
  virtual void SetFocus(ControlPane* control, bool notify);
  virtual void OnFocusChanged(ControlPane* control);
  virtual void FocusNext();
  virtual void ClearFocus(bool notify);
  virtual ControlPane* GetFocus() const;
  virtual bool ClickClearsFocus(ControlPane* focused, ControlPane* hit);
  virtual bool KeyDown(int32_t key, const Modifiers& modifiers);
  virtual bool KeyUp(int32_t key, const Modifiers& modifiers);
  virtual void SetPendingKey(int32_t key);
  virtual void ClearPendingKey();
  virtual void ClearFocusRing();
  virtual void AddToFocusRing(ControlPane* control);
  virtual void RemoveFromFocusRing(ControlPane* control);               // leaves a null entry
  virtual int32_t GetFocusRingIndex(const ControlPane* control) const;  // -1 if absent

  // One popup at a time; it is not owned while it is closed. Returns the popup that is open then.
  virtual ControlPane* ShowPopup(ControlPane* popup, bool modal, bool flag);
  virtual void HidePopup();
  virtual ControlPane* GetPopup() const;
  virtual ControlPane* RemovePopup();
  virtual bool ClickClosesPopup(ControlPane* popup, ControlPane* hit);

  // The id given to the window last.
  int32_t CurrentCursor() const { return currentCursor; }
  // The notify of the last change of focus, for OnFocusLost.
  bool FocusNotifies() const { return focusNotifies; }
  // Lets go of a control and all under it.
  void Forget(const ControlPane* control);
  // Whether a control is this one or linked under it.
  bool Belongs(const ControlPane* control) const;

 protected:
  // The controls held here become null when they are deleted.
  WindowContext* windowContext = nullptr;
  ControlWatch capturedControl;
  ControlWatch focusedControl;
  ControlWatch hoverOwner;  // keeps the pointer's cursor
  Point lastMousePoint;
  float lastMouseDeltaX = 0.0F;
  float lastMouseDeltaY = 0.0F;
  std::vector<ControlWatch> focusRing;  // Tab order; entries may be null
  uint32_t lastIdleMs = 0;
  int32_t pendingKey = 0;
  int32_t currentCursor = 0;
  std::vector<ControlWatch> hoverSet;  // from the control under the pointer up to the root
  bool focusNotifies = false;

 private:
  bool PrepareForPress(ControlPane* hit);
  void RecordPress(const Point& point, const Modifiers& modifiers, bool isDoubleClick,
                   int32_t button);
  void OpenContextMenu(ControlPane* hit, const Point& point);
  void MoveHover(ControlPane* hit);
  bool IsMoveFiltered() const;
  int32_t AskForCursor(ControlPane* hit, const Point& point, const Modifiers& modifiers);
  void ReleaseCaptured(ControlPane& captured, const Point& point);
  bool StepFocus(const Modifiers& modifiers);
  void DeletePendingChildren();

  std::unique_ptr<MouseMoveFilter> mouseMoveFilter;
};
