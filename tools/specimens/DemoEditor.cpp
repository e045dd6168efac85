// The colour map's panel with all that the host's side gives it.
#include "tools/specimens/DemoEditor.h"

#include "toolkit/SharedBuffers.h"

namespace {

constexpr int32_t kOwner = 12;
constexpr int32_t kScreenSide = 1024;

}  // namespace

// What the callbacks of one event work on; it goes with the event.
struct DemoEditor::Armed {
  Armed(DemoEditor& hostEditor, GradientRecord& map) : editor(hostEditor), view(map) {}

  DemoEditor& editor;
  GradientView view;

  // A callback that does `kAct` and is then heard.
  template <char kCall, auto kAct>
  static void Act(void* context) {
    auto& armed = *static_cast<Armed*>(context);
    kAct(armed.editor, armed.view);
    armed.editor.Hear(kCall);
  }

  template <auto kAsk>
  static bool Ask(void* context) {
    return kAsk(static_cast<Armed*>(context)->editor);
  }

  static bool PickColor(float* red, float* green, float* blue, void* context) {
    const DemoEditor& editor = static_cast<Armed*>(context)->editor;
    std::tie(*red, *green, *blue) = editor.pickedColor;
    Act<'k', [](DemoEditor&, GradientView&) {}>(context);
    return editor.accepts;
  }
};

GradientCallbacks DemoEditor::Callbacks(Armed& armed) {
  using Editor = DemoEditor;
  using View = GradientView;
  return {
      .pickColor = Armed::PickColor,
      .copyStops = Armed::Act<'c', [](Editor& e, View& v) { CopyStops(v, e.Clipboard()); }>,
      .pasteStops = Armed::Act<'v', [](Editor& e, View& v) { PasteStops(e.Clipboard(), v); }>,
      .canPaste = Armed::Ask<[](Editor& e) { return CanPaste(e.Clipboard()); }>,
      .undo = Armed::Act<'u', [](Editor& e, View& v) { UndoStops(e.Slots(), v); }>,
      .redo = Armed::Act<'r', [](Editor& e, View& v) { RedoStops(e.Slots(), v); }>,
      .canUndo = Armed::Ask<[](Editor& e) { return CanUndo(e.Slots(), kOwner); }>,
      .canRedo = Armed::Ask<[](Editor& e) { return CanRedo(e.Slots(), kOwner); }>,
      .pushUndo = Armed::Act<'p', [](Editor& e, View& v) { PushUndo(e.Slots(), v, kOwner); }>,
      .noteEdit = Armed::Act<'n', [](Editor&, View&) {}>,
      .gradientChanged = Armed::Act<'g', [](Editor&, View&) {}>,
      .context = &armed,
  };
}

DemoEditor::DemoEditor(GradientRecord& firstMap) : map(&firstMap) {
  MakeScreenBuffer(kScreenSide, kScreenSide);
  ScaleScreenBuffer(2.0F);
  panel = std::make_unique<GradientPanel>(kOwner, 306, 130, GradientPanel::Options{});
  UseClock(this);
}

DemoEditor::~DemoEditor() {
  panel.reset();
  DestroyScreenBuffer();
  DropSnapshots(Slots());
  UseClock(nullptr);
}

void DemoEditor::Event(const std::function<void(GradientPanel&)>& deliver) {
  if (panel == nullptr) return;
  // Not on the stack, so that an address sanitizer sees who uses it after the event.
  const auto armed = std::make_unique<Armed>(*this, *map);
  const GradientCallbacks callbacks = Callbacks(*armed);
  panel->SetWindowContext(&window);
  panel->SetPanelCallbacks(&callbacks);
  panel->SetPanelData(&armed->view);
  deliver(*panel);
  if (panel != nullptr) panel->ClearWindowContext();
}

void DemoEditor::Choose(int32_t preset) {
  Click(kPresets);
  Click(RowOf(preset));
}
