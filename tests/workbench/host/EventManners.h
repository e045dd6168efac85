// What the test effect does in an event: a click's modifier keys say so.
#pragma once

#include "AE_EffectUI.h"

constexpr PF_Modifiers kAskForDrags = PF_Mod_SHIFT_KEY;
constexpr PF_Modifiers kInvalidate = PF_Mod_OPT_ALT_KEY;     // 2 x 3 pixels at 1, 2 in the row
constexpr PF_Modifiers kUpdateNow = PF_Mod_CMD_CTRL_KEY;     //
constexpr PF_Modifiers kRefresh = PF_Mod_CAPS_LOCK_KEY;      // and the frame anew
constexpr PF_Modifiers kPickColor = PF_Mod_MAC_CONTROL_KEY;  // its green goes into the refcon
constexpr A_intptr_t kRefcon = 4711;
