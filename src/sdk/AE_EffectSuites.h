// The host's suites for parameters, its own window, and drawing in an effect's controls.
#pragma once

#include "AE_Effect.h"
#include "AE_EffectUI.h"

inline constexpr char kPFParamUtilsSuite[] = "PF Param Utils Suite";
inline constexpr int kPFParamUtilsSuiteVersion2 = 2;

// The name and the length are our choice: two layouts of this suite are known, and slot 0 is the
// same in both.
//
// PF_UpdateParamUI  shows def's ui_flags; never for parameter 0
struct PF_ParamUtilsSuite2 {
  PF_Err (*PF_UpdateParamUI)(PF_ProgPtr effect_ref, PF_ParamIndex param_index,
                             const PF_ParamDef* def);
  void* opaque[9];
};

static_assert(offsetof(PF_ParamUtilsSuite2, PF_UpdateParamUI) == 0);
static_assert(sizeof(PF_ParamUtilsSuite2) == 80);

// Which of its colours the host is asked for:
//
//   0 frame       1 fill        2 text        3 light tinge   4 dark tinge   5 hilite   6 shadow
//   7 to 13       the same seven of a button
//   14 to 20      the same seven of a pressed button
//   21 to 23      frame, fill and text when disabled
using PF_App_ColorType = A_long;

inline constexpr char kPFAppSuite[] = "PF AE App Suite";
inline constexpr int kPFAppSuiteVersion6 = 6;

// PF_AppColorPickerDialog  PF_Interrupt_CANCEL when the user gives up
// PF_InvalidateRect        rect0 null: the whole pane
struct PFAppSuite6 {
  PF_Err (*PF_AppGetBgColor)(PF_App_Color* bg_color);
  PF_Err (*PF_AppGetColor)(PF_App_ColorType color_type, PF_App_Color* color);
  PF_Err (*PF_AppGetLanguage)(A_char* lang_tag);
  void* PF_GetPersonalInfo;
  void* PF_GetFontStyleSheet;
  PF_Err (*PF_SetCursor)(PF_CursorType cursor);
  PF_Err (*PF_IsRenderEngine)(PF_Boolean* render_engine);
  PF_Err (*PF_AppColorPickerDialog)(const A_char* title0, const PF_PixelFloat* sample_color,
                                    PF_Boolean use_ws_to_monitor_xform, PF_PixelFloat* new_color);
  PF_Err (*PF_GetMouse)(PF_Point* point);
  PF_Err (*PF_InvalidateRect)(PF_ContextH contextH, const PF_Rect* rect0);
  PF_Err (*PF_ConvertLocalToGlobal)(const PF_Point* local, PF_Point* global);
  void* PF_GetColorAtGlobalPoint;
  void* PF_CreateNewAppProgressDialog;
  void* PF_AppProgressDialogUpdate;
  void* PF_DisposeAppProgressDialog;
};

static_assert(offsetof(PFAppSuite6, PF_AppGetBgColor) == 0);
static_assert(offsetof(PFAppSuite6, PF_AppGetColor) == 8);
static_assert(offsetof(PFAppSuite6, PF_AppGetLanguage) == 16);
static_assert(offsetof(PFAppSuite6, PF_GetPersonalInfo) == 24);
static_assert(offsetof(PFAppSuite6, PF_GetFontStyleSheet) == 32);
static_assert(offsetof(PFAppSuite6, PF_SetCursor) == 40);
static_assert(offsetof(PFAppSuite6, PF_IsRenderEngine) == 48);
static_assert(offsetof(PFAppSuite6, PF_AppColorPickerDialog) == 56);
static_assert(offsetof(PFAppSuite6, PF_GetMouse) == 64);
static_assert(offsetof(PFAppSuite6, PF_InvalidateRect) == 72);
static_assert(offsetof(PFAppSuite6, PF_ConvertLocalToGlobal) == 80);
static_assert(offsetof(PFAppSuite6, PF_GetColorAtGlobalPoint) == 88);
static_assert(offsetof(PFAppSuite6, PF_CreateNewAppProgressDialog) == 96);
static_assert(offsetof(PFAppSuite6, PF_AppProgressDialogUpdate) == 104);
static_assert(offsetof(PFAppSuite6, PF_DisposeAppProgressDialog) == 112);
static_assert(sizeof(PFAppSuite6) == 120);

inline constexpr char kPFEffectCustomUISuite[] = "PF Effect Custom UI Suite";
inline constexpr int kPFEffectCustomUISuiteVersion1 = 1;

struct PF_EffectCustomUISuite1 {
  PF_Err (*PF_GetDrawingReference)(PF_ContextH contextH, DRAWBOT_DrawRef* ref0);
};

static_assert(offsetof(PF_EffectCustomUISuite1, PF_GetDrawingReference) == 0);
static_assert(sizeof(PF_EffectCustomUISuite1) == 8);
