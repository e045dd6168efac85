// A control that an effect paints itself.
#pragma once

#include "toolkit/CustomControlClient.h"
#include "toolkit/StockControl.h"

// The client comes first; then the owner hears of press and release, and the listener of each drag.
class CustomControl : public StockControl {
 public:
  // newClient   not owned, lives as long as it is set; null paints nothing
  CustomControl(ControlPane* ownerPane, const Rect& initialBounds, CustomControlClient* newClient);

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  void OnMouseDown(WindowContext* context, const Point& point) override;
  void OnMouseDrag(WindowContext* context, const Point& point) override;
  void OnMouseUp(WindowContext* context, const Point& point) override;

  void SetClient(CustomControlClient* newClient);
  bool IsPressed() const { return pressed; }
  bool ShowsFocus() { return HasFocus(); }

 private:
  CustomControlClient* client;
  bool pressed = false;
};
