// A view on a content that may be larger, with a scroll bar for each direction.
#pragma once

#include <array>

#include "toolkit/ControlPane.h"
#include "toolkit/ControlWatch.h"
#include "toolkit/ScrollBar.h"
#include "toolkit/StockListener.h"
#include "toolkit/ViewPane.h"

enum class ScrollAxis : int32_t { kHorizontal = 0, kVertical = 1 };

// When a bar is shown.
enum ScrollBarPolicy : int32_t {
  kBarAlways = 0,
  kBarAsNeeded = 2,
};

class ScrollPane : public ControlPane, public StockListener {
 public:
  // Widths of the bars, the vertical one at the right and the horizontal one at the bottom; an axis
  // whose width is 0 or less has no bar.
  ScrollPane(ControlPane* ownerPane, const Rect& initialBounds, int32_t verticalBarWidth,
             int32_t horizontalBarWidth);
  ~ScrollPane() override;

  void SetBounds(const Rect& newBounds) override;
  void SetEnabled(bool enabled) override;
  void OnControlChanged(ControlPane* source) override;

  // As of ViewPane; the pane is laid out anew.
  bool SetContent(ControlPane* newContent);
  // Another value than the two changes nothing.
  void SetPolicy(ScrollAxis axis, int32_t policy);
  // Shows and hides the bars and gives view and bars their places. To be called when the content
  // has another size.
  void LayOut();
  // Shows the content from this point on, held to what there is; ScrollTo repaints.
  void SetOffset(const Point& offset);
  void ScrollTo(const Point& offset);
  // Null when somebody deleted it.
  ViewPane* GetView() const { return static_cast<ViewPane*>(view.Get()); }
  // Null where there is none; a bar that isn't shown isn't a child.
  ScrollBar* GetBar(ScrollAxis axis) const;
  bool IsBarShown(ScrollAxis axis) const;

 private:
  struct Axis {
    ControlWatch bar;
    int32_t barWidth = 0;
    int32_t policy = kBarAsNeeded;
    bool shown = false;
  };

  void MakeBar(ScrollAxis axis, int32_t width);
  void DecideBars();
  void ShowBar(ScrollAxis axis);
  void PlaceBar(ScrollAxis axis, const Rect& room);
  Axis& Of(ScrollAxis axis) { return axes[static_cast<size_t>(axis)]; }
  const Axis& Of(ScrollAxis axis) const { return axes[static_cast<size_t>(axis)]; }

  ControlWatch view;
  std::array<Axis, 2> axes;
};
