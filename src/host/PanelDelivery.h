// What the panel hears of one event, and what the host is told in return.
#pragma once

#include "host/PanelPointer.h"
#include "shell/GlobalRecord.h"
#include "toolkit/ControlWatch.h"

class PluginContext_AE;
class WindowContext_AE;

// What stands behind the panel during one event.
struct PanelEvent {
  PluginContext_AE& plugin;
  WindowContext_AE& window;
  PanelPointer& pointer;  // brought up to date by the events of the mouse
  const GlobalRecord& global;
};

// Clicks, drags, draws and questions for a cursor reach the panel; of other kinds of events it
// hears nothing.
//
// panel   a CustomPanel that is armed for the event; may go while it hears of it
// Throws what the tree throws, and then the host is asked for nothing.
void DeliverPanelEvent(const PanelEvent& event, const ControlWatch& panel);
