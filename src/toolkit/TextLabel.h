// Fixed text on one line.
#pragma once

#include <cstdint>
#include <string>

#include "drawing/ColorBGRA.h"
#include "drawing/Fonts.h"
#include "drawing/Labeler.h"
#include "toolkit/ControlPane.h"
#include "toolkit/PaintArea.h"

class TextLabel : public ControlPane {
 public:
  // textFont   null means FontDefault
  TextLabel(ControlPane* ownerPane, const Rect& initialBounds, std::string labelText,
            const Font* textFont = nullptr);

  void SetEnabled(bool enabled) override;
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;

  // Any bytes; what follows a 0 isn't shown, and what is wider than the control is cut.
  virtual void SetText(const std::string& newText);
  const std::string& GetText() const { return text; }
  void SetAlignment(TextAlignment newAlignment);

 protected:
  // Hook: of an enabled label.
  virtual ColorBGRA TextColor() const;
  // The look that fits the state, with the font set.
  TextStyle StyleFor(const Rect& clip) const;

  const Font& TextFont() const { return *font; }
  TextAlignment Alignment() const { return alignment; }

 private:
  std::string text;
  const Font* font;
  TextAlignment alignment = TextAlignment::kLeft;
};
