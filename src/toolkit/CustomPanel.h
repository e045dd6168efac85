// The root of a panel that the effect shows in a row of its own.
#pragma once

#include <cstdint>

#include "toolkit/PluginContext.h"
#include "toolkit/ThemeColors.h"
#include "toolkit/TopControlPane.h"

class CustomPanel : public TopControlPane {
 public:
  // Makes sure that the shared screen buffer holds the panel. Throws App::ExceptionInfo where there
  // is no memory.
  CustomPanel(const Rect& initialBounds, int32_t panelId);

  void BlitToWindow(NativeImageBuffer& buffer, int32_t srcX, int32_t srcY, int32_t width,
                    int32_t height, int32_t dstX, int32_t dstY, WindowContext* context) override;
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  bool IsOpaqueOver(const Rect& rect) const override;
  void NotifyPressed(ControlPane* source) override;
  void NotifyReleased(ControlPane* source) override;
  bool ClickClosesPopup(ControlPane* popup, ControlPane* hit) override;

  // True at once while nothing has the focus.
  virtual bool HostKeyDown(int32_t key, const Modifiers& modifiers);
  virtual bool HostKeyUp(int32_t key, const Modifiers& modifiers);
  // Hooks for the concrete panel: its record, its table of functions, a request.
  virtual void SetPanelData(void* data);
  virtual void SetPanelCallbacks(const void* callbacks);
  virtual void SetPanelRequest(void* request);
  // Valid during one event of the host; not owned.
  virtual void SetPluginContext(PluginContext* context);
  virtual PluginContext* GetPluginContext() const;
  virtual void OnPluginContextSet(PluginContext* context);
  virtual void SetPanelActive(bool active);

  void SetBackground(ColorBGRA color) { background = color; }

 protected:
  PluginContext* pluginContext = nullptr;
  ColorBGRA background = ThemeColors::PanelBackground;

 private:
  void CreateScreenBuffer();
};
