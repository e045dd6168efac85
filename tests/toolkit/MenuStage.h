// A root with a context menu, a clock that doesn't wait, and all who hear of a choice.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "toolkit/Clock.h"
#include "toolkit/PopupContextMenu.h"
#include "toolkit/SharedBuffers.h"
#include "toolkit/TopControlPane.h"
#include "tools/specimens/StillWindow.h"

using Strings = std::vector<std::string>;

class MenuRoot : public TopControlPane {
 public:
  MenuRoot() : TopControlPane({100, 50, 500, 650}) { SetWindowContext(&window); }
  void NotifyReleased(ControlPane* /*source*/) override { hear("released"); }
  void PaintOverlay(const Rect& /*rect*/, ImageBuffer& /*buffer*/,
                    const Point& /*position*/) override {
    hear("painted");
  }

  std::function<void(const char*)> hear = [](const char*) {};
  StillWindow window;
};

struct MenuStage : public Clock, public PopupContextMenuDelegate {
  explicit MenuStage(const Strings& labels) {
    UseClock(this);
    EnsureScreenBuffer(400, 600);
    holder->EnsureMenu();
    List()->RebuildItems(&labels);
    root->hear = [this](const char* what) { Hear(what); };
  }
  ~MenuStage() override {
    root.reset();
    DestroyScreenBuffer();
    UseClock(nullptr);
  }

  uint32_t Milliseconds() override { return 0; }
  void Sleep(int32_t milliseconds) override {
    Hear(std::to_string(milliseconds) + " ms over " + std::to_string(List()->GetHoverIndex()));
  }
  void OnPopupContextMenu(PopupContextMenu* menu, ControlPane* list, int32_t index) override {
    EXPECT_TRUE(menu == holder.get() && list == List());
    Hear("chosen " + std::to_string(index));
  }
  void Hear(const std::string& what) {
    heard.push_back(what);
    if (released) onHeard();
  }

  MenuControl* List() const { return holder->GetList(); }
  // A row's top left, global; of row -1, the list's, where its margin is.
  Point On(int32_t row) const {
    const Rect rect = List()->GetRowRect(row);
    Point point = {rect.left, rect.top};
    List()->LocalToGlobalPoint(&point);
    return point;
  }
  // Opens the list, presses, drags and releases over rows. What is heard begins at the release.
  void Choose(int32_t press, int32_t drag, int32_t release) {
    holder->ShowAt(*root, {120, 60}, {});
    const Point releasePoint = On(release);
    root->MouseDown(On(press), {}, false, kLeftButton);
    root->MouseDrag(On(drag), 0, 0, {}, kLeftButton);
    repaints = heard.size();
    heard.clear();
    released = true;
    root->MouseUp(releasePoint, kLeftButton);
  }

  bool released = false;
  size_t repaints = 0;  // before the release
  Strings heard;
  std::function<void()> onHeard = [] {};
  std::unique_ptr<MenuRoot> root = std::make_unique<MenuRoot>();
  std::unique_ptr<PopupContextMenu> holder = std::make_unique<PopupContextMenu>(nullptr, this);
};
