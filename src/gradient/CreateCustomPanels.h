// Makes the panels that the effect shows, for the life of the library.
#pragma once

// The shared screen buffer of two pixels for each logical one, and the colour map's panel in the
// registry. Done again, it replaces the panel.
//
// Throws the text "CreateCustomPanels failed!" (const char*) whatever goes wrong. What is there
// until DestroyCustomPanels is called can be used, or made again.
void CreateCustomPanels();
