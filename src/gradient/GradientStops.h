// The edits of a colour map's stops.
//
// They are safe on any stored bytes, and slots behind the first free one are no stops. None
// allocates, none can fail.
#pragma once

#include <cstdint>

#include "gradient/GradientRecord.h"
#include "gradient/GradientView.h"

// Frees all slots and sets their colours to 0.0. The ramp stays as it is.
void ClearStops(GradientView& view);

// Adds a stop behind those at the same or a lower position and returns the slot where it stands;
// GradientNoStop when all 50 slots are taken, and then nothing has changed.
//
// position   0 to 200; beyond that the nearer end is taken
// The ramp is left for the caller to rebuild.
int32_t InsertStop(GradientView& view, int32_t position, float red, float green, float blue);

// Moves a stop and returns the slot where it stands then. It passes its neighbours one by one: to
// the right also those at `position`, to the left only those beyond it.
//
// position   0 to 200; beyond that the nearer end is taken
// A slot that holds no stop stays as it is. The ramp is left for the caller to rebuild.
int32_t MoveStop(GradientView& view, int32_t slot, int32_t position);

// Takes a stop out; those behind it move up. A slot that holds no stop stays as it is. The ramp is
// left for the caller to rebuild.
void RemoveStop(GradientView& view, int32_t slot);

// Any numbers. A slot that holds no stop stays as it is. The ramp is left for the caller to
// rebuild.
void SetStopColor(GradientView& view, int32_t slot, float red, float green, float blue);

// Mirrors the map left to right and rebuilds the ramp. A map of one stop or none stays as it is,
// ramp included. A stored position of 201 to 254 counts as 200.
void FlipStops(GradientView& view);

// Gives each stop a colour by chance, with components of 0.00 to 0.99 in steps of 0.01, and
// rebuilds the ramp. The same seed gives the same colours; without one it is the tick count.
void RandomizeStops(GradientView& view);
void RandomizeStops(GradientView& view, uint32_t seed);

// Makes it the default map of five stops, from red at 0 over yellow, green and cyan to blue at
// 200, and rebuilds the ramp.
void ResetStops(GradientView& view);

// ResetStops on a record whose bytes may still be anything.
void InitRecord(GradientRecord& record);
