// What all controls with a line of text to edit share: its place, its caret's blinking, its look.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "drawing/ColorBGRA.h"
#include "drawing/Fonts.h"
#include "drawing/ImageBuffer.h"
#include "drawing/Rect.h"
#include "toolkit/TextEditModel.h"

// How a field shows that it is disabled, has the focus, is pressed, or is under the pointer; the
// first that holds.
struct FieldLook {
  bool enabled = true;
  bool focused = false;
  bool pressed = false;
  bool over = false;
};

struct FieldColors {
  ColorBGRA text;
  ColorBGRA back;
  ColorBGRA frame;
};

FieldColors ColorsOfField(const FieldLook& look);

// A rounded field with its frame, in logical pixels.
void DrawFieldBox(ImageBuffer& buffer, const Rect& box, const FieldColors& colors,
                  const Rect& clip);

enum EditKey : int32_t {
  kKeyBackspace = 8,
  kKeyReturn = 13,
  kKeyEscape = 27,
  kKeyLeft = 28,
  kKeyRight = 29,
  kKeyUp = 30,
  kKeyDown = 31,
  kKeyDelete = 127,
};

// The left edge of each byte of a text in logical pixels from its begin, and last its right edge.
std::vector<int32_t> TextEdges(const std::string& text, const Font& font);

// The text stands at the left of its room. One that is wider shows its begin, or in a field with
// the focus as much as brings the caret into the room.
class TextField {
 public:
  static constexpr int32_t kBlinkPeriodMs = 400;
  static constexpr int32_t kPadding = 4;  // logical pixels between the box and the text

  explicit TextField(const Font& textFont) : font(&textFont) {}

  TextEditModel& Edit() { return edit; }
  const TextEditModel& Edit() const { return edit; }

  // Moves or erases with one of the keys Backspace, Delete, Left and Right. False for any other.
  bool TakeEditKey(int32_t key);
  // The caret goes under the mouse; `extend` selects from where it was.
  void Press(int32_t x, const Rect& box, bool extend);
  void DragTo(int32_t x, const Rect& box);

  void RestartBlink();
  // Tells whether the caret has to be painted again.
  bool Blink();

  // The text, and where the field has the focus its selection and caret. All logical pixels.
  void DrawText(ImageBuffer& buffer, const Rect& box, const FieldLook& look,
                const Rect& clip) const;
  // Where the text as it is drawn ends.
  int32_t TextEnd(const Rect& box, bool focused) const;

 private:
  int32_t PlaceUnder(int32_t x, const Rect& box) const;
  int32_t Scroll(const std::vector<int32_t>& edges, const Rect& box, bool focused) const;

  TextEditModel edit;
  const Font* font;
  uint32_t blinkTimeMs = 0;
  bool blinkOn = true;
};
