// Catches a tree that touches a control which a hook has just deleted, or leaves it in its fields.
#include <gtest/gtest.h>

#include <iterator>
#include <set>
#include <sstream>

#include "RecordingTree.h"

namespace {

constexpr Rect kPlace = {10, 10, 210, 160};
constexpr Point kOnLeaf = {25, 25};
constexpr Point kOffLeaf = {150, 110};

// The root 0 owns 1, which owns 2 in front of 3.
struct Tree {
  Tree() : root(new Panel(stage, kPlace)) {
    Pane& middle = root->Add(*root, {5, 5, 145, 105}, 1);
    root->Add(middle, {0, 0, 130, 130}, 3);
    leaf = &root->Add(middle, {5, 5, 125, 125}, 2);
    controls = {root, &middle, leaf, middle.GetChildAt(1)};
    root->AddToFocusRing(leaf);
  }
  ~Tree() {
    stage.onHook = nullptr;
    if (IsAlive(root)) delete root;
  }
  bool IsAlive(ControlPane* control) const { return stage.IsAlive(control); }

  Stage stage;
  Panel* root;
  Pane* leaf = nullptr;
  std::vector<ControlPane*> controls;
};

void Press(Tree& tree, int32_t mode) {
  tree.leaf->pressMode = mode;
  tree.root->MouseDownAt(kOnLeaf);
}

// One event each; together they call every hook.
using Event = void (*)(Tree&, HandClock&);
constexpr Event kEvents[] = {
    [](Tree& tree, HandClock&) { tree.root->MouseOver(kOnLeaf, {}); },
    [](Tree& tree, HandClock&) {
      tree.root->Redraw({0, 0, 200, 150});
    },
    [](Tree& tree, HandClock&) { tree.root->FocusNext(); },
    [](Tree& tree, HandClock&) { tree.root->SetPendingKey(65); },
    [](Tree& tree, HandClock& clock) { clock.now += 100, tree.root->IdleTree(); },
    [](Tree& tree, HandClock&) { tree.root->KeyDown(66, {}); },
    [](Tree& tree, HandClock&) { Press(tree, kTrackPress); },
    [](Tree& tree, HandClock&) { tree.root->MouseDrag(kOffLeaf, 1, 1, {}, kLeftButton); },
    [](Tree& tree, HandClock&) { tree.root->MouseUp(kOffLeaf, kLeftButton); },
    [](Tree& tree, HandClock&) { tree.root->MouseOver(kOffLeaf, {}); },
    [](Tree& tree, HandClock&) { tree.leaf->parameterChanged = true; },
    [](Tree& tree, HandClock&) { tree.root->UpdateTree(); },
    [](Tree& tree, HandClock&) { tree.leaf->SetDirty(true); },
    [](Tree& tree, HandClock&) { tree.root->CollectDirtyRect(); },
    [](Tree& tree, HandClock&) { tree.leaf->SetDirty(true); },
    [](Tree& tree, HandClock&) { tree.root->UpdateTree(); },
    [](Tree& tree, HandClock&) { tree.root->SetChildEnabled(2, true, true, true); },
    [](Tree& tree, HandClock&) {
      tree.leaf->AnimateBounds({0, 0, 120, 120}, 1.0);
    },
    [](Tree& tree, HandClock&) { tree.leaf->AnimateOpacity(0.5, 1.0); },
    [](Tree& tree, HandClock& clock) { clock.now += 1500, tree.root->UpdateTree(); },
    [](Tree& tree, HandClock&) { Press(tree, kTrackMove); },
    [](Tree& tree, HandClock&) {
      tree.root->MouseDrag({26, 26}, 1, 1, {}, kLeftButton);
    },
    [](Tree& tree, HandClock&) {
      tree.root->MouseUp({26, 26}, kLeftButton);
    },
    [](Tree& tree, HandClock&) { Press(tree, kTrackResize); },
    [](Tree& tree, HandClock&) {
      tree.root->MouseDrag({30, 26}, 1, 1, {}, kLeftButton);
    },
    [](Tree& tree, HandClock&) {
      tree.root->MouseUp({30, 26}, kLeftButton);
    },
    [](Tree& tree, HandClock&) { tree.root->RightMouseDown(kOnLeaf, {}, false); },
    [](Tree& tree, HandClock&) { tree.leaf->RaiseAndRedraw(); },
    [](Tree& tree, HandClock&) { tree.root->SetStateTreeKeepHidden(kStateDisabled); },
    [](Tree& tree, HandClock&) { tree.leaf->RedrawIfParametersChanged(); },
    [](Tree& tree, HandClock&) { tree.leaf->SetPendingDelete(true); },
    [](Tree& tree, HandClock&) { tree.root->GetFirstChild()->SetPendingDelete(true); },
    [](Tree& tree, HandClock&) { tree.root->UpdateTree(); },
    [](Tree& tree, HandClock&) { tree.root->DeleteAllChildren(); },
};

void ExpectNothingDangles(const Tree& tree, const std::string& what) {
  for (const ControlPane* held :
       {tree.root->GetCapture(), tree.root->GetFocus(), tree.root->hoverOwner.Get()}) {
    EXPECT_TRUE(held == nullptr || tree.root->Belongs(held)) << what;
  }
}

// Plays until the leaf or the root is gone.
void PlayAll(Tree& tree, const std::string& what) {
  HandClock clock;
  for (const Event event : kEvents) {
    if (!tree.IsAlive(tree.root) || tree.root->GetChildCount() == 0) return;
    if (!tree.IsAlive(tree.leaf)) return;
    event(tree, clock);
    if (tree.IsAlive(tree.root)) ExpectNothingDangles(tree, what);
  }
}

std::set<std::string> AllHooks() {
  Tree tree;
  PlayAll(tree, "no deletion");
  EXPECT_FALSE(tree.IsAlive(tree.leaf)) << "the script stopped early";
  std::istringstream words(tree.stage.heard);
  return {std::istream_iterator<std::string>(words), {}};
}

TEST(TreeDeletion, AnyControlMayGoInAnyHook) {
  const std::set<std::string> hooks = AllHooks();
  EXPECT_GE(hooks.size(), 38U);
  for (const std::string& hook : hooks) {
    for (size_t victim = 0; victim < 4; ++victim) {
      const std::string what = std::to_string(victim) + " deleted in " + hook;
      Tree tree;
      ControlPane* const doomed = tree.controls[victim];
      tree.stage.onHook = [&](ControlPane& pane, const char* name) {
        if (std::to_string(pane.GetId()) + '.' + name != hook) return;
        if (!tree.IsAlive(doomed)) return;
        delete doomed;
        // Making a control empties the list of the destroyed.
        const ControlPane next(nullptr, {});
      };
      PlayAll(tree, what);
      EXPECT_FALSE(tree.IsAlive(doomed)) << what;
    }
  }
}

TEST(TreeDeletion, RemovedSubtreeIsForgottenByTheRoot) {
  for (const size_t removed : {1U, 2U}) {
    Tree tree;
    tree.leaf->cursor = -5;
    tree.root->MouseOver(kOnLeaf, {});
    tree.root->MouseDownAt(kOnLeaf);
    tree.root->SetFocus(tree.leaf, true);
    ASSERT_EQ(tree.root->hoverOwner.Get(), tree.leaf);
    ASSERT_EQ(tree.root->GetCapture(), tree.leaf);
    ControlPane* const pane = tree.controls[removed];
    pane->GetOwner()->RemoveChild(pane);
    EXPECT_EQ(tree.root->GetCapture(), nullptr);
    EXPECT_EQ(tree.root->GetFocus(), nullptr);
    EXPECT_EQ(tree.root->hoverOwner.Get(), nullptr);
    EXPECT_EQ(tree.root->GetFocusRingIndex(tree.leaf), -1);
    tree.root->MouseOver(kOffLeaf, {});
    const bool left = tree.stage.heard.find("2.OnMouseLeave") != std::string::npos;
    EXPECT_EQ(left, removed == 1) << "what went along hears of it, what was taken out doesn't";
    // It outlives the root that it names as its owner.
    delete tree.root;
    pane->RedrawSelf();
    delete pane;
  }
}

TEST(TreeDeletion, RefusesChildrenThatWouldCloseARing) {
  Stage stage;
  Panel root(stage, kPlace);
  Pane& outer = root.Add(root, {0, 0, 50, 50}, 1);
  Pane& inner = root.Add(outer, {0, 0, 50, 50}, 2);
  outer.AddChild(nullptr, true);
  outer.AddChild(&outer, true);
  inner.AddChild(&outer, true);
  root.AddChild(&inner, true);
  inner.InsertChild(&root, 0);
  root.RemoveChild(&inner);
  EXPECT_EQ(root.GetChildCount() + outer.GetChildCount() + inner.GetChildCount(), 2);
  // Turned upside down: the one taken out still names the other as its owner.
  root.RemoveChild(&outer);
  outer.RemoveChild(&inner);
  inner.AddChild(&outer, true);
  EXPECT_EQ(outer.GetOwner(), &inner);
  EXPECT_EQ(inner.GetOwner(), nullptr);
  root.AddChild(&inner, false);
  EXPECT_EQ(outer.GetTopOwnerPtr(), &root);
}

}  // namespace
