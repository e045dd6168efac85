// The curve editor with all that the host's side gives it: curves, a clipboard, an undo, events.
#include "tools/specimens/DemoCurveEditor.h"

#include <algorithm>

DemoCurveEditor::DemoCurveEditor(const CurveView& shownCurve, bool freehand) {
  record.curves.fill(shownCurve);
  record.freehandFlags = freehand ? 7 : 0;
  panel->SetWindowContext(&window);
  Arm();
}

template <char kCall, auto kAct>
void DemoCurveEditor::Act(void* context) {
  auto& editor = *static_cast<DemoCurveEditor*>(context);
  kAct(editor);
  editor.Hear(kCall);
}

template <auto kKept>
bool DemoCurveEditor::Has(void* context) {
  return (static_cast<DemoCurveEditor*>(context)->*kKept).has_value();
}

void DemoCurveEditor::Arm() {
  using Editor = DemoCurveEditor;
  if (panel == nullptr) return;
  const EvolutionCallbacks callbacks = {
      .copyCurve = Act<'c', [](Editor& e) { e.clipboard = e.Present().curve; }>,
      .pasteCurve = Act<'v', [](Editor& e) { e.Paste(); }>,
      .canPaste = Has<&Editor::clipboard>,
      .undo = Act<'u', [](Editor& e) { e.Exchange(e.undo, e.redo); }>,
      .redo = Act<'r', [](Editor& e) { e.Exchange(e.redo, e.undo); }>,
      .canUndo = Has<&Editor::undo>,
      .canRedo = Has<&Editor::redo>,
      .pushUndo = Act<'p', [](Editor& e) { e.undo = e.Present(), e.redo.reset(); }>,
      .noteEdit = Act<'n', [](Editor&) {}>,
      .curveChanged = Act<'g', [](Editor&) {}>,
      .context = this,
  };
  panel->SetPanelCallbacks(&callbacks);
  panel->SetPanelData(&record);
}

DemoCurveEditor::Kept DemoCurveEditor::Present() const {
  const CurveView& view = record.curves[CurveIndexOf(record)];
  Kept kept{{}, record.freehandFlags};
  std::copy_n(view.samples, CurveSampleCount, kept.curve.samples);
  std::copy_n(view.pointX, CurvePointLimit, kept.curve.pointX);
  std::copy_n(view.pointY, CurvePointLimit, kept.curve.pointY);
  return kept;
}

void DemoCurveEditor::PutCurve(const CurveRecord& curve) {
  const CurveView& view = record.curves[CurveIndexOf(record)];
  std::copy_n(curve.samples, CurveSampleCount, view.samples);
  std::copy_n(curve.pointX, CurvePointLimit, view.pointX);
  std::copy_n(curve.pointY, CurvePointLimit, view.pointY);
}

void DemoCurveEditor::Paste() {
  if (clipboard) PutCurve(*clipboard);
}

void DemoCurveEditor::Exchange(std::optional<Kept>& kept, std::optional<Kept>& opposite) {
  if (!kept) return;
  opposite = Present();
  PutCurve(kept->curve);
  record.freehandFlags = kept->freehandFlags;
  kept.reset();
}

void DemoCurveEditor::Event(const std::function<void(EvolutionPanel&)>& deliver) {
  Arm();
  if (panel != nullptr) deliver(*panel);
}

void DemoCurveEditor::Choose(int32_t preset) {
  Click(kPresets);
  Click(RowOf(preset));
}
