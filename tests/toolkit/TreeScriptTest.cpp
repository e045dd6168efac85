// Catches whatever no other test thought of: events and changes in any order, made from outside and
// from inside of hooks, with the tree checked after each.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>

#include "RecordingTree.h"

namespace {

constexpr size_t kMostControls = 14;

class Script {
 public:
  explicit Script(uint32_t seed) : random(seed) {
    stage.listens = false;
    stage.onHook = [this](ControlPane& /*pane*/, const char* /*hook*/) { ActInsideAHook(); };
  }
  ~Script() {
    stage.onHook = nullptr;
    while (!stage.alive.empty()) delete stage.alive.front();
  }

  void Step() {
    clock.now += Below(20);
    if (!stage.IsAlive(root)) StartAnew();
    Below(3) == 0 ? Change() : Send();
  }

  // Null where all is well.
  const char* Fault() {
    if (!stage.IsAlive(root)) return nullptr;
    for (ControlPane* held : {root->GetCapture(), root->GetFocus(), root->hoverOwner.Get()}) {
      if (held != nullptr && !root->Belongs(held)) return "the root holds a control of no tree";
    }
    for (ControlPane* pane : stage.alive) {
      for (int32_t index = 0; index < pane->GetChildCount(); ++index) {
        ControlPane* const child = pane->GetChildAt(index);
        if (!stage.IsAlive(child)) return "a child is gone";
        if (child->GetOwner() != pane) return "a child has another owner";
      }
      ControlPane* const owner = pane->GetOwner();
      if (owner != nullptr && !stage.IsAlive(owner)) return "an owner is gone";
    }
    return nullptr;
  }
  int64_t rootsLost = 0;

 private:
  uint32_t Below(size_t end) { return static_cast<uint32_t>(random() % end); }
  ControlPane& OwnerOf(ControlPane& pane) {
    return pane.GetOwner() != nullptr ? *pane.GetOwner() : pane;
  }
  int32_t AnyState() { return Below(3) == 0 ? static_cast<int32_t>(Below(4)) : kStateNormal; }
  Point AnyPoint() {
    return {static_cast<int32_t>(Below(80)) - 8, static_cast<int32_t>(Below(70)) - 8};
  }
  Rect AnyRect() {
    const Point from = AnyPoint();
    return {from.x, from.y, from.x + static_cast<int32_t>(Below(90)),
            from.y + static_cast<int32_t>(Below(90))};
  }
  ControlPane* Any() { return stage.alive[Below(static_cast<uint32_t>(stage.alive.size()))]; }

  void StartAnew() {
    while (!stage.alive.empty()) delete stage.alive.front();
    root = new Panel(stage, {3, 4, 67, 52});
    ++rootsLost;
  }

  void ActInsideAHook() {
    if (nesting == 2 || Below(6) != 0) return;
    ++nesting;
    Below(4) == 0 ? Send() : Change();
    --nesting;
  }

  void Make() {
    if (stage.alive.size() >= kMostControls) return;
    ControlPane* const owner = Any();
    auto* const pane = new Pane(stage, owner, AnyRect());
    pane->popup = Below(8) == 0;
    pane->opaque = Below(4) == 0;
    pane->cursor = static_cast<int32_t>(Below(5)) - 2;
    pane->pressMode = static_cast<int32_t>(Below(4));
    pane->parameterChanged = Below(8) == 0;
    pane->minWidth = pane->minHeight = 5;
    if (Below(8) != 0) owner->AddChild(pane, Below(2) == 0);
  }

