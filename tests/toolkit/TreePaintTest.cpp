// Catches repaints that leave pixels out, reach beyond their area, or paint what they needn't.
#include <gtest/gtest.h>

#include <random>

#include "RecordingTree.h"
#include "toolkit/SharedBuffers.h"

namespace {

// The host's surface: takes what is put on it, in physical pixels.
struct Screen : public PluginContext {
  Screen(int32_t screenScale, const Rect& size) : scale(screenScale) {
    picture.Allocate(size.right * scale, size.bottom * scale, false);
  }
  bool BlitToHost(const NativeImageBuffer& buffer, int32_t srcX, int32_t srcY, int32_t width,
                  int32_t height, int32_t dstX, int32_t dstY) override {
    const Rect part = {srcX * scale, srcY * scale, (srcX + width) * scale, (srcY + height) * scale};
    buffer.CopyTo(picture, part, dstX * scale, dstY * scale, 256, nullptr);
    ++blits;
    return true;
  }

  int32_t scale;
  int32_t blits = 0;
  ImageBuffer picture;
};

// What stands at a point of a control, the plain way: each control over the one before.
ColorBGRA ColorAt(const ControlPane& pane, const ColorBGRA& own, const Point& local) {
  ColorBGRA color = own;
  for (int32_t index = pane.GetChildCount() - 1; index >= 0; --index) {
    const auto& child = dynamic_cast<const Pane&>(*pane.GetChildAt(index));
    const Rect place = child.GetBounds();
    if (!child.IsVisible() || !Contains(place, local)) continue;
    color = ColorAt(child, child.color.alpha != 0 ? child.color : color,
                    {local.x - place.left, local.y - place.top});
  }
  return color;
}

// What a point of a control hits, the plain way; nothing shows outside its owner.
ControlPane* HitAt(ControlPane& pane, const Point& inOwner) {
  const Rect place = pane.GetBounds();
  if (!pane.IsVisible() || !pane.IsEnabled() || !Contains(place, inOwner)) return nullptr;
  const Point local = {inOwner.x - place.left, inOwner.y - place.top};
  for (int32_t index = 0; index < pane.GetChildCount(); ++index) {
    if (ControlPane* const hit = HitAt(*pane.GetChildAt(index), local)) return hit;
  }
  return &pane;
}

struct Painted {
  explicit Painted(uint32_t seed, int32_t scale) : random(seed), screen(scale, {0, 0, 130, 100}) {
    MakeScreenBuffer(32 * scale, 24 * scale);
    ScaleScreenBuffer(static_cast<float>(scale));
    root.SetPluginContext(&screen);
    root.color = ColorBGRA(0xFF000001);
    panes = {&root};
    for (int32_t made = 1; made <= 12; ++made) {
      ControlPane& owner = *panes[random() % panes.size()];
      Pane& pane = root.Add(owner, RandomRect(), made);
      if (random() % 4 != 0) pane.color = ColorBGRA(0xFF000001U + static_cast<uint32_t>(made));
      pane.opaque = pane.color.alpha != 0 && random() % 2 == 0;
      if (random() % 6 == 0) pane.SetState(random() % 2 == 0 ? kStateHidden : kStateDisabled);
      panes.push_back(&pane);
    }
  }
  Rect RandomRect() {
    const auto left = static_cast<int32_t>(random() % 90) - 10;
    const auto top = static_cast<int32_t>(random() % 60) - 10;
    return {left, top, left + static_cast<int32_t>(random() % 60),
            top + static_cast<int32_t>(random() % 50)};
  }
  // How many physical pixels differ from what should stand there: the tree inside `area`, the
  // background of the picture outside.
  int64_t WrongPixels(const Rect& area) const {
    int64_t wrong = 0;
    for (int32_t y = 0; y < screen.picture.Height(); ++y) {
      for (int32_t x = 0; x < screen.picture.Width(); ++x) {
        const Point global = {x / screen.scale, y / screen.scale};
        const bool shows = Contains(area, global) && Contains(root.GetBounds(), global);
        const Point local = {global.x - 7, global.y - 9};
        const ColorBGRA expected = shows ? ColorAt(root, root.color, local) : ColorBGRA();
        wrong += screen.picture.Row(y)[x] == expected ? 0 : 1;
      }
    }
    return wrong;
  }

