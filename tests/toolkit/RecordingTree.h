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
  void ShowCursor(bool /*show*/) override {}
  void SetCursor(int32_t id) override { cursors.push_back(id); }
  void SetMousePosition(const Point& /*point*/) override {}
  void SetScreenMousePosition(const Point& /*point*/) override {}
  Point GetScreenMousePosition() const override { return {}; }

  std::vector<int32_t> cursors;
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
    stage.Hear(*this, "Paint");
  }
  void PaintOverlay(const Rect& /*rect*/, ImageBuffer& /*buffer*/,
                    const Point& /*position*/) override {
    stage.Hear(*this, "PaintOverlay");
  }
  bool IsOpaqueOver(const Rect& rect) const override {
    return opaque && UnionOf(this->GetLocalBounds(), rect) == this->GetLocalBounds();
  }
  void OnMouseDown(WindowContext* /*context*/, const Point& point) override {
    lastPoint = point;
    if (pressMode != kTrackPress) this->SetTrackingMode(pressMode);
    stage.Hear(*this, "OnMouseDown");
  }
  void OnRightMouseDown(WindowContext* /*context*/, const Point& point) override {
    lastPoint = point;
    stage.Hear(*this, "OnRightMouseDown");
  }
  void OnMouseDrag(WindowContext* /*context*/, const Point& point) override {
    lastPoint = point;
    stage.Hear(*this, "OnMouseDrag");
  }
  void OnMouseUp(WindowContext* /*context*/, const Point& point) override {
    lastPoint = point;
    stage.Hear(*this, "OnMouseUp");
  }
  void OnDragMoved() override { stage.Hear(*this, "OnDragMoved"); }
  void OnIdle(WindowContext* /*context*/) override { stage.Hear(*this, "OnIdle"); }
  int32_t GetCursorAt(WindowContext* /*context*/, const Point& point,
                      const Modifiers& /*modifiers*/) override {
    lastPoint = point;
    const int32_t answer = cursor;
    stage.Hear(*this, "GetCursorAt");
    return answer;
  }
  void OnMouseEnter() override {
    Base::OnMouseEnter();
    stage.Hear(*this, "OnMouseEnter");
  }
  void OnMouseLeave() override {
    Base::OnMouseLeave();
    stage.Hear(*this, "OnMouseLeave");
  }
  void OnFocusGained() override { stage.Hear(*this, "OnFocusGained"); }
  void OnFocusLost() override { stage.Hear(*this, "OnFocusLost"); }
  bool OnKeyDown(WindowContext* /*context*/, int32_t /*key*/, const Modifiers& /*keys*/) override {
    stage.Hear(*this, "OnKeyDown");
    return true;
  }
  void EndTracking() override {
    Base::EndTracking();
    stage.Hear(*this, "EndTracking");
  }
  bool SyncFromParameters() override {
    stage.Hear(*this, "SyncFromParameters");
    return true;
  }
  bool AnyParameterChanged() const override { return parameterChanged; }
  void SetState(int32_t newState) override {
    Base::SetState(newState);
    stage.Hear(*this, "SetState");
  }
  void SetDirty(bool newDirty) override {
    Base::SetDirty(newDirty);
    stage.Hear(*this, "SetDirty");
  }
  void OnBoundsAnimationDone() override { stage.Hear(*this, "OnBoundsAnimationDone"); }
  void OnOpacityAnimationDone() override { stage.Hear(*this, "OnOpacityAnimationDone"); }
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
  void OnCaptureGained(ControlPane* /*control*/) override { stage.Hear(*this, "OnCaptureGained"); }
  void OnCaptureLost(ControlPane* /*control*/) override { stage.Hear(*this, "OnCaptureLost"); }
  void OnFocusChanged(ControlPane* /*control*/) override { stage.Hear(*this, "OnFocusChanged"); }
  void OnChildRemoved(ControlPane* control) override {
    CustomPanel::OnChildRemoved(control);
    stage.Hear(*this, "OnChildRemoved");
  }
  bool MouseDownAt(const Point& point) { return MouseDown(point, {}, false, kLeftButton); }

  using TopControlPane::hoverOwner, TopControlPane::hoverSet;

  RecordingWindow window;
};
