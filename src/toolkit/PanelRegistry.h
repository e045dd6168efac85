// The panels of the library, by their id.
#pragma once

#include <cstdint>

class CustomPanel;

// Takes the panel over; one of the same id before it is deleted.
void RegisterCustomPanel(CustomPanel* panel);

// Null if absent.
CustomPanel* FindCustomPanel(int32_t panelId);

// Deletes every panel and the shared screen buffer.
void DestroyCustomPanels();
