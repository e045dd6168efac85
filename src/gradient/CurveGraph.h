// The area on which the user draws a curve, or places the points that it runs through.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "gradient/CurveView.h"
#include "toolkit/ControlPane.h"
#include "toolkit/PaintArea.h"

class EvolutionPanel;

// Position p stands at x = p, the value 1.0 at the top and 0.0 at the bottom. Drawn freehand, the
// samples are the truth and the points wait; in curve mode the points are, and the samples follow
// at each change. Any stored curve is safe under it.
class CurveGraph : public ControlPane {
 public:
  // Gets the graph and one of these: mouseDown, clearSelection, deletePoint, flipX, randomize,
  // smooth, setFreeHandMode, preset, or nothing for the small steps of an edit. It may delete the
  // graph.
  using Listener = std::function<void(CurveGraph& sender, const char* action)>;

  // ownerPanel   told of edits before they come; outlives the graph, may be null
  CurveGraph(ControlPane* ownerPane, const Rect& initialBounds, EvolutionPanel* ownerPanel);

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  void OnMouseDown(WindowContext* context, const Point& point) override;
  void OnMouseUp(WindowContext* context, const Point& point) override;
  void DragMove(WindowContext* context, const Point& point) override;
  // Key 127 deletes the selected point.
  bool OnKeyDown(WindowContext* context, int32_t key, const Modifiers& modifiers) override;
  int32_t GetCursorAt(WindowContext* context, const Point& point,
                      const Modifiers& modifiers) override;

  // Not owned, may be null. The listeners aren't told.
  void SetCurve(const CurveView* view);
  const CurveView* GetCurve() const { return curve; }

  // fit       make the points anew from what was drawn
  // rebuild   write the line through the points into the samples once more
  // Nothing happens where that mode is on already.
  void SetCurveMode(bool fit);
  void SetFreeHandMode(bool rebuild);
  // The mode alone: the curve stays as it is, and nobody is told.
  void ShowMode(bool showFreehand);
  bool IsFreehand() const { return freehand; }

  // Only what was drawn freehand is smoothed.
  void Smooth(bool strong, bool publish);
  void Randomize();
  void FlipX();
  void ClearSelection();
  // A curve keeps three points.
  void DeleteSelectedPoint();
  // A curve of the mode's own kind that is 0.0 all along.
  void Flatten();
  void TakePreset(const CurveRecord& preset);
  // Places the points anew on the samples, in curve mode.
  void Fit();
  // True where there is no curve.
  bool IsFlat() const;

  void AddListener(Listener listener);
  // Brings the samples up to the points, tells the listeners where that is wanted, and repaints.
  // Tells whether the graph is still there.
  bool Publish(const char* action, bool tellListeners);

 private:
  int32_t AddPoint(const Point& point);
  bool DrawLine(const Point& from, const Point& to);
  int32_t FindPoint(const Point& point) const;
  void PaintSamples(const PaintArea& area, int32_t shownOpacity, ImageBuffer& buffer) const;
  void PaintCurve(const PaintArea& area, int32_t shownOpacity, ImageBuffer& buffer) const;
  void PaintPoints(const PaintArea& area, int32_t shownOpacity, ImageBuffer& buffer) const;
  int32_t Height() const { return GetLocalBounds().bottom; }

  EvolutionPanel* panel;
  const CurveView* curve = nullptr;
  int32_t selectedPoint = -1;
  bool freehand = true;
  Point lastPoint;
  // Shared with whoever is calling one: it outlives the graph until it returns.
  std::vector<std::shared_ptr<const Listener>> listeners;
};
