// The panel on which the user edits the colour map.
#pragma once

#include <cstdint>
#include <memory>

#include "gradient/GradientCallbacks.h"
#include "gradient/GradientListener.h"
#include "gradient/GradientPresetSource.h"
#include "gradient/GradientResult.h"
#include "gradient/GradientStrip.h"
#include "gradient/QvPresetListener.h"
#include "gradient/RampColor.h"
#include "gradient/UndoRedoListener.h"
#include "gradient/UndoRedoPanel.h"
#include "toolkit/CustomPanel.h"
#include "toolkit/QvButton.h"

// Holds no map of its own: one panel serves all instances of the effect, and each event brings the
// map to work on and the callbacks for it. Any callback may delete the panel, but for the questions
// canPaste, canUndo and canRedo.
class GradientPanel : public CustomPanel,
                      public UndoRedoListener,
                      public QvPresetListener,
                      public GradientListener {
 public:
  // The panel is laid out for all four being true.
  struct Options {
    bool undoGroup = true;
    bool noOpacity = true;
    bool undoRedoButtons = true;
    bool compact = true;
  };

  // parameterIndex   of the row that shows the panel, and the panel's id
  // Throws App::ExceptionInfo or std::bad_alloc where there is no memory.
  GradientPanel(int32_t parameterIndex, int32_t width, int32_t height, const Options& options);
  ~GradientPanel() override;

  void SetState(int32_t newState) override;
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  // Works the buttons, which act when they are pressed.
  void NotifyPressed(ControlPane* source) override;
  // data   a GradientView, which must stay until the event is over; one at the same address as that
  //        of the event before is taken to be ready. May be null.
  void SetPanelData(void* data) override;
  // newCallbacks   a GradientCallbacks, which is copied
  void SetPanelCallbacks(const void* newCallbacks) override;

  // Come before a change of the stops, and at the beginning of each press on the strip.
  virtual void PushUndo();
  virtual void NoteEdit();

  void UndoPressed() override;
  void RedoPressed() override;
  void ResetPressed() override;
  void PresetSelected(int32_t index) override;
  void GradientChanged(ControlPane* sender) override;

  // Lets the user choose a colour in place of the one given. True where the user accepted and the
  // panel is still there.
  bool PickColor(float* red, float* green, float* blue);
  // Null outside of events.
  GradientView* GetGradient() const { return gradient; }
  ColorBGRA GetBackgroundColor() const { return backgroundColor; }

 private:
  using Action = void (*)(void* context);
  using Question = bool (*)(void* context);

  void AddChildren(const Options& options);
  bool Call(Action action);
  bool Answer(Question question) const;
  void RefreshButtons(const GradientView& view);
  void EditStops(void (*edit)(GradientView& view));
  void Paste();
  void ExchangeStops(Action exchange);

  std::unique_ptr<GradientPresetSource> presetSource = std::make_unique<GradientPresetSource>();
  UndoRedoPanel* undoRedoPanel = nullptr;
  QvButton* pasteButton = nullptr;
  GradientStrip* strip = nullptr;
  GradientResult* result = nullptr;
  GradientView* gradient = nullptr;
  GradientCallbacks callbacks;
  ColorBGRA backgroundColor = Gray(36);
};
