// The title that a control of its own kind keeps beside what else it is.
#pragma once

#include <string>
#include <utility>

class TitleString {
 public:
  TitleString() = default;
  explicit TitleString(std::string newTitle) : title(std::move(newTitle)) {}
  virtual ~TitleString() = default;

  virtual void SetTitle(const std::string& newTitle) { title = newTitle; }
  virtual const std::string& GetTitle() const { return title; }

 private:
  std::string title;
};
