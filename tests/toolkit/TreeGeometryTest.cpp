// Catches edges that are off by one, dragged out of bounds, or overflow at the ends of an int32.
#include <gtest/gtest.h>

#include <limits>

#include "RecordingTree.h"
#include "toolkit/DestroyedControls.h"

namespace {

constexpr int32_t kMin = std::numeric_limits<int32_t>::min();
constexpr int32_t kMax = std::numeric_limits<int32_t>::max();
constexpr int32_t kFar = kMax - 20;

struct DragCase {
  const char* what;
  int32_t mode;
  int32_t zone;  // of a resize
  Rect from;     // in an owner of 200 x 100, pressed at (5, 5) of the control
  Point by;
  Rect to;
};
constexpr DragCase kDragCases[] = {
    {"moved", kTrackMove, 0, {10, 10, 60, 40}, {7, -3}, {17, 7, 67, 37}},
    {"left and above", kTrackMove, 0, {10, 10, 60, 40}, {-90, -90}, {0, 0, 50, 30}},
    {"right and below", kTrackMove, 0, {10, 10, 60, 40}, {kFar, kFar}, {150, 70, 200, 100}},
    {"wider than the owner", kTrackMove, 0, {0, 0, 250, 30}, {20, 0}, {-50, 0, 200, 30}},
    {"not at all", kTrackMove, 0, {10, 10, 60, 40}, {0, 0}, {10, 10, 60, 40}},
    {"left edge", kTrackResize, 0, {20, 20, 60, 50}, {-5, 9}, {15, 20, 60, 50}},
    {"top edge", kTrackResize, 1, {20, 20, 60, 50}, {9, -5}, {20, 15, 60, 50}},
    {"right edge", kTrackResize, 2, {20, 20, 60, 50}, {5, 9}, {20, 20, 65, 50}},
    {"bottom edge", kTrackResize, 3, {20, 20, 60, 50}, {9, 5}, {20, 20, 60, 55}},
    {"top left, too small", kTrackResize, 4, {20, 20, 60, 50}, {90, 90}, {30, 30, 60, 50}},
    {"top right, too large", kTrackResize, 5, {20, 20, 60, 50}, {90, -90}, {20, -10, 100, 50}},
    {"bottom left", kTrackResize, 6, {20, 20, 60, 50}, {1, 2}, {21, 20, 60, 52}},
    {"bottom right, too large", kTrackResize, 7, {20, 20, 60, 50}, {90, 90}, {20, 20, 100, 80}},
};

TEST(TreeGeometry, DragsMoveAndResizeWithinTheirLimits) {
  for (const DragCase& c : kDragCases) {
    Stage stage;
    Panel root(stage, {3, 4, 203, 104});
    Pane& pane = root.Add(root, c.from, 1);
    pane.minWidth = 30, pane.minHeight = 20, pane.maxWidth = 80, pane.maxHeight = 60;
    pane.pressMode = c.mode;
    pane.resizeZone = c.zone;
    Point at = {5, 5};
    pane.LocalToGlobalPoint(&at);
    root.MouseDownAt(at);
    const Point target = {at.x + c.by.x, at.y + c.by.y};
    // The same pointer twice: an edge that moves the control's own space must not count twice.
    root.MouseDrag(target, 0, 0, {}, kLeftButton);
    root.MouseDrag(target, 0, 0, {}, kLeftButton);
    EXPECT_EQ(pane.GetBounds(), c.to) << c.what;
    const bool told = stage.heard.find("1.OnDragMoved") != std::string::npos;
    EXPECT_EQ(told, c.from != c.to) << c.what;
  }
}

TEST(TreeGeometry, ResizeZonesCoverTheRimOnceAndCornersAreTheirOwn) {
  const ControlPane pane(nullptr, {50, 50, 90, 80});
  constexpr const char* kZones[] = {"415", "0.2", "637"};  // from above, each from the left
  for (int32_t y = 0; y < 30; ++y) {
    for (int32_t x = 0; x < 40; ++x) {
      int32_t zone = -1;
      const bool found = pane.FindResizeZone({x, y}, 4, &zone);
      const char expected = kZones[y < 4 ? 0 : (y < 26 ? 1 : 2)][x < 4 ? 0 : (x < 36 ? 1 : 2)];
      EXPECT_EQ(found ? std::to_string(zone)[0] : '.', expected) << x << ' ' << y;
    }
  }
  int32_t zone = -1;
  EXPECT_FALSE(pane.FindResizeZone({40, 10}, 4, &zone));
}

struct AnchorCase {
  const char* what;
  LayoutAnchor left, right;
  Rect to;  // of {10, 10, 40, 30} in an owner of 200 x 100
};
constexpr AnchorCase kAnchorCases[] = {
    {"none", {}, {}, {10, 10, 40, 30}},
    {"left fixed", {kAnchorFixed, 7.9}, {}, {7, 10, 37, 30}},
    {"right at the edge", {}, {kAnchorToEdge, -5}, {165, 10, 195, 30}},
    {"both", {kAnchorToEdge, 3}, {kAnchorToEdge, -3.5}, {3, 10, 197, 30}},
    {"fractions", {kAnchorToFraction, 0.255}, {kAnchorToFraction, -0.25}, {51, 10, 150, 30}},
    {"right after left", {kAnchorFixed, 20}, {kAnchorToOther, 15}, {20, 10, 35, 30}},
    {"left after right", {kAnchorToOther, -15}, {kAnchorFixed, 90}, {75, 10, 90, 30}},
    {"range", {kAnchorInRange, 0.5, 10, 30}, {kAnchorInRange, 0.5, 10, 30}, {120, 10, 300, 30}},
    {"centred", {kAnchorCentered, 0, 10, 31}, {}, {105, 10, 135, 30}},
    {"centred and moved", {kAnchorCenteredPlus, -4, 10, 31}, {}, {101, 10, 131, 30}},
    {"far away", {kAnchorFixed, 1e300}, {}, {kMax, 10, kMax, 30}},
};

TEST(TreeGeometry, AnchorsFollowTheOwner) {
  for (const AnchorCase& c : kAnchorCases) {
    ControlPane root(nullptr, {50, 60, 250, 160});
    auto* const pane = new ControlPane(&root, {10, 10, 40, 30});
    root.AddChild(pane, true);
    *pane->LeftAnchor() = c.left;
    *pane->RightAnchor() = c.right;
    root.LayoutChildren();
    EXPECT_EQ(pane->GetBounds(), c.to) << c.what;
    // Top and bottom follow the same rules.
    root.SetBounds({60, 50, 160, 250});
    *pane->LeftAnchor() = *pane->RightAnchor() = {};
    *pane->TopAnchor() = c.left;
    *pane->BottomAnchor() = c.right;
    pane->SetBounds({10, 10, 30, 40});
    root.LayoutChildren();
    EXPECT_EQ(pane->GetBounds(), (Rect{c.to.top, c.to.left, c.to.bottom, c.to.right})) << c.what;
  }
}

TEST(TreeGeometry, TweensGoFromHereToThereAndEnd) {
  HandClock clock;
  Stage stage;
  Panel root(stage, {0, 0, 100, 100});
  Pane& pane = root.Add(root, {0, 0, 10, 10}, 1);
  pane.AnimateBounds({-5, 10, 21, 30}, 2.0);
  pane.AnimateOpacity(0.0, 4.0);
  struct Step {
    uint32_t now;
    Rect bounds;
    double opacity;
  };
  for (const Step& step : {Step{1000, {-3, 5, 16, 20}, 0.75},  // -2.5 is rounded away from 0
                           {2000, {-5, 10, 21, 30}, 0.5},
                           {9000, {-5, 10, 21, 30}, 0.0}}) {
    clock.now = step.now;
    root.UpdateTree();
    EXPECT_EQ(pane.GetBounds(), step.bounds) << step.now;
    EXPECT_EQ(pane.GetOpacity(), step.opacity) << step.now;
  }
  EXPECT_EQ(pane.GetTargetBounds(), (Rect{-4, 10, 21, 30}));
  const std::string heard = stage.Heard();
  EXPECT_LT(heard.find("1.OnBoundsAnimationDone"), heard.find("1.OnOpacityAnimationDone"));
}

TEST(TreeGeometry, EndsOfTheNumbersStayInRange) {
  const int32_t kEnds[] = {kMin, -1, 0, 1, kMax};
  Stage stage;
  Panel root(stage, {0, 0, 100, 100});
  Pane& owner = root.Add(root, {}, 1);
  Pane& pane = root.Add(owner, {}, 2);
  for (const int32_t a : kEnds) {
    for (const int32_t b : kEnds) {
      for (const int32_t c : kEnds) {
        owner.SetBounds({a, b, c, a});
        pane.SetBounds({b, c, a, b});
        Rect rect = {c, a, b, c};
        pane.ClipToVisibleArea(&rect);
        pane.RedrawThroughRoot({a, b, c, c});
        root.HitTest({a, b});
        pane.MoveTo(a, c);
        pane.LayoutChildren();
        int32_t zone = 0;
        pane.FindResizeZone({a, b}, c, &zone);
        *pane.LeftAnchor() = {kAnchorCentered, 0, a, b};
        *pane.TopAnchor() = {kAnchorInRange, 1e9, b, c};
        pane.ApplyAnchors();
        root.MouseDownAt({b, c});
        root.MouseDrag({a, a}, 0, 0, {}, kLeftButton);
        ControlPane away(nullptr, {10, 20, 40, 60});
        away.MoveBy(a, b);
        away.MoveTo(c, a);
        away.MoveTo(10, 20);
        EXPECT_EQ(away.GetBounds(), (Rect{10, 20, 40, 60})) << a << ' ' << b << ' ' << c;
        const Rect shown = root.window.GetInvalidRect();
        EXPECT_EQ(UnionOf(shown, root.GetBounds()), root.GetBounds()) << a << ' ' << b << ' ' << c;
      }
    }
  }
}

TEST(TreeGeometry, DeepAndWideTreesAreWalkedWhole) {
  constexpr int32_t kControls = 10000;
  for (const bool deep : {false, true}) {
    Stage stage;
    stage.listens = false;
    int64_t hooks = 0;
    stage.onHook = [&hooks](ControlPane&, const char*) { ++hooks; };
    {
      Panel root(stage, {0, 0, 100, 100});
      ControlPane* last = &root;
      for (int32_t made = 1; made <= kControls; ++made) {
        last = &root.Add(deep ? *last : root, {0, 0, 100, 100}, made);
      }
      EXPECT_EQ(root.FindDescendantById(kControls), last);
      EXPECT_EQ(root.HitTest({99, 99}), last);
      hooks = 0;
      root.RedrawSelf();
      EXPECT_EQ(hooks, 2 * (kControls + 1));
      root.SetStateTree(kStateSelected);
      root.SetStateTreeKeepHidden(kStateNormal);
      root.ClearDirtyTree();
      root.UpdateTree();
      root.MouseOver({5, 5}, {});
      last->NotifyPressed(last);
      last->SetDirty(true);
      EXPECT_EQ(root.CollectDirtyRect(), root.GetBounds());
    }
    EXPECT_TRUE(stage.alive.empty());
  }
}

TEST(TreeGeometry, AnyDepthCanBeDeleted) {
  auto* const root = new TopControlPane({0, 0, 100, 100});
  ControlPane* last = root;
  for (int32_t made = 0; made < 200000; ++made) {
    auto* const pane = new ControlPane(last, {0, 0, 100, 100});
    last->AddChild(pane, true);
    last = pane;
  }
  delete root;
  EXPECT_TRUE(DestroyedControls::Contains(last));
  const ControlPane next(nullptr, {});
  EXPECT_FALSE(DestroyedControls::Contains(last));
}

}  // namespace
