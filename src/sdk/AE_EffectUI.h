// Events in an effect's own controls: what the host sends, and what the effect answers.
#pragma once

#include "AE_EffectCommands.h"
#include "AE_EffectTypes.h"
#include "DrawbotTypes.h"

using PF_EventType = A_long;
enum : PF_EventType {
  PF_Event_NONE = -1,
  PF_Event_NEW_CONTEXT = 0,
  PF_Event_ACTIVATE = 1,
  PF_Event_DO_CLICK = 2,
  PF_Event_DRAG = 3,
  PF_Event_DRAW = 4,
  PF_Event_DEACTIVATE = 5,
  PF_Event_CLOSE_CONTEXT = 6,
  PF_Event_IDLE = 7,
  PF_Event_ADJUST_CURSOR = 9,
  PF_Event_KEYDOWN = 10,
  PF_Event_MOUSE_EXITED = 11,
};

using PF_EventInFlags = A_long;
enum : PF_EventInFlags { PF_EI_NONE = 0, PF_EI_DONT_DRAW = 1 << 0 };

using PF_EventOutFlags = A_long;
enum : PF_EventOutFlags {
  PF_EO_NONE = 0,
  PF_EO_HANDLED_EVENT = 1 << 0,
  PF_EO_ALWAYS_UPDATE = 1 << 1,
  PF_EO_NEVER_UPDATE = 1 << 2,
  PF_EO_UPDATE_NOW = 1 << 3,
};

using PF_Modifiers = A_long;
enum : PF_Modifiers {
  PF_Mod_NONE = 0,
  PF_Mod_CMD_CTRL_KEY = 0x100,
  PF_Mod_SHIFT_KEY = 0x200,
  PF_Mod_CAPS_LOCK_KEY = 0x400,
  PF_Mod_OPT_ALT_KEY = 0x800,
  PF_Mod_MAC_CONTROL_KEY = 0x1000,
};

using PF_WindowType = A_long;
enum : PF_WindowType {
  PF_Window_NONE = -1,
  PF_Window_COMP = 0,
  PF_Window_LAYER = 1,
  PF_Window_EFFECT = 2,
  PF_Window_PREVIEW = 3,
};

using PF_EffectArea = A_long;
enum : PF_EffectArea { PF_EA_NONE = 0, PF_EA_PARAM_TITLE = 1, PF_EA_CONTROL = 2 };

using PF_CustomEventFlags = A_long;
enum : PF_CustomEventFlags {
  PF_CustomEFlag_NONE = 0,
  PF_CustomEFlag_COMP = 1 << 0,
  PF_CustomEFlag_LAYER = 1 << 1,
  PF_CustomEFlag_EFFECT = 1 << 2,
  PF_CustomEFlag_PREVIEW = 1 << 3,
};

using PF_UIAlignment = A_long;

// Cursors go by number:
//
//    0 none             1 custom            2 arrow            3 hollow arrow      4 watch
//    5 magnify          6 magnify plus      7 magnify minus    8 crosshairs        9 cross rect
//   10 cross oval      11 cross rotate     12 pan             13 eyedropper       14 hand
//   15 pen             16 pen add          17 pen delete      18 pen close        19 pen drag
//   20 pen corner      21 resize vertical  22 resize horizontal                   23 finger
//   24 scale horizontal                    25 scale diagonal, falling
//   26 scale vertical                      27 scale diagonal, rising
using PF_CursorType = A_long;

// Which windows send their events to the effect.
struct PF_CustomUIInfo {
  A_long reserved;
  PF_CustomEventFlags events;
  A_long comp_ui_width;
  A_long comp_ui_height;
  PF_UIAlignment comp_ui_alignment;
  A_long layer_ui_width;
  A_long layer_ui_height;
  PF_UIAlignment layer_ui_alignment;
  A_long preview_ui_width;
  A_long preview_ui_height;
  PF_UIAlignment preview_ui_alignment;
};

