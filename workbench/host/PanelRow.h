// A row that the effect draws itself: what the user does there, as the events that the effect gets.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "workbench/drawbot/Drawing.h"
#include "workbench/host/EffectHost.h"
#include "workbench/host/Pane.h"

// Points are of the row: its top left is 0, 0. They may be anything.
//
// After a press that asks for drags, Drag and Release are sent; otherwise they do nothing. What the
// effect invalidates is drawn before the next event, or at once where it asks for that.
class PanelRow {
 public:
  // Told of every command's end. May throw, which ends what the user was doing.
  using Judge = std::function<void(const CommandResult& result)>;

  // effectHost, rowInstance   outlive the row
  // parameter                 the row's index
  // frame                     where the row stands in the pane
  PanelRow(EffectHost& effectHost, EffectInstance& rowInstance, size_t parameter,
           const PF_UnionableRect& frame, Judge rowJudge = {});

  void Click(PF_Point point, PF_Modifiers modifiers = PF_Mod_NONE, A_long clicks = 1);
  void Drag(PF_Point point, PF_Modifiers modifiers = PF_Mod_NONE);
  void Release(PF_Point point, PF_Modifiers modifiers = PF_Mod_NONE);

  // Returns the cursor that the effect wants.
  PF_CursorType Move(PF_Point point, PF_Modifiers modifiers = PF_Mod_NONE);

  // Has the effect draw what is invalid, or all where nothing is.
  void Draw();

  // Has the effect draw what is invalid, if anything is.
  void DrawIfInvalid();

  // Whether a press has asked for drags, and no release has come.
  bool IsTracking() const { return isTracking; }

  Pane pane;
  Canvas* canvas = nullptr;  // where draws land; null: they are recorded alone
  float screenScale = 1.0F;  // the canvas's pixels for each logical one
  Fault fault;               // planned for each event that is sent

  // The last event, as the effect left it, and what came back.
  PF_EventExtra lastEvent{};
  CommandResult lastResult;

  std::vector<DrawCall> lastCalls;       // of the last draw
  std::vector<WrittenKeyframe> lastRun;  // the keyframes of the last event that wrote any
  int64_t drawCount = 0;
  int64_t rerenderCount = 0;  // how often the effect asked for the frame to be rendered anew

 private:
  PF_EventExtra MakeEvent(PF_EventType type) const;
  void SendDrag(PF_Point point, PF_Modifiers modifiers, bool isLast);

  // Sends an event of the pointer's, and treats what the effect asks for.
  void SendPointer(PF_EventExtra& event);

  // Sends one event and takes down what came of it.
  void Send(PF_EventExtra& event, Drawing* drawing);

  // In the pane's coordinates, at the ends of 32 bits where it lies beyond.
  PF_Point InPane(PF_Point point) const;

  EffectHost& host;
  EffectInstance& instance;
  size_t index;
  Judge judge;
  bool isTracking = false;
  PF_DoClickEventInfo press{};  // the effect's own numbers in it last until the release
  A_u_long clock = 0;
};
