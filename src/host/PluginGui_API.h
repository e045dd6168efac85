// What a row that draws itself may ask during one event, whichever host it stands in.
#pragma once

#include "AE_EffectUI.h"
#include "host/PanelShapes.h"

class PluginGui_AE_Impl;
class PluginGui_DrawUtilsApi;

class PluginGui_API {
 public:
  // This object in the host's own terms; null once something has failed.
  virtual PluginGui_AE_Impl* GetDrawContext() = 0;
  virtual Rect16 GetPanelFrame() const = 0;
  virtual void RefreshUI() = 0;
  virtual PF_Point GetEventPoint() const = 0;
  // After a press: asks for the drags that follow it.
  virtual void RequestDrag() = 0;
  virtual PluginGui_DrawUtilsApi* GetDrawUtils() = 0;
  virtual PluginGui_DrawUtilsApi* GetDrawUtilsAgain() = 0;

  // Opens the surface of a draw event and closes it. Where there is no surface, GetStatus says why
  // and all drawing does nothing. BeginDraw throws DRAWBOT_Exception if the surface's state can't
  // be kept.
  virtual void BeginDraw() = 0;
  virtual void EndDraw() = 0;

  // Between pixels of the layer and those of the window that the event comes from.
  virtual void LayerToFrame(double x, double y, double* frameX, double* frameY) = 0;
  virtual void FrameToLayer(double x, double y, double* layerX, double* layerY) = 0;

  // A pen of width 2.
  virtual void SetPenDefault(Color16 color) = 0;
  virtual bool IsHelperActive() = 0;
  // Asks the host to have the whole panel drawn again. Returns the host's error.
  virtual PF_Err InvalidatePanel() = 0;
  // 0, or what opening the surface or making the last pen failed with.
  virtual PF_Err GetStatus() const = 0;
  virtual void FlushSurface() = 0;

  // As the facade's.
  virtual PF_Err GetAppColor(A_u_long index, A_long* red, A_long* green, A_long* blue) = 0;

  virtual ~PluginGui_API() = default;
};
