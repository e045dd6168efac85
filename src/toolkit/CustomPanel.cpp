// A panel's root: its background, and the way of its pictures to the host.
#include "toolkit/CustomPanel.h"

#include <cstdio>

#include "toolkit/PopupToggle.h"
#include "toolkit/RectAlgebra.h"
#include "toolkit/SharedBuffers.h"

CustomPanel::CustomPanel(const Rect& initialBounds, int32_t panelId)
    : TopControlPane(initialBounds) {
  id = panelId;
  CreateScreenBuffer();
}

void CustomPanel::CreateScreenBuffer() {
  const Rect size = AtOrigin(bounds);
  if (!EnsureScreenBuffer(size.right, size.bottom)) return;
  const NativeImageBuffer* const buffer = ScreenBuffer();
  std::fprintf(stderr, "CustomPanel CreateScreenBuffer %d %d\n", buffer->Width(), buffer->Height());
}

void CustomPanel::BlitToWindow(NativeImageBuffer& buffer, int32_t srcX, int32_t srcY, int32_t width,
                               int32_t height, int32_t dstX, int32_t dstY, WindowContext* context) {
  if (pluginContext != nullptr &&
      pluginContext->BlitToHost(buffer, srcX, srcY, width, height, dstX, dstY)) {
    return;
  }
  if (context != nullptr) context->Invalidate(MovedBy(Rect{0, 0, width, height}, dstX, dstY));
}

void CustomPanel::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const Rect area = MovedBy(AtOrigin(rect), position.x, position.y);
  buffer.FillRect(area, background, 256, &area);
}

bool CustomPanel::IsOpaqueOver(const Rect& rect) const {
  const Rect area = GetLocalBounds();
  return !IsEmpty(rect) && rect.left >= area.left && rect.top >= area.top &&
         rect.right <= area.right && rect.bottom <= area.bottom;
}

void CustomPanel::NotifyPressed(ControlPane* /*source*/) {}

void CustomPanel::NotifyReleased(ControlPane* /*source*/) {}

bool CustomPanel::ClickClosesPopup(ControlPane* popup, ControlPane* hit) {
  if (dynamic_cast<PopupToggle*>(hit) != nullptr) return false;
  return TopControlPane::ClickClosesPopup(popup, hit);
}

bool CustomPanel::HostKeyDown(int32_t key, const Modifiers& modifiers) {
  return GetFocus() == nullptr || KeyDown(key, modifiers);
}

bool CustomPanel::HostKeyUp(int32_t key, const Modifiers& modifiers) {
  return GetFocus() == nullptr || KeyUp(key, modifiers);
}

void CustomPanel::SetPanelData(void* /*data*/) {}

void CustomPanel::SetPanelCallbacks(const void* /*callbacks*/) {}

void CustomPanel::SetPanelRequest(void* /*request*/) {}

void CustomPanel::SetPluginContext(PluginContext* context) {
  pluginContext = context;
  if (context != nullptr) OnPluginContextSet(context);
}

PluginContext* CustomPanel::GetPluginContext() const {
  return pluginContext;
}

void CustomPanel::OnPluginContextSet(PluginContext* /*context*/) {}

void CustomPanel::SetPanelActive(bool /*active*/) {}