  // Something is done to two controls, which may be one.
  void Change() {
    using C = ControlPane;
    static constexpr void (*kChanges[])(Script&, C&, C&) = {
        [](Script& s, C&, C&) { s.Make(); },
        [](Script& s, C&, C&) { s.Make(); },
        [](Script& s, C&, C&) { s.Make(); },
        [](Script& s, C& a, C&) { &a != s.root || s.Below(6) == 0 ? delete &a : void(); },
        [](Script& s, C& a, C&) { &a != s.root ? s.root->DeleteChild(&a) : void(); },
        [](Script& s, C& a, C&) { s.OwnerOf(a).RemoveChild(&a); },
        [](Script&, C& a, C& b) { a.AddChild(&b, true); },
        [](Script&, C& a, C& b) { a.AddChild(&b, false); },
        [](Script&, C& a, C& b) { a.InsertChild(&b, 1); },
        [](Script&, C& a, C&) { a.MoveToFront(); },
        [](Script&, C& a, C&) { a.MoveToBack(); },
        [](Script& s, C& a, C&) { a.SetStateTree(s.AnyState()); },
        [](Script&, C& a, C&) { a.SetStateTree(kStateNormal); },
        [](Script& s, C& a, C&) { a.SetBounds(s.AnyRect()); },
        [](Script&, C& a, C&) { a.SetDirty(true); },
        [](Script& s, C& a, C&) { a.SetPendingDelete(&a != s.root && s.Below(4) == 0); },
        [](Script& s, C& a, C&) { s.root->SetFocus(&a, true); },
        [](Script& s, C& a, C&) { s.root->AddToFocusRing(&a); },
        [](Script& s, C& a, C&) { s.root->ShowPopup(a.IsPopup() ? &a : nullptr, false, false); },
        [](Script& s, C&, C&) { s.root->HidePopup(); },
        [](Script& s, C& a, C&) { s.Below(8) == 0 ? a.DeleteAllChildren() : void(); },
    };
    if (stage.IsAlive(root)) kChanges[Below(std::size(kChanges))](*this, *Any(), *Any());
  }

  void Send() {
    static constexpr void (*kEvents[])(Script&, Panel&, const Point&) = {
        [](Script&, Panel& top, const Point& at) { top.MouseDownAt(at); },
        [](Script&, Panel& top, const Point& at) { top.MouseDownAt(at); },
        [](Script&, Panel& top, const Point& at) { top.MouseDrag(at, 1, 1, {}, kLeftButton); },
        [](Script&, Panel& top, const Point& at) { top.MouseDrag(at, 1, 1, {}, kLeftButton); },
        [](Script&, Panel& top, const Point& at) { top.MouseUp(at, kLeftButton); },
        [](Script&, Panel& top, const Point& at) { top.MouseOver(at, {}); },
        [](Script&, Panel& top, const Point& at) { top.MouseOver(at, {}); },
        [](Script&, Panel& top, const Point& at) { top.RightMouseDown(at, {}, false); },
        [](Script& s, Panel& top, const Point&) { top.KeyDown(s.Below(2) == 0 ? 9 : 65, {}); },
        [](Script&, Panel& top, const Point&) { top.IdleTree(); },
        [](Script&, Panel& top, const Point&) { top.UpdateTree(); },
        [](Script& s, Panel&, const Point&) { s.Any()->RedrawSelf(); },
        [](Script& s, Panel&, const Point&) { s.Any()->AnimateBounds(s.AnyRect(), 0.01); },
        [](Script& s, Panel&, const Point&) { s.Any()->CollectDirtyRect(); },
        [](Script& s, Panel& top, const Point&) {
          top.SetWindowContext(s.Below(6) == 0 ? nullptr : &top.window);
        },
    };
    if (stage.IsAlive(root)) kEvents[Below(std::size(kEvents))](*this, *root, AnyPoint());
  }

  std::mt19937 random;
  HandClock clock;
  Stage stage;
  Panel* root = nullptr;
  int32_t nesting = 0;
};

TEST(TreeScript, AMillionStepsKeepTheTreeWhole) {
  constexpr uint32_t kSeed = 20240117;
  Script script(kSeed);
  for (int64_t step = 0; step < 1000000; ++step) {
    script.Step();
    if (const char* const fault = script.Fault()) {
      FAIL() << fault << " after step " << step << " of seed " << kSeed;
    }
  }
  EXPECT_GT(script.rootsLost, 300);
}

}  // namespace
