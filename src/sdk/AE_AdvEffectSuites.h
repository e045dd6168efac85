// The host's suite for its project, its windows and the Info panel.
#pragma once

#include "AE_Effect.h"

inline constexpr char kPFAdvAppSuite[] = "PF AE Adv App Suite";
inline constexpr int kPFAdvAppSuiteVersion1 = 1;

// The lines of text may be null.
struct PF_AdvAppSuite1 {
  PF_Err (*PF_SetProjectDirty)();
  PF_Err (*PF_SaveProject)();
  PF_Err (*PF_SaveBackgroundState)();
  PF_Err (*PF_ForceForeground)();
  PF_Err (*PF_RestoreBackgroundState)();
  PF_Err (*PF_RefreshAllWindows)();
  PF_Err (*PF_InfoDrawText)(const A_char* line1_0, const A_char* line2_0);
  PF_Err (*PF_InfoDrawColor)(PF_Pixel color);
  PF_Err (*PF_InfoDrawText3)(const A_char* line1_0, const A_char* line2_0, const A_char* line3_0);
};

static_assert(offsetof(PF_AdvAppSuite1, PF_SetProjectDirty) == 0);
static_assert(offsetof(PF_AdvAppSuite1, PF_SaveProject) == 8);
static_assert(offsetof(PF_AdvAppSuite1, PF_SaveBackgroundState) == 16);
static_assert(offsetof(PF_AdvAppSuite1, PF_ForceForeground) == 24);
static_assert(offsetof(PF_AdvAppSuite1, PF_RestoreBackgroundState) == 32);
static_assert(offsetof(PF_AdvAppSuite1, PF_RefreshAllWindows) == 40);
static_assert(offsetof(PF_AdvAppSuite1, PF_InfoDrawText) == 48);
static_assert(offsetof(PF_AdvAppSuite1, PF_InfoDrawColor) == 56);
static_assert(offsetof(PF_AdvAppSuite1, PF_InfoDrawText3) == 64);
static_assert(sizeof(PF_AdvAppSuite1) == 72);
