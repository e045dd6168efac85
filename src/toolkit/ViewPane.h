// A window on a content that is larger: it shows the part that was moved into it.
#pragma once

#include "toolkit/ControlPane.h"
#include "toolkit/ControlWatch.h"

// The content is a child, so that it is painted and hit only inside the view.
class ViewPane : public ControlPane {
 public:
  using ControlPane::ControlPane;

  // Takes the content over and deletes the one before; null for none. One that can't become a child
  // is left alone: false.
  bool SetContent(ControlPane* newContent);
  ControlPane* GetContent() const;
  // Width and height of the content; none is 0.
  Point ContentSize() const;
  // What of the content stands at the view's top left, held to what the content has. Nothing is
  // repainted.
  void SetOffset(const Point& wanted);
  Point GetOffset() const;

 private:
  ControlWatch content;
};
