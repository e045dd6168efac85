// The title of a control that has one.
#pragma once

#include <string>
#include <utility>

class TitleString {
 public:
  TitleString() = default;
  explicit TitleString(std::string newTitle) : title(std::move(newTitle)) {}
  TitleString(const TitleString&) = delete;
  TitleString& operator=(const TitleString&) = delete;
  virtual ~TitleString() = default;

  // Any bytes; what follows a 0 isn't shown.
  virtual void SetTitle(const std::string& newTitle) { title = newTitle; }
  virtual const std::string& GetTitle() const { return title; }

 private:
  std::string title;
};
