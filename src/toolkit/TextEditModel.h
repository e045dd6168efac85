// A line of text being edited: its caret, its selection, and what keys and the mouse do to them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Places count bytes from the text's begin; those that are given are held to the text. Any bytes
// are text, up to a 0. Keys pass over the bytes of one UTF-8 character at once.
class TextEditModel {
 public:
  // The caret goes to the end, and nothing is selected.
  void SetText(std::string_view newText);
  const std::string& Text() const { return text; }

  int32_t Length() const { return static_cast<int32_t>(text.size()); }
  int32_t Caret() const { return caret; }
  // From the caret to the other end of the selection; negative where that lies before it.
  int32_t Selection() const { return selection; }
  int32_t SelectionStart() const { return selection < 0 ? caret + selection : caret; }
  int32_t SelectionEnd() const { return selection < 0 ? caret : caret + selection; }

  void PlaceCaret(int32_t place);  // nothing is selected then
  void SelectTo(int32_t place);    // from the caret, which stays
  void SelectAll();
  // To that end of the selection; without one, past one character.
  void MoveLeft();
  void MoveRight();

  // In place of what is selected. Inserts as much as the text has room for below `mostBytes`.
  void Insert(std::string_view inserted, int32_t mostBytes);
  void EraseSelection();
  // The selection; without one, the character before the caret.
  void EraseBackward();

 private:
  int32_t PlaceBefore(int32_t place) const;
  int32_t PlaceAfter(int32_t place) const;

  std::string text;
  int32_t caret = 0;
  int32_t selection = 0;
};

// The place in a text at a coordinate. Going left from the end, a character is passed as long as x
// is at or left of its left edge + 1 + half its width.
//
// edges   the left edge of each byte and, last, the right edge of the text; empty gives 0
int32_t PlaceAtX(const std::vector<int32_t>& edges, int32_t x);
