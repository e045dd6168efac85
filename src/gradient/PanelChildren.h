// Putting controls on a panel as it is built.
#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "toolkit/ControlPane.h"

// The panel owns the child from here on.
template <typename Child>
Child* AddTo(ControlPane& panel, std::unique_ptr<Child> child) {
  panel.AddChild(child.get(), true);
  return child.release();
}

// text   of the button in both of its states
template <typename Button>
Button* AddButton(ControlPane& panel, const Rect& place, int32_t id, const char* text) {
  auto button = std::make_unique<Button>(&panel, place, nullptr, false, nullptr);
  button->SetId(id);
  button->SetLabels(text, text);
  return AddTo(panel, std::move(button));
}