static_assert(offsetof(PF_CustomUIInfo, reserved) == 0);
static_assert(offsetof(PF_CustomUIInfo, events) == 4);
static_assert(offsetof(PF_CustomUIInfo, comp_ui_width) == 8);
static_assert(offsetof(PF_CustomUIInfo, comp_ui_height) == 12);
static_assert(offsetof(PF_CustomUIInfo, comp_ui_alignment) == 16);
static_assert(offsetof(PF_CustomUIInfo, layer_ui_width) == 20);
static_assert(offsetof(PF_CustomUIInfo, layer_ui_height) == 24);
static_assert(offsetof(PF_CustomUIInfo, layer_ui_alignment) == 28);
static_assert(offsetof(PF_CustomUIInfo, preview_ui_width) == 32);
static_assert(offsetof(PF_CustomUIInfo, preview_ui_height) == 36);
static_assert(offsetof(PF_CustomUIInfo, preview_ui_alignment) == 40);
static_assert(sizeof(PF_CustomUIInfo) == 44);

// The window that an event comes from.
struct PF_Context {
  A_u_long magic;
  PF_WindowType w_type;
  A_FpLong reserved_flt;
  A_intptr_t plugin_state[4];
  DRAWBOT_DrawRef reserved_drawref;
  void* reserved_paneP;
  void* reserved_jobManP;
};

static_assert(offsetof(PF_Context, magic) == 0);
static_assert(offsetof(PF_Context, w_type) == 4);
static_assert(offsetof(PF_Context, reserved_flt) == 8);
static_assert(offsetof(PF_Context, plugin_state) == 16);
static_assert(offsetof(PF_Context, reserved_drawref) == 48);
static_assert(offsetof(PF_Context, reserved_paneP) == 56);
static_assert(offsetof(PF_Context, reserved_jobManP) == 64);
static_assert(sizeof(PF_Context) == 72);

using PF_ContextH = PF_Context**;

// Which parameter's controls an event is for, and where they stand in the window, in pixels.
struct PF_EffectWindowInfo {
  PF_ParamIndex index;
  PF_EffectArea area;
  PF_UnionableRect current_frame;
  PF_UnionableRect param_title_frame;
  A_long horiz_offset;
};

static_assert(offsetof(PF_EffectWindowInfo, index) == 0);
static_assert(offsetof(PF_EffectWindowInfo, area) == 4);
static_assert(offsetof(PF_EffectWindowInfo, current_frame) == 8);
static_assert(offsetof(PF_EffectWindowInfo, param_title_frame) == 24);
static_assert(offsetof(PF_EffectWindowInfo, horiz_offset) == 40);
static_assert(sizeof(PF_EffectWindowInfo) == 44);

// A press, and each PF_Event_DRAG that follows when the effect sets send_drag.
//
// continue_refcon  the effect's own, kept from the press to the last drag
// last_time        in a drag: the button has come up
struct PF_DoClickEventInfo {
  A_u_long when;
  PF_Point screen_point;
  A_long num_clicks;
  PF_Modifiers modifiers;
  A_intptr_t continue_refcon[4];
  PF_Boolean send_drag;
  PF_Boolean last_time;
};

static_assert(offsetof(PF_DoClickEventInfo, when) == 0);
static_assert(offsetof(PF_DoClickEventInfo, screen_point) == 4);
static_assert(offsetof(PF_DoClickEventInfo, num_clicks) == 12);
static_assert(offsetof(PF_DoClickEventInfo, modifiers) == 16);
static_assert(offsetof(PF_DoClickEventInfo, continue_refcon) == 24);
static_assert(offsetof(PF_DoClickEventInfo, send_drag) == 56);
static_assert(offsetof(PF_DoClickEventInfo, last_time) == 57);
static_assert(sizeof(PF_DoClickEventInfo) == 64);

struct PF_DrawEventInfo {
  PF_UnionableRect update_rect;
  A_long depth;
};

static_assert(offsetof(PF_DrawEventInfo, update_rect) == 0);
static_assert(offsetof(PF_DrawEventInfo, depth) == 16);
static_assert(sizeof(PF_DrawEventInfo) == 20);

// set_cursor  the effect's answer
struct PF_AdjustCursorEventInfo {
  PF_Point screen_point;
  PF_Modifiers modifiers;
  PF_CursorType set_cursor;
};

static_assert(offsetof(PF_AdjustCursorEventInfo, screen_point) == 0);
static_assert(offsetof(PF_AdjustCursorEventInfo, modifiers) == 8);
static_assert(offsetof(PF_AdjustCursorEventInfo, set_cursor) == 12);
static_assert(sizeof(PF_AdjustCursorEventInfo) == 16);

