// The panel on which the user edits a curve from start to end.
#include "gradient/EvolutionPanel.h"

#include "gradient/EnabledState.h"
#include "gradient/GraphPresetPanel.h"
#include "gradient/PanelChildren.h"
#include "gradient/PanelIcon.h"
#include "gradient/RampColor.h"
#include "toolkit/ControlWatch.h"
#include "toolkit/QvIconButtonWithBG.h"

namespace {

constexpr int32_t kSmoothId = 100;
constexpr int32_t kRandomizeId = 101;
constexpr int32_t kFlipId = 102;
constexpr int32_t kCopyId = 200;
constexpr int32_t kPasteId = 201;
constexpr int32_t kCurveModeId = 315;
constexpr int32_t kFreehandModeId = 316;

constexpr Rect kGraphPlace = {21, 28, 222, 128};
constexpr Rect kSmoothPlace = {21, 154, 81, 174};
constexpr Rect kRandomizePlace = {87, 154, 157, 174};
constexpr Rect kFlipPlace = {163, 154, 197, 174};
constexpr Rect kCopyPlace = {240, 59, 289, 79};
constexpr Rect kPastePlace = {240, 85, 289, 105};
constexpr Rect kCurveModePlace = {242, 111, 262, 131};
constexpr Rect kFreehandModePlace = {267, 111, 287, 131};

// name   of the icons' files, before what tells the state
QvIconButton* AddModeButton(ControlPane& panel, const Rect& place, int32_t id,
                            const std::string& name) {
  const std::string normal = name + "_Normal.png";
  auto* const button = AddButton<QvIconButton>(panel, place, id, "");
  button->SetIcon(kButtonDisabled, LoadPanelIcon(normal.c_str()).release());
  button->SetIcon(kButtonNormal, LoadPanelIcon(normal.c_str()).release());
  button->SetIcon(kButtonOver, LoadPanelIcon((name + "_Over.png").c_str()).release());
  return button;
}

}  // namespace

EvolutionPanel::EvolutionPanel(int32_t parameterIndex, const std::string& newTitle)
    : CustomPanel({0, 0, kWidth, kHeight}, parameterIndex),
      TitleString(newTitle),
      presetSource(std::make_unique<CurvePresetSource>(kGraphPlace.bottom - kGraphPlace.top)) {
  SetBackground(Gray(36));
  undoRedoPanel = AddTo(*this, std::make_unique<UndoRedoPanel>(
                                   this, Rect{kWidth - 70, 0, kWidth - 4, 28}, this, true));
  AddTo(*this, std::make_unique<GraphPresetPanel>(this, Rect{kWidth - 78, 30, kWidth, 75},
                                                  presetSource.get(), this));
  AddButtons();
  graph = AddTo(*this, std::make_unique<CurveGraph>(this, kGraphPlace, this));
  graph->AddListener([this](CurveGraph&, const char*) { Call(callbacks.curveChanged); });
  MarkMode();
}

// Children may still ask for the presets.
EvolutionPanel::~EvolutionPanel() {
  DeleteSubtree();
}

void EvolutionPanel::AddButtons() {
  AddButton<QvButton>(*this, kCopyPlace, kCopyId, "Copy");
  pasteButton = AddButton<QvButton>(*this, kPastePlace, kPasteId, "Paste");
  pasteButton->SetEnabled(false);
  AddButton<QvButton>(*this, kSmoothPlace, kSmoothId, "Smooth");
  AddButton<QvButton>(*this, kRandomizePlace, kRandomizeId, "Randomize");
  auto* const flip = AddButton<QvIconButtonWithBG>(*this, kFlipPlace, kFlipId, "<>");
  flip->SetIcon(kButtonNormal, LoadPanelIcon("Flip_Normal.png").release());
  flip->SetIcon(kButtonOver, LoadPanelIcon("Flip_Over.png").release());
  curveButton = AddModeButton(*this, kCurveModePlace, kCurveModeId, "Curve");
  freehandButton = AddModeButton(*this, kFreehandModePlace, kFreehandModeId, "Freehand");
}

void EvolutionPanel::SetState(int32_t newState) {
  CustomPanel::SetState(newState);
  if (newState != kStateNormal || graph == nullptr) return;
  MarkMode();
  if (callbacks.canPaste != nullptr) ChangeEnabled(pasteButton, Answer(callbacks.canPaste));
}

// Tells whether the panel is still there.
bool EvolutionPanel::Call(Action action) {
  const ControlWatch self(this);
  if (action != nullptr) action(callbacks.context);
  return self.Get() != nullptr;
}

bool EvolutionPanel::Answer(Question question) const {
  return question != nullptr && question(callbacks.context);
}

void EvolutionPanel::PushUndo() {
  Call(callbacks.pushUndo);
}

