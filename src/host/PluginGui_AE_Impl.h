// The surface of one event in the effect's own rows, in the host's terms.
#pragma once

#include <memory>

#include "host/DrawbotObject.h"
#include "host/PluginGui_API.h"
#include "host/PluginHost_API.h"
#include "host/SuiteHelper.h"

// One pushed state of a surface, popped with this object.
class SurfaceStateGuard {
 public:
  SurfaceStateGuard(const DRAWBOT_SurfaceSuite2* surfaceSuite, DRAWBOT_SurfaceRef pushedSurface)
      : suite(surfaceSuite), surface(pushedSurface) {}
  ~SurfaceStateGuard() { suite->PopStateStack(surface); }
  SurfaceStateGuard(const SurfaceStateGuard&) = delete;
  SurfaceStateGuard& operator=(const SurfaceStateGuard&) = delete;

 private:
  const DRAWBOT_SurfaceSuite2* suite;
  DRAWBOT_SurfaceRef surface;
};

// What the drawing of one event works with. References are null until BeginDraw has them.
struct PanelDrawContext {
  // Whether there is something to draw on, and with.
  bool HasSurface() const { return surface != nullptr && supplier != nullptr; }

  AEFX_DrawbotSuites suites;
  DRAWBOT_DrawRef drawingRef = nullptr;
  DRAWBOT_SurfaceRef surface = nullptr;
  DRAWBOT_SupplierRef supplier = nullptr;
  std::unique_ptr<SurfaceStateGuard> stateGuard;
  DrawbotObject<DRAWBOT_FontRef> defaultFont;  // made when a string is first drawn
  DrawbotObject<DRAWBOT_PenRef> currentPen;
  DrawbotObject<DRAWBOT_PathRef> currentPath;  // lines that wait to be stroked
  float penX = 0.0F;
  float penY = 0.0F;
  PF_Err status = PF_Err_NONE;
};

// Lives on the stack of one event. Owns the suites and drawing objects that it takes.
class PluginGui_AE_Impl final : public PluginGui_API {
 public:
  // host, extra   borrowed for this object's life
  PluginGui_AE_Impl(PluginHost_API* hostOfCall, PF_EventExtra* extraOfCall);
  ~PluginGui_AE_Impl() override;
  PluginGui_AE_Impl(const PluginGui_AE_Impl&) = delete;
  PluginGui_AE_Impl& operator=(const PluginGui_AE_Impl&) = delete;

  PluginGui_AE_Impl* GetDrawContext() override;
  Rect16 GetPanelFrame() const override;
  void RefreshUI() override;
  PF_Point GetEventPoint() const override;
  void RequestDrag() override;
  PluginGui_DrawUtilsApi* GetDrawUtils() override;
  PluginGui_DrawUtilsApi* GetDrawUtilsAgain() override { return GetDrawUtils(); }
  void BeginDraw() override;
  void EndDraw() override;
  void LayerToFrame(double x, double y, double* frameX, double* frameY) override;
  void FrameToLayer(double x, double y, double* layerX, double* layerY) override;
  void SetPenDefault(Color16 color) override;
  bool IsHelperActive() override;
  PF_Err InvalidatePanel() override;
  PF_Err GetStatus() const override { return context.status; }
  void FlushSurface() override;

  // As the facade's; 1 without a facade.
  PF_Err GetAppColor(A_u_long index, A_long* red, A_long* green, A_long* blue) override;

  PanelDrawContext& Context() { return context; }

 private:
  PF_Err FetchDrawingReference();
  void OpenSurface();

  PluginHost_AE_Impl* host;
  PF_EventExtra* extra;
  bool suitesHeld = false;
  PanelDrawContext context;
};
