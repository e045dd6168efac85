// The strip on which the user places the stops of the colour map.
#pragma once

#include <cstdint>
#include <vector>

#include "gradient/GradientListener.h"
#include "gradient/GradientView.h"
#include "toolkit/ControlPane.h"
#include "toolkit/ControlWatch.h"
#include "toolkit/PaintArea.h"

class GradientPanel;

// A press on free space adds a stop, a drag moves it past its neighbours, or off the strip and
// back, and a double click lets the user choose a colour. Any stored map is safe under it.
//
//   x   2  4                     204 207
//       +--+---------------------+--+      0
//       |  |  ramp, entry i      |  |
//       |  |  at 4 + i           |  |
//       +--+---------------------+--+     18, the bar's height
//          ^                     ^
//         [ ]  markers at        [ ]      20 to 29
//              4 + position
class GradientStrip : public ControlPane {
 public:
  // The panel holds the map that the strip works on, and outlives the strip.
  GradientStrip(GradientPanel* ownerPanel, const Rect& initialBounds, int32_t newBarHeight);

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  void OnMouseDown(WindowContext* context, const Point& point) override;
  void OnMouseUp(WindowContext* context, const Point& point) override;
  void DragMove(WindowContext* context, const Point& point) override;

  // A control that is a GradientListener; it is forgotten when it is deleted.
  template <typename Listener>
  void AddListener(Listener& listener) {
    listeners.push_back({&listener, ControlWatch(&listener)});
  }

  // Marks the strip for a repaint and tells the listeners, which may delete it. Tells whether it is
  // still there.
  bool PublishChange();

 private:
  struct ListeningControl {
    GradientListener* listener;
    ControlWatch control;
  };

  int32_t FindStop(const GradientView& view, const Point& point) const;
  void PressStop(GradientView& view, int32_t index);
  void EditColor(GradientView& view, int32_t index);
  void PressFreeSpace(GradientView& view, int32_t x);
  void DragStop(GradientView& view, const Point& point);
  void PaintRamp(const GradientView& view, const PaintArea& area, int32_t shownOpacity,
                 ImageBuffer& buffer) const;
  void PaintMarkers(const GradientView& view, const PaintArea& area, int32_t shownOpacity,
                    ImageBuffer& buffer) const;

  GradientPanel* panel;
  int32_t barHeight;
  int32_t activeStop = -1;  // the one that is dragged, -1 for none
  Point lastPoint;
  std::vector<ListeningControl> listeners;
  // Of the stop that is dragged, also while it is off the strip.
  float heldRed = 0.0F;
  float heldGreen = 0.0F;
  float heldBlue = 0.0F;
};
