// The tree's view of the window that an event comes from, valid during that event.
#pragma once

#include <cstdint>

#include "drawing/Rect.h"
#include "platform/BitmapMemory.h"
#include "toolkit/ControlTypes.h"

using WindowHandle = void*;

// Points are pixels of the window, whose top left is (originX, originY) away from the panel's.
class WindowContext {
 public:
  virtual ~WindowContext() = default;

  virtual Rect GetClientRect() const = 0;
  virtual Point GetMousePosition() const = 0;
  virtual Modifiers GetModifiers() const = 0;
  virtual void ShowCursor(bool show) = 0;
  virtual void SetCursor(int32_t id);
  // Sets the cursor if the point is inside, right and bottom excluded. Tells whether it is.
  virtual bool SetCursorInRect(const Point& point, const Rect& rect, int32_t id);
  virtual void SetMousePosition(const Point& point) = 0;
  virtual void Flush();
  virtual void SetScreenMousePosition(const Point& point) = 0;
  virtual Point GetScreenMousePosition() const = 0;
  // Width and height; 0 where there is no screen.
  virtual Point GetScreenSize() const;
  // Adds an area that is to be painted again.
  virtual void Invalidate(const Rect& rect);
  virtual Rect GetInvalidRect() const;
  virtual void ClearInvalidRect();

  // Null while there is no surface to paint on at once; painting then only marks areas.
  SurfaceHandle DeviceContext() const { return deviceContext; }

 protected:
  WindowHandle windowHandle = nullptr;
  SurfaceHandle deviceContext = nullptr;
  bool deviceIsBorrowed = true;
  int32_t originX = 0;
  int32_t originY = 0;
  Rect invalidRect;
};
