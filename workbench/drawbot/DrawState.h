// Where and how the next thing is drawn: what the state stack keeps.
#pragma once

#include "DrawbotTypes.h"

struct DrawPoint {
  double x = 0.0;
  double y = 0.0;
};

// x' = xx * x + xy * y + x0, and y' likewise.
struct DrawMatrix {
  double xx = 1.0, xy = 0.0, x0 = 0.0;
  double yx = 0.0, yy = 1.0, y0 = 0.0;

  DrawPoint Apply(const DrawPoint& point) const;

  // What applies `first` and then this.
  DrawMatrix After(const DrawMatrix& first) const;

  // Whether a drawing through it covers an area: all is finite, and nothing is flattened to a line.
  bool IsRegular() const;
};

// The host's matrix has points as rows: its third row moves.
DrawMatrix FromHost(const DRAWBOT_MatrixF32& matrix);

// Surface coordinates. Empty where right isn't behind left, or bottom below top.
struct ClipBox {
  double left = 0.0, top = 0.0, right = 0.0, bottom = 0.0;
};

struct DrawState {
  DrawMatrix matrix;  // from the effect's coordinates to the surface's
  ClipBox clip;
  DRAWBOT_AntiAliasPolicy antiAlias = kDRAWBOT_AntiAliasPolicy_Med;
  DRAWBOT_InterpolationPolicy interpolation = kDRAWBOT_InterpolationPolicy_Med;

  // Narrows the clip to a rectangle in the effect's coordinates; to its bounds where it is turned.
  void Clip(const DRAWBOT_Rect32& rect);

  // The clip in surface coordinates, outward to whole ones.
  DRAWBOT_Rect32 ClipBounds() const;
};
