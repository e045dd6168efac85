// Controls that tell what happens to them, a window that writes down what it is told, and a clock
// that is moved by hand.
#pragma once

#include <algorithm>
#include <functional>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/Clock.h"
#include "toolkit/CustomPanel.h"
#include "toolkit/RectAlgebra.h"

struct HandClock : public Clock {
  HandClock() { UseClock(this); }
  ~HandClock() override { UseClock(nullptr); }
  uint32_t Milliseconds() override { return now; }
  void Sleep(int32_t milliseconds) override { now += static_cast<uint32_t>(milliseconds); }

  uint32_t now = 0;
};

struct RecordingWindow : public WindowContext {
  Rect GetClientRect() const override { return {}; }
  Point GetMousePosition() const override { return {}; }
  Modifiers GetModifiers() const override { return {}; }
  void ShowCursor(bool show) override { pointerShown = show; }
  void SetCursor(int32_t id) override { cursors.push_back(id); }
  void SetMousePosition(const Point& /*point*/) override {}
  void SetScreenMousePosition(const Point& /*point*/) override {}
  Point GetScreenMousePosition() const override { return {}; }

  std::vector<int32_t> cursors;
  bool pointerShown = false;
};

// Who is there, what was heard, and what to do when a hook is called.
struct Stage {
  std::string heard;  // "id.Hook " for each call
  bool listens = true;
  std::function<void(ControlPane&, const char*)> onHook;
  std::vector<ControlPane*> alive;  // in the order of their making

  bool IsAlive(const ControlPane* pane) const {
    return std::find(alive.begin(), alive.end(), pane) != alive.end();
  }
  void Forget(const ControlPane* pane) {
    alive.erase(std::prev(std::find(alive.rbegin(), alive.rend(), pane).base()));
  }
  std::string Heard() { return std::exchange(heard, {}); }
  void Hear(ControlPane& pane, const char* hook) {
    if (listens) heard += std::to_string(pane.GetId()) + '.' + hook + ' ';
    if (onHook) onHook(pane, hook);
  }
};

// Any control, with each of its hooks told to the stage.
template <typename Base>
class Recording : public Base {
 public:
  template <typename... Arguments>
  explicit Recording(Stage& heardBy, Arguments... arguments) : Base(arguments...), stage(heardBy) {
    stage.alive.push_back(this);
  }
  ~Recording() override { stage.Forget(this); }

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override {
    const Rect area = MovedBy(AtOrigin(rect), position.x, position.y);
    if (color.alpha != 0) buffer.FillRect(area, color, 256, &area);
    Hear("Paint");
  }
  void PaintOverlay(const Rect&, ImageBuffer&, const Point&) override { Hear("PaintOverlay"); }
  bool IsOpaqueOver(const Rect& rect) const override {
    return opaque && UnionOf(this->GetLocalBounds(), rect) == this->GetLocalBounds();
  }
  void OnMouseDown(WindowContext*, const Point& point) override {
    if (pressMode != kTrackPress) this->SetTrackingMode(pressMode);
    HearAt("OnMouseDown", point);
  }
  void OnRightMouseDown(WindowContext*, const Point&) override { Hear("OnRightMouseDown"); }
  void OnMouseDrag(WindowContext*, const Point& at) override { HearAt("OnMouseDrag", at); }
  void OnMouseUp(WindowContext*, const Point& at) override { HearAt("OnMouseUp", at); }
  void OnDragMoved() override { Hear("OnDragMoved"); }
  void OnIdle(WindowContext*) override { Hear("OnIdle"); }
  int32_t GetCursorAt(WindowContext*, const Point&, const Modifiers&) override {
    const int32_t answer = cursor;
    Hear("GetCursorAt");
    return answer;
  }
  void OnMouseEnter() override {
    Base::OnMouseEnter();
    Hear("OnMouseEnter");
  }
  void OnMouseLeave() override {
    Base::OnMouseLeave();
    Hear("OnMouseLeave");
  }
  void OnFocusGained() override { Hear("OnFocusGained"); }
  void OnFocusLost() override { Hear("OnFocusLost"); }
  bool OnKeyDown(WindowContext*, int32_t, const Modifiers&) override { return Hear("OnKeyDown"); }
  void EndTracking() override {
    Base::EndTracking();
    Hear("EndTracking");
  }
  bool SyncFromParameters() override { return Hear("SyncFromParameters"); }
  bool AnyParameterChanged() const override { return parameterChanged; }
  void SetState(int32_t newState) override {
    Base::SetState(newState);
    Hear("SetState");
  }
  void SetDirty(bool newDirty) override {
    Base::SetDirty(newDirty);
    Hear("SetDirty");
  }
  void OnBoundsAnimationDone() override { Hear("OnBoundsAnimationDone"); }
  void OnOpacityAnimationDone() override { Hear("OnOpacityAnimationDone"); }
  bool IsPopup() const override { return popup; }

  using Base::minWidth, Base::minHeight, Base::maxWidth, Base::maxHeight, Base::resizeZone;

  Stage& stage;
  ColorBGRA color;
  bool opaque = false;
  bool popup = false;
  bool parameterChanged = false;
  int32_t cursor = 0;
  int32_t pressMode = kTrackPress;
  Point lastPoint;

 protected:
  bool Hear(const char* hook) {
    stage.Hear(*this, hook);
    return true;
  }
  void HearAt(const char* hook, const Point& point) {
    lastPoint = point;
    Hear(hook);
  }
};

using Pane = Recording<ControlPane>;

class Panel : public Recording<CustomPanel> {
 public:
  Panel(Stage& heardBy, const Rect& place) : Recording(heardBy, place, 0) {
    windowContext = &window;
  }

  Pane& Add(ControlPane& parent, const Rect& place, int32_t paneId) {
    auto* pane = new Pane(stage, &parent, place);
    pane->SetId(paneId);
    parent.AddChild(pane, true);
    return *pane;
  }
  void OnCaptureGained(ControlPane*) override { Hear("OnCaptureGained"); }
  void OnCaptureLost(ControlPane*) override { Hear("OnCaptureLost"); }
  void OnFocusChanged(ControlPane*) override { Hear("OnFocusChanged"); }
  void OnChildRemoved(ControlPane* control) override {
    CustomPanel::OnChildRemoved(control);
    Hear("OnChildRemoved");
  }
  bool MouseDownAt(const Point& point) { return MouseDown(point, {}, false, kLeftButton); }

  using TopControlPane::hoverOwner;

  RecordingWindow window;
};
