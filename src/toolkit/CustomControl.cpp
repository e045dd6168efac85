// A control that an effect paints itself.
#include "toolkit/CustomControl.h"

void CustomControlClient::PressControl(CustomControl& /*control*/, const Point& /*point*/) {}

void CustomControlClient::DragControl(CustomControl& /*control*/, const Point& /*point*/) {}

void CustomControlClient::ReleaseControl(CustomControl& /*control*/, const Point& /*point*/) {}

CustomControl::CustomControl(ControlPane* ownerPane, const Rect& initialBounds,
                             CustomControlClient* newClient)
    : StockControl(ownerPane, initialBounds), client(newClient) {}

void CustomControl::SetClient(CustomControlClient* newClient) {
  if (client == newClient) return;
  client = newClient;
  SetDirty(true);
}

void CustomControl::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  if (client != nullptr) client->PaintControl(*this, buffer, AreaToPaint(rect, position));
}

void CustomControl::OnMouseDown(WindowContext* /*context*/, const Point& point) {
  pressed = true;
  const ControlWatch self(this);
  if (client != nullptr) client->PressControl(*this, point);
  if (self) RedrawAndTellPress();
}

void CustomControl::OnMouseDrag(WindowContext* /*context*/, const Point& point) {
  const ControlWatch self(this);
  if (client != nullptr) client->DragControl(*this, point);
  if (self) RedrawAndTellListener();
}

void CustomControl::OnMouseUp(WindowContext* /*context*/, const Point& point) {
  pressed = false;
  const ControlWatch self(this);
  if (client != nullptr) client->ReleaseControl(*this, point);
  if (self) RedrawAndTellRelease();
}