void EvolutionPanel::NoteEdit() {
  Call(callbacks.noteEdit);
}

void EvolutionPanel::SetPanelCallbacks(const void* newCallbacks) {
  callbacks = newCallbacks != nullptr ? *static_cast<const EvolutionCallbacks*>(newCallbacks)
                                      : EvolutionCallbacks{};
}

void EvolutionPanel::SetPanelData(void* data) {
  record = static_cast<EvolutionRecord*>(data);
  TakeRecord();
  RefreshButtons();
}

// The undo may have brought another mode, and the record may show another of its curves.
void EvolutionPanel::TakeRecord() {
  const CurveView* shown = nullptr;
  if (record != nullptr) {
    const CurveView& view = record->curves[CurveIndexOf(*record)];
    const bool isWhole =
        view.samples != nullptr && view.pointX != nullptr && view.pointY != nullptr;
    if (isWhole) shown = &view;
    graph->ShowMode((record->freehandFlags & FreehandFlagOf(*record)) != 0);
  }
  if (shown != graph->GetCurve()) graph->SetCurve(shown);
  MarkMode();
}

void EvolutionPanel::RefreshButtons() {
  ChangeEnabled(pasteButton, Answer(callbacks.canPaste));
  undoRedoPanel->SetUndoEnabled(Answer(callbacks.canUndo));
  undoRedoPanel->SetRedoEnabled(Answer(callbacks.canRedo));
  undoRedoPanel->SetResetEnabled(!graph->IsFlat());
}

// A frame goes round the button of the mode that is on.
void EvolutionPanel::MarkMode() {
  if (!IsEnabled()) return;
  QvIconButton* const on = graph->IsFreehand() ? freehandButton : curveButton;
  for (QvIconButton* const button : {curveButton, freehandButton}) {
    const int32_t wanted = button == on ? kStateSelected : kStateNormal;
    if (button->GetState() == wanted) continue;
    button->SetState(wanted);
    button->SetDirty(true);
  }
}

template <typename Edit>
void EvolutionPanel::EditCurve(const Edit& edit) {
  const ControlWatch self(this);
  PushUndo();
  if (!self) return;
  edit(*graph);
  if (self) NoteEdit();
}

void EvolutionPanel::NotifyPressed(ControlPane* source) {
  if (source == nullptr) return;
  switch (source->GetId()) {
    case kSmoothId:
      EditCurve([strong = source->IsShiftDown()](CurveGraph& g) { g.Smooth(strong, true); });
      break;
    case kRandomizeId:
      EditCurve([](CurveGraph& g) { g.Randomize(); });
      break;
    case kFlipId:
      EditCurve([](CurveGraph& g) { g.FlipX(); });
      break;
    case kCopyId:
      Copy();
      break;
    case kPasteId:
      Paste();
      break;
    case kCurveModeId:
      ChangeMode(false);
      break;
    case kFreehandModeId:
      ChangeMode(true);
      break;
    default:
      CustomPanel::NotifyPressed(source);
  }
}

// The record keeps the mode, or the next event would bring the old one back.
void EvolutionPanel::ChangeMode(bool toFreehand) {
  EditCurve([this, toFreehand](CurveGraph& g) {
    if (record != nullptr) {
      const uint32_t flag = FreehandFlagOf(*record);
      record->freehandFlags =
          toFreehand ? record->freehandFlags | flag : record->freehandFlags & ~flag;
    }
    const ControlWatch self(this);
    if (toFreehand) {
      g.SetFreeHandMode(true);
    } else {
      g.SetCurveMode(true);
    }
    if (self) MarkMode();
  });
}

void EvolutionPanel::Copy() {
  const ControlWatch self(this);
  graph->ClearSelection();
  // What was copied can be pasted at once.
  if (self && Call(callbacks.copyCurve)) RefreshButtons();
}

void EvolutionPanel::Paste() {
  if (callbacks.pasteCurve == nullptr || !Call(callbacks.pasteCurve)) return;
  graph->Fit();
  graph->Publish("", true);
}

// Lets the callback put another curve in place.
void EvolutionPanel::ExchangeCurve(Action exchange) {
  if (exchange == nullptr || !Call(exchange)) return;
  TakeRecord();
  graph->ClearSelection();
}

void EvolutionPanel::UndoPressed() {
  ExchangeCurve(callbacks.undo);
}

void EvolutionPanel::RedoPressed() {
  ExchangeCurve(callbacks.redo);
}

void EvolutionPanel::ResetPressed() {
  EditCurve([](CurveGraph& g) { g.Flatten(); });
}

void EvolutionPanel::PresetSelected(int32_t index) {
  EditCurve([this, index](CurveGraph& g) {
    if (index >= 0 && index < presetSource->GetPresetCount()) {
      g.TakePreset(presetSource->GetPreset(index));
    }
  });
}
