// The panels of the library, by their id.
#pragma once

#include <cstdint>
#include <memory>

class CustomPanel;

// One of the same id that was there before is deleted.
void RegisterCustomPanel(std::unique_ptr<CustomPanel> panel);

// Null if absent.
CustomPanel* FindCustomPanel(int32_t panelId);

// Deletes every panel and the shared screen buffer.
void DestroyCustomPanels();