struct PF_KeyDownEvent {
  A_u_long when;
  PF_Point screen_point;
  A_u_long keycode;
  PF_Modifiers modifiers;
};

static_assert(offsetof(PF_KeyDownEvent, when) == 0);
static_assert(offsetof(PF_KeyDownEvent, screen_point) == 4);
static_assert(offsetof(PF_KeyDownEvent, keycode) == 12);
static_assert(offsetof(PF_KeyDownEvent, modifiers) == 16);
static_assert(sizeof(PF_KeyDownEvent) == 20);

// PF_EventExtra::e_type tells which member is set; a drag uses do_click.
union PF_EventUnion {
  PF_DoClickEventInfo do_click;
  PF_DrawEventInfo draw;
  PF_AdjustCursorEventInfo adjust_cursor;
  PF_KeyDownEvent key_down;
};

static_assert(sizeof(PF_EventUnion) == 64 && alignof(PF_EventUnion) == 8);

// refcon  first argument of each call
struct PF_EventCallbacks {
  void* refcon;
  PF_Err (*layer_to_comp)(void* refcon, PF_ContextH contextH, A_long curr_time, A_long time_scale,
                          PF_FixedPoint* pt);
  PF_Err (*comp_to_layer)(void* refcon, PF_ContextH contextH, A_long curr_time, A_long time_scale,
                          PF_FixedPoint* pt);
  PF_Err (*get_comp2layer_xform)(void* refcon, PF_ContextH contextH, A_long curr_time,
                                 A_long time_scale, A_long* exists, PF_FloatMatrix* matrix);
  PF_Err (*get_layer2comp_xform)(void* refcon, PF_ContextH contextH, A_long curr_time,
                                 A_long time_scale, PF_FloatMatrix* matrix);
  PF_Err (*source_to_frame)(void* refcon, PF_ContextH contextH, PF_FixedPoint* pt);
  PF_Err (*frame_to_source)(void* refcon, PF_ContextH contextH, PF_FixedPoint* pt);
  PF_Err (*info_draw_color)(void* refcon, PF_Pixel color);
  PF_Err (*info_draw_text)(void* refcon, const A_char* text1, const A_char* text2);
};

static_assert(offsetof(PF_EventCallbacks, refcon) == 0);
static_assert(offsetof(PF_EventCallbacks, layer_to_comp) == 8);
static_assert(offsetof(PF_EventCallbacks, comp_to_layer) == 16);
static_assert(offsetof(PF_EventCallbacks, get_comp2layer_xform) == 24);
static_assert(offsetof(PF_EventCallbacks, get_layer2comp_xform) == 32);
static_assert(offsetof(PF_EventCallbacks, source_to_frame) == 40);
static_assert(offsetof(PF_EventCallbacks, frame_to_source) == 48);
static_assert(offsetof(PF_EventCallbacks, info_draw_color) == 56);
static_assert(offsetof(PF_EventCallbacks, info_draw_text) == 64);
static_assert(sizeof(PF_EventCallbacks) == 72);

// What goes with PF_Cmd_EVENT.
//
// That cbs is the record itself and no pointer to it is our choice; it decides where the two flag
// words stand.
struct PF_EventExtra {
  PF_ContextH contextH;
  PF_EventType e_type;
  PF_EventUnion u;
  PF_EffectWindowInfo effect_win;
  PF_EventCallbacks cbs;
  PF_EventInFlags evt_in_flags;
  PF_EventOutFlags evt_out_flags;
};

static_assert(offsetof(PF_EventExtra, contextH) == 0);
static_assert(offsetof(PF_EventExtra, e_type) == 8);
static_assert(offsetof(PF_EventExtra, u) == 16);
static_assert(offsetof(PF_EventExtra, effect_win) == 80);
static_assert(offsetof(PF_EventExtra, cbs) == 128);
static_assert(offsetof(PF_EventExtra, evt_in_flags) == 200);
static_assert(offsetof(PF_EventExtra, evt_out_flags) == 204);
static_assert(sizeof(PF_EventExtra) == 208);
