// Pages of specimens: what the drawing can do, to be looked at.
#pragma once

#include "drawing/ImageBuffer.h"

// A page draws itself into a picture of 640 x 400 logical pixels, on the panels' dark grey; the
// picture is scale-aware at scale 1 and at scale 2.
struct Page {
  const char* name;  // of the file, without what tells the scale
  void (*draw)(ImageBuffer& page);
};

void DrawIconPage(ImageBuffer& page);
void DrawButtonPage(ImageBuffer& page);
// Stock controls in all their looks: along a track, switched by a press, with a caption.
void DrawRangePage(ImageBuffer& page);
void DrawSwitchPage(ImageBuffer& page);
void DrawTitledPage(ImageBuffer& page);
void DrawShapePage(ImageBuffer& page);
void DrawBlendPage(ImageBuffer& page);
// The colour map's panel at work, and at its ends: disabled, no stop, fifty stops, presets.
void DrawEditorPage(ImageBuffer& page);
void DrawEditorEndsPage(ImageBuffer& page);
// The curve editor in both modes and at its ends, and its presets.
void DrawEvolutionPage(ImageBuffer& page);
void DrawEvolutionEndsPage(ImageBuffer& page);
void DrawCurvePresetPage(ImageBuffer& page);
// Text as it stands on panels, the widths of pairs, and every glyph of every font.
void DrawTextPage(ImageBuffer& page);
void DrawGlyphsPage(ImageBuffer& page);
// Numbers, editors, combos, links, labels and blocks of text, in each of their states.
void DrawTextControlsPage(ImageBuffer& page);
