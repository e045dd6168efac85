// Who paints a control and takes its mouse in place of the toolkit.
#pragma once

#include "drawing/ImageBuffer.h"
#include "toolkit/PaintArea.h"

class CustomControl;

// Points are local to the control. Each of these may delete the control.
class CustomControlClient {
 public:
  virtual ~CustomControlClient() = default;

  virtual void PaintControl(CustomControl& control, ImageBuffer& buffer, const PaintArea& area) = 0;
  virtual void PressControl(CustomControl& control, const Point& point);
  virtual void DragControl(CustomControl& control, const Point& point);
  virtual void ReleaseControl(CustomControl& control, const Point& point);
};
