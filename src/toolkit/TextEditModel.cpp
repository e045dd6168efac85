// A line of text being edited: its caret, its selection, and what keys and the mouse do to them.
#include "toolkit/TextEditModel.h"

#include <algorithm>
#include <limits>

namespace {

constexpr size_t kMostBytes = std::numeric_limits<int32_t>::max();

// The second and later bytes of a UTF-8 character.
bool IsContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

}  // namespace

void TextEditModel::SetText(std::string_view newText) {
  text = newText.substr(0, std::min(newText.find('\0'), kMostBytes));
  PlaceCaret(Length());
}

void TextEditModel::PlaceCaret(int32_t place) {
  caret = std::clamp(place, 0, Length());
  selection = 0;
}

void TextEditModel::SelectTo(int32_t place) {
  selection = std::clamp(place, 0, Length()) - caret;
}

void TextEditModel::SelectAll() {
  caret = 0;
  selection = Length();
}

void TextEditModel::MoveLeft() {
  PlaceCaret(selection != 0 ? SelectionStart() : PlaceBefore(caret));
}

void TextEditModel::MoveRight() {
  PlaceCaret(selection != 0 ? SelectionEnd() : PlaceAfter(caret));
}

void TextEditModel::Insert(std::string_view inserted, int32_t mostBytes) {
  EraseSelection();
  const auto room = static_cast<size_t>(std::max<int64_t>(0, int64_t{mostBytes} - Length()));
  inserted = inserted.substr(0, std::min(inserted.find('\0'), room));
  text.insert(static_cast<size_t>(caret), inserted);
  caret += static_cast<int32_t>(inserted.size());
}

void TextEditModel::EraseSelection() {
  const int32_t start = SelectionStart();
  text.erase(static_cast<size_t>(start), static_cast<size_t>(SelectionEnd() - start));
  PlaceCaret(start);
}

void TextEditModel::EraseBackward() {
  if (selection == 0) SelectTo(PlaceBefore(caret));
  EraseSelection();
}

int32_t TextEditModel::PlaceBefore(int32_t place) const {
  if (place > 0) --place;
  while (place > 0 && IsContinuation(text[static_cast<size_t>(place)])) --place;
  return place;
}

int32_t TextEditModel::PlaceAfter(int32_t place) const {
  if (place < Length()) ++place;
  while (place < Length() && IsContinuation(text[static_cast<size_t>(place)])) ++place;
  return place;
}

int32_t PlaceAtX(const std::vector<int32_t>& edges, int32_t x) {
  if (edges.empty()) return 0;
  size_t place = edges.size() - 1;
  while (place > 0) {
    const int64_t left = edges[place - 1];
    if (x > left + 1 + (edges[place] - left) / 2) break;
    --place;
  }
  return static_cast<int32_t>(place);
}
