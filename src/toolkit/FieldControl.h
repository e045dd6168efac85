// What controls with a line of text to edit have in common.
#pragma once

#include <string>

#include "toolkit/ControlPane.h"
#include "toolkit/TextField.h"

class TopControlPane;

// Return ends the editing and keeps what was edited, Escape ends it without. The caret blinks while
// the control has the focus. A first parameter, if one is added, gives the text.
class FieldControl : public ControlPane {
 public:
  // textFont   null means FontDefault
  FieldControl(ControlPane* ownerPane, const Rect& initialBounds, const Font* textFont);

  void OnMouseEnter() override;
  void OnMouseLeave() override;
  void OnIdle(WindowContext* context) override;
  bool OnKeyUp(WindowContext* context, int32_t key, const Modifiers& modifiers) override;
  void AddParameter(Parameter* parameter) override;
  void SetEnabled(bool enabled) override;

  virtual const std::string& GetText() const { return field.Edit().Text(); }
  virtual bool HasFocus();

  const TextEditModel& Edit() const { return field.Edit(); }

 protected:
  // Null where the control stands alone.
  TopControlPane* Root();
  void TakeFocus();
  // Whether a focus that goes keeps what was edited.
  bool KeepsEdit();

  TextField field;
};
