// The part of the host's window where an effect's own row stands, as the callbacks of an event find
// it: what is to be drawn anew, the pointer, and what the user answers.
#pragma once

#include <deque>
#include <optional>

#include "AE_Effect.h"
#include "AE_EffectUI.h"

class Pane {
 public:
  // rowFrame   where the row stands, in the pane's coordinates
  explicit Pane(const PF_UnionableRect& rowFrame);
  Pane(const Pane&) = delete;
  Pane& operator=(const Pane&) = delete;

  PF_ContextH Context() { return &contextAddress; }
  const PF_UnionableRect& Frame() const { return frame; }

  // Adds a rectangle to what is to be drawn anew, or the whole row for null. What lies outside of
  // the row is left out.
  void Invalidate(const PF_Rect* rect);

  bool IsInvalid() const { return invalid.has_value(); }

  // What is to be drawn anew, which is then in order; the whole row where nothing is.
  PF_UnionableRect TakeInvalid();

  PF_Point mouse{};                                       // in the pane's coordinates
  PF_CursorType cursor = 0;                               // as PF_SetCursor put it; 0: never
  std::deque<std::optional<PF_PixelFloat>> colorAnswers;  // of the colour pickers to come

 private:
  PF_UnionableRect frame;
  std::optional<PF_UnionableRect> invalid;
  PF_Context context{};
  PF_Context* contextAddress = &context;
};
