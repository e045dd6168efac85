// The picture of the Commands row.
#pragma once

#include <array>
#include <cstdint>

#include "AE_EffectUI.h"
#include "shell/ParameterTable.h"
#include "shell/SequenceRecord.h"

// What the row shows.
struct CommandsRowLook {
  uint32_t applyButtonState = kApplyButtonNormal;  // as stored: anything
  std::array<bool, kRangeCount> active = {};
};

// Draws with the panel primitives, so only inside a draw event's bracket.
//
// frame   the row's place in the host's panel
void DrawCommandsRow(const PF_UnionableRect& frame, const CommandsRowLook& look);
