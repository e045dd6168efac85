// What the graph's panel has it do, and who hears of it.
#include <algorithm>
#include <utility>

#include "gradient/CurveChain.h"
#include "gradient/CurveEdits.h"
#include "gradient/CurveGraph.h"
#include "gradient/CurvePoints.h"
#include "gradient/EvolutionPanel.h"
#include "platform/TickCount.h"
#include "toolkit/ControlWatch.h"

namespace {

constexpr int32_t kNone = -1;

}  // namespace

void CurveGraph::AddListener(Listener listener) {
  listeners.push_back(std::make_shared<const Listener>(std::move(listener)));
}

bool CurveGraph::Publish(const char* action, bool tellListeners) {
  const ControlWatch self(this);
  if (!freehand && curve != nullptr) RebuildSamples(*curve, Height());
  for (size_t i = 0; tellListeners && self && i < listeners.size(); ++i) {
    const std::shared_ptr<const Listener> listener = listeners[i];
    if (*listener) (*listener)(*this, action);
  }
  if (!self) return false;
  SetDirty(true);
  RedrawSelf();
  return self.Get() != nullptr;
}

void CurveGraph::SetCurve(const CurveView* view) {
  curve = view;
  selectedPoint = kNone;
  Publish("", false);
}

void CurveGraph::ShowMode(bool showFreehand) {
  if (freehand == showFreehand) return;
  freehand = showFreehand;
  selectedPoint = kNone;
}

void CurveGraph::SetCurveMode(bool fit) {
  if (!freehand) return;
  freehand = false;
  if (curve == nullptr) return;
  if (fit) FitCurve(*curve, Height());
  Publish("setCurveMode", false);
}

void CurveGraph::SetFreeHandMode(bool rebuild) {
  if (freehand) return;
  freehand = true;
  selectedPoint = kNone;
  if (curve == nullptr) return;
  if (rebuild) RebuildSamples(*curve, Height());
  Publish("setFreeHandMode", true);
}

void CurveGraph::Smooth(bool strong, bool publish) {
  if (!freehand || curve == nullptr) return;
  SmoothSamples(*curve, strong);
  if (publish) Publish("smooth", true);
}

void CurveGraph::Randomize() {
  selectedPoint = kNone;
  if (curve == nullptr) return;
  (freehand ? RandomizeSamples : RandomizePoints)(*curve, TickCountMilliseconds());
  Publish("randomize", true);
}

void CurveGraph::FlipX() {
  selectedPoint = kNone;
  if (curve == nullptr) return;
  (freehand ? FlipSamples : FlipPoints)(*curve);
  Publish("flipX", true);
}

void CurveGraph::ClearSelection() {
  selectedPoint = kNone;
  Publish("clearSelection", true);
}

void CurveGraph::DeleteSelectedPoint() {
  const auto canDelete = [this] {
    if (curve == nullptr || selectedPoint < 0) return false;
    const int32_t count = CountPoints(*curve);
    return selectedPoint < count && count > CurveFewestPoints;
  };
  if (!canDelete()) return;
  const ControlWatch self(this);
  if (panel != nullptr) panel->PushUndo();
  if (!self || !canDelete()) return;
  DeletePoint(*curve, selectedPoint);
  --selectedPoint;
  Publish("deletePoint", true);
}

void CurveGraph::Flatten() {
  selectedPoint = kNone;
  if (curve == nullptr) return;
  std::fill_n(curve->samples, CurveSampleCount, 0.0F);
  Fit();
  Publish("", true);
}

void CurveGraph::TakePreset(const CurveRecord& preset) {
  selectedPoint = kNone;
  if (curve == nullptr) return;
  std::copy_n(preset.samples, CurveSampleCount, curve->samples);
  std::copy_n(preset.pointX, CurvePointLimit, curve->pointX);
  std::copy_n(preset.pointY, CurvePointLimit, curve->pointY);
  Publish("preset", true);
}

void CurveGraph::Fit() {
  selectedPoint = kNone;
  if (!freehand && curve != nullptr) FitCurve(*curve, Height());
}

bool CurveGraph::IsFlat() const {
  return curve == nullptr || IsFlatCurve(*curve, freehand);
}
