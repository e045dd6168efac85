// The panel on which the user edits a curve from start to end.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "gradient/CurveGraph.h"
#include "gradient/CurvePresetSource.h"
#include "gradient/EvolutionCallbacks.h"
#include "gradient/EvolutionRecord.h"
#include "gradient/QvPresetListener.h"
#include "gradient/UndoRedoListener.h"
#include "gradient/UndoRedoPanel.h"
#include "toolkit/CustomPanel.h"
#include "toolkit/QvButton.h"
#include "toolkit/QvIconButton.h"
#include "toolkit/TitleString.h"

// Holds no curve of its own: each event brings the record to work on and the callbacks for it. Any
// callback may delete the panel.
class EvolutionPanel : public CustomPanel,
                       public UndoRedoListener,
                       public QvPresetListener,
                       public TitleString {
 public:
  static constexpr int32_t kWidth = 306;
  static constexpr int32_t kHeight = 184;

  // parameterIndex   of the row that shows the panel, and the panel's id
  // newTitle         stands under the graph
  // Throws App::ExceptionInfo or std::bad_alloc where there is no memory.
  EvolutionPanel(int32_t parameterIndex, const std::string& newTitle);
  ~EvolutionPanel() override;

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  // Works the buttons, which act when they are pressed.
  void NotifyPressed(ControlPane* source) override;
  // Whichever mode is on keeps its mark.
  void SetState(int32_t newState) override;
  // data   an EvolutionRecord, which must stay until the event is over. May be null.
  void SetPanelData(void* data) override;
  // newCallbacks   an EvolutionCallbacks, which is copied
  void SetPanelCallbacks(const void* newCallbacks) override;

  // Come before a change of the curve, and after it or where the user begins to draw.
  virtual void PushUndo();
  virtual void NoteEdit();

  void UndoPressed() override;
  void RedoPressed() override;
  void ResetPressed() override;
  void PresetSelected(int32_t index) override;

  CurveGraph& GetGraph() { return *graph; }

 private:
  using Action = void (*)(void* context);
  using Question = bool (*)(void* context);

  void AddButtons();
  bool Call(Action action);
  bool Answer(Question question) const;
  void TakeRecord();
  void RefreshButtons();
  void MarkMode();
  // Calls `edit`, which gets the graph, between PushUndo and NoteEdit.
  template <typename Edit>
  void EditCurve(const Edit& edit);
  void ChangeMode(bool toFreehand);
  void Copy();
  void Paste();
  void ExchangeCurve(Action exchange);
  void PaintCaptions(const PaintArea& area, ImageBuffer& buffer) const;

  std::unique_ptr<CurvePresetSource> presetSource;
  UndoRedoPanel* undoRedoPanel = nullptr;
  QvButton* pasteButton = nullptr;
  QvIconButton* curveButton = nullptr;
  QvIconButton* freehandButton = nullptr;
  CurveGraph* graph = nullptr;
  EvolutionRecord* record = nullptr;
  EvolutionCallbacks callbacks;
};
