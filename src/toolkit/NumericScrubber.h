// A number that is typed like text and dragged like a dial.
#pragma once

#include <cstdint>
#include <set>
#include <string>

#include "toolkit/FieldControl.h"
#include "toolkit/NumericScrubberListener.h"

// Bits of the flags.
enum ScrubberFlag : uint32_t {
  kScrubberBare = 1,  // no box while it is neither under the pointer nor in use
};

// Shows and sets the first parameter that is added. A click, or a press held still for 0.6 s,
// begins typing; a drag steps the value without limit while the pointer is hidden.
class NumericScrubber : public FieldControl {
 public:
  static constexpr int32_t kMaxDigits = 8;
  static constexpr int32_t kHoldMs = 600;

  // scrubberFlags      ScrubberFlag bits
  // textFont, newUnitFont   null means FontDefault
  // inFocusRing        whether Tab reaches it in the owner's tree
  NumericScrubber(ControlPane* ownerPane, const Rect& initialBounds, uint32_t scrubberFlags = 0,
                  const Font* textFont = nullptr, const Font* newUnitFont = nullptr,
                  bool inFocusRing = false);

  void OnMouseDown(WindowContext* context, const Point& point) override;
  void OnMouseDrag(WindowContext* context, const Point& point) override;
  void OnMouseUp(WindowContext* context, const Point& point) override;
  void OnIdle(WindowContext* context) override;
  void OnFocusGained() override;
  void OnFocusLost() override;
  bool OnKeyDown(WindowContext* context, int32_t key, const Modifiers& modifiers) override;
  // 1 is the cursor of text, 5 that of a drag.
  int32_t GetCursorAt(WindowContext* context, const Point& point,
                      const Modifiers& modifiers) override;
  bool SyncFromParameters() override;
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;

  // Not owned; each is told once.
  virtual void AddListener(NumericScrubberListener* listener);
  virtual void RemoveListener(NumericScrubberListener* listener);
  // Whether a key's code is part of a number: a digit, "-" or ".".
  virtual bool IsValidChar(int32_t code) const;
  // Drawn behind the number.
  virtual void SetUnitText(const std::string& text);

 private:
  void PressTyping(const Point& point);
  void PressDial(WindowContext* context);
  void Recentre(WindowContext& context) const;
  void GiveBackPointer(WindowContext* context);
  void TypeChar(char typed);
  void StepValue(int32_t steps, const Modifiers& modifiers);
  bool TakeTypedText();
  void ShowParameter();
  FieldLook Look();
  template <typename Tell>
  bool TellListeners(Tell tell);

  std::string unitText;
  const Font* unitFont;
  uint32_t flags;
  bool pressPending = false;  // pressed and not dragged yet
  bool dialing = false;       // the pointer is hidden, from the press to the release
  bool holdArmed = false;     // the idle pass has seen the press
  uint32_t holdStartMs = 0;
  Point pressPosition;  // of the pointer, in the window
  std::set<NumericScrubberListener*> listeners;
};
