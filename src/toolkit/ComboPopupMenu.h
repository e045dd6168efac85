// A text field with a list of texts to choose from.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "toolkit/PopupTextMenu.h"
#include "toolkit/PopupToggle.h"
#include "toolkit/TextEditor.h"

// The field is edited as any; Up and Down bring the rows of the list into it one after the other.
// A press on the arrow opens the list, or closes it. The owner hears of a text that was kept or
// chosen (NotifyReleased with this as its source), and may delete the control then. An open list
// itself tells the root, as every list does, just before.
class ComboPopupMenu : public PopupTextMenu, public PopupToggle {
 public:
  // font   of the field and the rows; null means FontDefault
  ComboPopupMenu(ControlPane* ownerPane, const Rect& initialBounds, const Font* font = nullptr);

  // "-" is a separator.
  void SetLabels(const std::vector<std::string>& newLabels);
  void SetText(const std::string& text);
  std::string GetText() const;
  // The row in the field; -1 where its text is in none.
  int32_t GetSelectedIndex() const;
  // From the row in the field, past separators; without one from before the first or behind the
  // last. Stops at the ends.
  void MoveSelection(int32_t step);
  void OpenList();

  void OnMenuChosen(PopupEnclosure* chosenMenu, int32_t index) override;
  void NotifyReleased(ControlPane* source) override;
  void OnMouseDown(WindowContext* context, const Point& point) override;
  void OnMouseUp(WindowContext* context, const Point& point) override;
  void OnMouseEnter() override;
  void OnMouseLeave() override;
  void SetBounds(const Rect& newBounds) override;
  void SetEnabled(bool enabled) override;
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;

 private:
  class Field;

  TextEditor* GetField() const;
  void ToggleList();
  bool IsText(const std::string& label) const;

  ControlWatch textField;
  std::vector<std::string> labels;
  bool pressed = false;
};
