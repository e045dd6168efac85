// The panel on which the user edits the colour map.
#include "gradient/GradientPanel.h"

#include <cassert>

#include "gradient/EnabledState.h"
#include "gradient/GradientRamp.h"
#include "gradient/GradientStops.h"
#include "gradient/GraphPresetPanel.h"
#include "gradient/PanelChildren.h"
#include "gradient/PanelIcon.h"
#include "toolkit/ControlWatch.h"
#include "toolkit/PaintArea.h"
#include "toolkit/QvIconButtonWithBG.h"

namespace {

constexpr int32_t kRandomizeId = 101;
constexpr int32_t kFlipId = 102;
constexpr int32_t kCopyId = 200;
constexpr int32_t kPasteId = 201;

constexpr Rect kStripPlace = {13, 29, 222, 59};
constexpr int32_t kBarHeight = 18;
constexpr Rect kRandomizePlace = {63, 69, 133, 89};
constexpr Rect kFlipPlace = {139, 69, 173, 89};
constexpr Rect kCopyPlace = {240, 59, 289, 79};
constexpr Rect kPastePlace = {240, 85, 289, 105};

}  // namespace

GradientPanel::GradientPanel(int32_t parameterIndex, int32_t width, int32_t height,
                             const Options& options)
    : CustomPanel({0, 0, width, height}, parameterIndex) {
  assert(options.undoGroup && options.noOpacity && options.undoRedoButtons && options.compact);
  AddChildren(options);
  strip->AddListener(*this);
  strip->AddListener(*result);
}

// Children may still ask for the presets.
GradientPanel::~GradientPanel() {
  DeleteSubtree();
}

void GradientPanel::AddChildren(const Options& options) {
  const int32_t right = GetLocalBounds().right;
  undoRedoPanel =
      AddTo(*this, std::make_unique<UndoRedoPanel>(this, Rect{right - 70, 0, right - 4, 28}, this,
                                                   options.undoRedoButtons));
  AddTo(*this, std::make_unique<GraphPresetPanel>(this, Rect{right - 78, 30, right, 75},
                                                  presetSource.get(), this));
  AddButton<QvButton>(*this, kCopyPlace, kCopyId, "Copy");
  pasteButton = AddButton<QvButton>(*this, kPastePlace, kPasteId, "Paste");
  pasteButton->SetEnabled(false);
  AddButton<QvButton>(*this, kRandomizePlace, kRandomizeId, "Randomize");
  auto* const flip = AddButton<QvIconButtonWithBG>(*this, kFlipPlace, kFlipId, "<>");
  flip->SetIcon(kButtonNormal, LoadPanelIcon("Flip_Normal.png").release());
  flip->SetIcon(kButtonOver, LoadPanelIcon("Flip_Over.png").release());
  strip = AddTo(*this, std::make_unique<GradientStrip>(this, kStripPlace, kBarHeight));
  result = AddTo(*this, std::make_unique<GradientResult>(this, Rect{}));
}

void GradientPanel::SetState(int32_t newState) {
  CustomPanel::SetState(newState);
  if (newState == kStateNormal && callbacks.canPaste != nullptr) {
    ChangeEnabled(pasteButton, Answer(callbacks.canPaste));
  }
}

void GradientPanel::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  buffer.FillRect(area.bounds, backgroundColor, 256, &area.clip);
}

void GradientPanel::SetPanelCallbacks(const void* newCallbacks) {
  callbacks = newCallbacks != nullptr ? *static_cast<const GradientCallbacks*>(newCallbacks)
                                      : GradientCallbacks{};
}

void GradientPanel::SetPanelData(void* data) {
  auto* const view = static_cast<GradientView*>(data);
  if (view != nullptr) RefreshButtons(*view);
  if (view == gradient) return;
  gradient = view;
  if (view != nullptr) RebuildRamp(*view);
  result->SetGradient(view);
}

void GradientPanel::RefreshButtons(const GradientView& view) {
  ChangeEnabled(pasteButton, Answer(callbacks.canPaste));
  undoRedoPanel->SetUndoEnabled(Answer(callbacks.canUndo));
  undoRedoPanel->SetRedoEnabled(Answer(callbacks.canRedo));
  undoRedoPanel->SetResetEnabled(!AreEqual(view, presetSource->GetPreset(0)));
}

// Tells whether the panel is still there.
bool GradientPanel::Call(Action action) {
  const ControlWatch self(this);
  if (action != nullptr) action(callbacks.context);
  return self.Get() != nullptr;
}

bool GradientPanel::Answer(Question question) const {
  return question != nullptr && question(callbacks.context);
}

void GradientPanel::PushUndo() {
  Call(callbacks.pushUndo);
}

void GradientPanel::NoteEdit() {
  Call(callbacks.noteEdit);
}

// The host may send events while its dialog is open, and those arm the panel for themselves.
bool GradientPanel::PickColor(float* red, float* green, float* blue) {
  if (callbacks.pickColor == nullptr) return false;
  const ControlWatch self(this);
  const GradientCallbacks armed = callbacks;
  GradientView* const armedGradient = gradient;
  const bool accepted = armed.pickColor(red, green, blue, armed.context);
  if (!self) return false;
  callbacks = armed;
  gradient = armedGradient;
  return accepted;
}

void GradientPanel::NotifyPressed(ControlPane* source) {
  if (source == nullptr) return;
  switch (source->GetId()) {
    case kRandomizeId:
      EditStops([](GradientView& view) { RandomizeStops(view); });
      break;
    case kFlipId:
      EditStops(FlipStops);
      break;
    case kCopyId:
      // What was copied can be pasted at once.
      if (Call(callbacks.copyStops) && gradient != nullptr) RefreshButtons(*gradient);
      break;
    case kPasteId:
      Paste();
      break;
    default:
      CustomPanel::NotifyPressed(source);
  }
}

void GradientPanel::EditStops(void (*edit)(GradientView& view)) {
  const ControlWatch self(this);
  PushUndo();
  if (!self || gradient == nullptr) return;
  edit(*gradient);
  strip->PublishChange();
}

void GradientPanel::Paste() {
  if (callbacks.pasteStops == nullptr) return;
  const ControlWatch self(this);
  PushUndo();
  if (self) ExchangeStops(callbacks.pasteStops);
}

// Lets the callback put other stops into the map.
void GradientPanel::ExchangeStops(Action exchange) {
  if (exchange == nullptr || !Call(exchange)) return;
  if (gradient != nullptr) RebuildRamp(*gradient);
  Call(callbacks.gradientChanged);
}

void GradientPanel::UndoPressed() {
  ExchangeStops(callbacks.undo);
}

void GradientPanel::RedoPressed() {
  ExchangeStops(callbacks.redo);
}

void GradientPanel::ResetPressed() {
  EditStops(ResetStops);
}

void GradientPanel::PresetSelected(int32_t index) {
  const ControlWatch self(this);
  PushUndo();
  if (!self) return;
  if (gradient != nullptr && index >= 0 && index < presetSource->GetPresetCount()) {
    CopyColorMap(presetSource->GetPreset(index), *gradient);
  }
  result->GradientChanged(strip);
  if (!self || !Call(callbacks.gradientChanged)) return;
  SetDirty(true);
  RedrawSelf();
}

void GradientPanel::GradientChanged(ControlPane* /*sender*/) {
  Call(callbacks.gradientChanged);
}
