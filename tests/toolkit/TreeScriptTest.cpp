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
    if (Below(3) == 0) {
      Change();
    } else {
      Send();
    }
  }

  // Null where all is well.
  const char* Fault() {
    if (!stage.IsAlive(root)) return nullptr;
    for (ControlPane* held : {root->GetCapture(), root->GetFocus(), root->hoverOwner.Get()}) {
      if (held != nullptr && !root->Belongs(held)) return "the root holds a control of no tree";
    }
    for (const ControlWatch& hovered : root->hoverSet) {
      if (hovered && !root->Belongs(hovered.Get())) return "a control of no tree is hovered";
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
  uint32_t Below(uint32_t end) { return static_cast<uint32_t>(random() % end); }
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
    if (Below(4) == 0) {
      Send();
    } else {
      Change();
    }
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

  void Change() {
    if (!stage.IsAlive(root)) return;
    ControlPane* const a = Any();
    ControlPane* const b = Any();
    switch (Below(20)) {
      case 0:
      case 1:
      case 2:
      case 3:
        return Make();
      case 4:
        if (a != root || Below(6) == 0) delete a;
        return;
      case 5:
        if (a != root) a->GetOwner() != nullptr ? a->GetOwner()->DeleteChild(a) : delete a;
        return;
      case 6:
        if (a->GetOwner() != nullptr) a->GetOwner()->RemoveChild(a);
        return;
      case 7:
      case 8:
        return a->AddChild(b, Below(2) == 0);
      case 9:
        return a->InsertChild(b, static_cast<int32_t>(Below(4)));
      case 10:
        return Below(2) == 0 ? a->MoveToFront() : a->MoveToBack();
      case 11:
        return a->SetStateTree(Below(3) == 0 ? static_cast<int32_t>(Below(4)) : kStateNormal);
      case 12:
        return a->SetBounds(AnyRect());
      case 13:
        return a->SetDirty(true);
      case 14:
        return a->SetPendingDelete(a != root && Below(4) == 0);
      case 15:
        return root->SetFocus(a, true);
      case 16:
        return root->AddToFocusRing(a);
      case 17:
        if (a->IsPopup()) root->ShowPopup(a, false, false);
        return;
      case 18:
        return Below(2) == 0 ? root->HidePopup() : root->ClearFocusRing();
      default:
        return Below(8) == 0 ? a->DeleteAllChildren() : a->SetStateTree(kStateNormal);
    }
  }

  void Send() {
    if (!stage.IsAlive(root)) return;
    ControlPane* const a = Any();
    switch (Below(14)) {
      case 0:
      case 1:
        root->MouseDown(AnyPoint(), {}, Below(2) == 0, kLeftButton);
        return;
      case 2:
      case 3:
        return root->MouseDrag(AnyPoint(), 1, 1, {}, kLeftButton);
      case 4:
        root->MouseUp(AnyPoint(), kLeftButton);
        return;
      case 5:
      case 6:
        root->MouseOver(AnyPoint(), {});
        return;
      case 7:
        root->RightMouseDown(AnyPoint(), {}, false);
        return;
      case 8:
        root->KeyDown(Below(2) == 0 ? 9 : 65, {.shift = Below(2) == 0});
        return;
      case 9:
        return root->IdleTree();
      case 10:
        return root->UpdateTree();
      case 11:
        return a->RedrawSelf();
      case 12:
        a->AnimateBounds(AnyRect(), 0.01);
        a->CollectDirtyRect();
        return;
      default:
        root->FindHelpControl(AnyPoint());
        return root->SetWindowContext(Below(6) == 0 ? nullptr : &root->window);
    }
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
