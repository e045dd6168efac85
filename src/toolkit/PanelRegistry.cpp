// The map from id to panel.
#include "toolkit/PanelRegistry.h"

#include <map>

#include "toolkit/CustomPanel.h"
#include "toolkit/DestroyedControls.h"
#include "toolkit/SharedBuffers.h"

namespace {

using Panels = std::map<int32_t, std::unique_ptr<CustomPanel>>;

Panels& Registered() {
  // Panels that are still here when the library is unloaded need what was made before them.
  static Panels panels = [] {
    DestroyedControls::ForgetAll();
    return Panels();
  }();
  return panels;
}

}  // namespace

void RegisterCustomPanel(std::unique_ptr<CustomPanel> panel) {
  if (panel == nullptr) return;
  std::unique_ptr<CustomPanel>& place = Registered()[panel->GetId()];
  place.swap(panel);
}

CustomPanel* FindCustomPanel(int32_t panelId) {
  const auto found = Registered().find(panelId);
  return found == Registered().end() ? nullptr : found->second.get();
}

void DestroyCustomPanels() {
  // A panel may look others up while it goes.
  Panels leaving;
  leaving.swap(Registered());
  leaving.clear();
  DestroyScreenBuffer();
}
