// A button: it takes the press, the drag out and in again, and the release, and looks plain.
#pragma once

#include <cstdint>
#include <string>

#include "drawing/ColorBGRA.h"
#include "drawing/Fonts.h"
#include "drawing/ImageBuffer.h"
#include "drawing/Rect.h"
#include "toolkit/ButtonColors.h"
#include "toolkit/ControlPane.h"
#include "toolkit/ImageSlots.h"
#include "toolkit/PaintArea.h"

// The owner hears of the press at once (NotifyPressed), and of a release inside (NotifyReleased);
// it may delete the button in either. A toggle changes with each press and tells of every release.
class ButtonControl : public ControlPane {
 public:
  // strip       two states side by side, the pressed one at the right; shown alone where it is set.
  //             Not owned, may be null. It is stretched on a screen of another scale; on one of the
  //             same scale its place counts in physical pixels.
  // labelFont   not owned; null for FontDefault
  ButtonControl(ControlPane* ownerPane, const Rect& initialBounds, const ImageBuffer* strip,
                bool toggle, const Font* labelFont);

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  void OnMouseDown(WindowContext* context, const Point& point) override;
  void OnMouseDrag(WindowContext* context, const Point& point) override;
  void OnMouseUp(WindowContext* context, const Point& point) override;
  void OnMouseEnter() override;
  void OnMouseLeave() override;
  void OnFocusGained() override;
  void OnFocusLost() override;

  // Writes the label of the state in a rectangle of logical pixels.
  //
  // alignment   0 left, 1 centred, 2 right
  virtual void DrawLabel(const Rect& rect, const Rect& clip, const ColorBGRA& color,
                         ImageBuffer& buffer, int32_t alignment);
  // Physical pixels between the label's characters, in fonts for screens of a higher resolution and
  // in the others.
  virtual void SetLabelTracking(int32_t scaled, int32_t normal);
  virtual void SetLabelTrackingBoth(int32_t value);

  // An empty label reads "On" or "Off".
  void SetLabels(const std::string& whenPressed, const std::string& otherwise);
  void SetLabelAlignment(int32_t alignment);
  void SetLabelInsets(int32_t left, int32_t right);
  // Outside the states nothing changes.
  void SetStateColors(int32_t buttonState, const StateColors& colors);
  // A picture under the label in place of the fill; owned only if SetOwnsStateImages said so.
  void SetStateImage(int32_t buttonState, ImageBuffer* image);
  void SetOwnsStateImages(bool owns) { stateImages.SetOwned(owns); }
  // radius      of the corners; 0 makes them square
  // thickness   of the frame, doubled while the button has the focus; 0 for none
  void SetFrame(float radius, int32_t thickness);

  // Down; of a toggle: on.
  bool IsPressed() const { return pressed; }

 protected:
  // Under the pointer, and not since before the last press.
  bool ShowsHover() const { return mouseOver && !hoverSuppressed; }
  bool HasFocus();
  PaintArea AreaToPaint(const Rect& rect, const Point& position) const;
  // Tells whether there is a strip, which is then all that the button shows.
  bool PaintStrip(const PaintArea& area, ImageBuffer& buffer) const;

  const ImageBuffer* stripImage;
  const Font* font;
  int32_t labelAlignment = 1;
  bool pressed = false;
  bool tracking = false;  // from the press to the release
  bool isToggle;
  bool hoverSuppressed = false;  // by a press, until the pointer leaves
  std::string onLabel;
  std::string offLabel;
  ImageSlots<ImageBuffer> stateImages{false};
  ButtonColors stateColors = DefaultButtonColors();
  float cornerRadius = 0.0F;
  int32_t frameThickness = 1;
  int32_t labelInsetLeft = 0;
  int32_t labelInsetRight = 0;
  int32_t trackingScaled = 0;
  int32_t trackingNormal = 0;

 private:
  struct Shape {
    ColorBGRA fill;
    ColorBGRA frame;
    int32_t thickness = 0;
    bool isFilled = false;
  };

  // Stores a value; one that differs wants a repaint.
  template <typename Value>
  void Change(Value& field, const Value& value);
  int32_t ShownState() const;
  int32_t ShapeOpacity() const;
  int32_t ImageOpacity() const;
  void PaintShape(const PaintArea& area, ImageBuffer& buffer, const Shape& shape) const;
  void PaintRoundShape(const PaintArea& area, ImageBuffer& buffer, const Shape& shape) const;
  void PaintSquareShape(const PaintArea& area, ImageBuffer& buffer, const Shape& shape) const;
};