  std::mt19937 random;
  Stage stage;
  Screen screen;
  Panel root{stage, {7, 9, 107, 79}};
  std::vector<ControlPane*> panes;
};

TEST(TreePaint, ARepaintShowsTheTreeInsideItsAreaAndNothingElse) {
  for (uint32_t seed = 0; seed < 120; ++seed) {
    const int32_t scale = seed % 2 == 0 ? 1 : 2;
    Painted whole(seed, scale);
    whole.root.RedrawSelf();
    EXPECT_EQ(whole.WrongPixels(whole.root.GetBounds()), 0) << "seed " << seed;
    EXPECT_EQ(whole.screen.blits, 4 * 3) << "tiles of 32 x 24 on 100 x 70";

    Painted part(seed, scale);
    ControlPane& pane = *part.panes[seed % part.panes.size()];
    const Rect rect = part.RandomRect();
    Rect area = rect;
    pane.LocalToGlobalRect(&area);
    pane.RedrawThroughRoot(rect);
    EXPECT_EQ(part.WrongPixels(area), 0) << "seed " << seed;
  }
  DestroyScreenBuffer();
}

TEST(TreePaint, WhatShowsIsWhatIsHit) {
  for (uint32_t seed = 0; seed < 60; ++seed) {
    Painted painted(seed, 1);
    for (int32_t y = 0; y < 100; ++y) {
      for (int32_t x = 0; x < 130; ++x) {
        ASSERT_EQ(painted.root.HitTest({x, y}), HitAt(painted.root, {x, y})) << "seed " << seed;
      }
    }
  }
  DestroyScreenBuffer();
}

TEST(TreePaint, AControlThatRaisesItselfWhilePaintingEndsTheRepaint) {
  Stage stage;
  Panel root(stage, {0, 0, 100, 100});
  for (int32_t made = 1; made <= 3; ++made) root.Add(root, {0, 0, 50, 50}, made);
  int32_t painted = 0;
  stage.onHook = [&painted](ControlPane& pane, const char* hook) {
    if (std::string(hook) == "Paint" && ++painted < 1000) pane.MoveToFront();
  };
  root.RedrawSelf();
  EXPECT_LT(painted, 10);
}

TEST(TreePaint, OnlyWhatShowsIsPainted) {
  Stage stage;
  Panel root(stage, {0, 0, 100, 100});
  Pane& back = root.Add(root, {0, 0, 100, 100}, 1);
  Pane& cover = root.Add(root, {10, 10, 60, 60}, 2);
  root.Add(cover, {40, 40, 50, 50}, 3);
  Pane& glass = root.Add(root, {20, 20, 70, 70}, 4);
  cover.opaque = true;
  back.RedrawThroughRoot({15, 15, 40, 40});
  EXPECT_EQ(stage.Heard(), "2.Paint 2.PaintOverlay 4.Paint 4.PaintOverlay 0.PaintOverlay ");
  cover.SetState(kStateHidden);
  root.SetStateTreeKeepHidden(kStateNormal);
  stage.Heard();
  glass.RedrawSelf();
  EXPECT_EQ(stage.Heard(), "0.Paint 1.Paint 1.PaintOverlay 4.Paint 4.PaintOverlay 0.PaintOverlay ");
  EXPECT_EQ(root.window.GetInvalidRect(), (Rect{15, 15, 70, 70}));
  // Neither an area outside, nor a missing buffer or window, gets anything painted.
  root.Redraw({100, 0, 120, 20});
  root.ClearWindowContext();
  root.RedrawSelf();
  root.SetWindowContext(&root.window);
  DestroyScreenBuffer();
  root.RedrawSelf();
  EXPECT_EQ(stage.Heard(), "");
}

TEST(TreePaint, APanelOfNoSizeMakesNoBuffer) {
  DestroyScreenBuffer();
  for (const Rect& place : {Rect{0, 0, 0, 10}, Rect{0, 0, 10, 0}, Rect{5, 5, 0, 0}}) {
    Stage stage;
    const Panel root(stage, place);
    EXPECT_EQ(ScreenBuffer(), nullptr);
  }
}

TEST(TreePaint, DirtyControlsAreCollectedOnceAndTogether) {
  Stage stage;
  Panel root(stage, {100, 100, 200, 200});
  Pane& owner = root.Add(root, {10, 10, 40, 40}, 1);
  Pane& child = root.Add(owner, {5, 5, 10, 10}, 2);
  Pane& other = root.Add(root, {60, 60, 70, 65}, 3);
  child.SetDirty(true);
  other.SetDirty(true);
  EXPECT_EQ(root.CollectDirtyRect(), (Rect{115, 115, 170, 165}));
  EXPECT_EQ(root.CollectDirtyRect(), (Rect{}));
  child.parameterChanged = true;
  EXPECT_EQ(root.CollectDirtyRect(), (Rect{115, 115, 120, 120}));
  child.SetEnabled(false);
  EXPECT_EQ(root.CollectDirtyRect(), (Rect{}));
}

}  // namespace
