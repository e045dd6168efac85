// A line of text that can be edited.
#pragma once

#include <cstdint>
#include <string>

#include "toolkit/FieldControl.h"
#include "toolkit/TitleString.h"

// A press takes the focus and begins editing; Return, Tab or a press elsewhere keeps what was
// edited, and Escape brings the text from before back. The owner hears of a text that was kept and
// differs (NotifyReleased), and may delete the editor then. A first parameter, if one is added,
// gives and takes the text. The title stands in place of an empty text.
class TextEditor : public FieldControl, public TitleString {
 public:
  static constexpr int32_t kMostBytes = 255;  // that can be typed

  // textFont   null means FontDefault
  TextEditor(ControlPane* ownerPane, const Rect& initialBounds, const Font* textFont = nullptr);

  void OnMouseDown(WindowContext* context, const Point& point) override;
  void OnMouseDrag(WindowContext* context, const Point& point) override;
  void OnMouseUp(WindowContext* context, const Point& point) override;
  void OnFocusGained() override;
  void OnFocusLost() override;
  bool OnKeyDown(WindowContext* context, int32_t key, const Modifiers& modifiers) override;
  int32_t GetCursorAt(WindowContext* context, const Point& point,
                      const Modifiers& modifiers) override;
  bool SyncFromParameters() override;
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  void SetTitle(const std::string& newTitle) override;

  // Any bytes, up to a 0. Nobody is told.
  void SetText(const std::string& text);
  // A text that can be edited at once, all of it selected.
  void OfferText(const std::string& text);

 private:
  bool TakeText();

  const Font* font;
  std::string textBefore;  // of the focus
  bool pressed = false;
};
