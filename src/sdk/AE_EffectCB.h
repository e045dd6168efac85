// The calls that an effect makes back into the host: parameters, audio, progress, and utilities.
#pragma once

#include "AE_EffectCommands.h"
#include "AE_EffectMathCB.h"
#include "AE_EffectParam.h"

struct PF_CustomUIInfo;

using PF_PlatDataID = A_long;
enum : PF_PlatDataID {
  PF_PlatData_MAIN_WND = 0,  // data is the address of a window-handle variable
  PF_PlatData_EXE_FILE_PATH_DEPRECATED = 1,
  PF_PlatData_RES_FILE_PATH_DEPRECATED = 2,
  PF_PlatData_RES_REFNUM = 3,
  PF_PlatData_RES_DLLINSTANCE = 4,
  PF_PlatData_BUNDLE_REF = 5,
  PF_PlatData_EXE_FILE_PATH_W = 6,
  PF_PlatData_RES_FILE_PATH_W = 7,
};

// The reserved tail is our reading of the interface; it moves every field of PF_InData behind it.
//
// checkout_layer_audio  times in ticks of time_scale; rate 16.16 in Hz; fmt_signed non-zero: signed
// get_audio_data        every argument after audio may be null; num_samples0 counts frames
struct PF_InteractCallbacks {
  PF_Err (*checkout_param)(PF_ProgPtr effect_ref, PF_ParamIndex index, A_long what_time,
                           A_long time_step, A_u_long time_scale, PF_ParamDef* param);
  PF_Err (*checkin_param)(PF_ProgPtr effect_ref, PF_ParamDef* param);
  PF_Err (*add_param)(PF_ProgPtr effect_ref, PF_ParamIndex index, PF_ParamDef* def);
  PF_Err (*abort)(PF_ProgPtr effect_ref);
  PF_Err (*progress)(PF_ProgPtr effect_ref, A_long current, A_long total);
  PF_Err (*register_ui)(PF_ProgPtr effect_ref, PF_CustomUIInfo* cust_info);
  PF_Err (*checkout_layer_audio)(PF_ProgPtr effect_ref, PF_ParamIndex index, A_long start_time,
                                 A_long duration, A_u_long time_scale, PF_UFixed rate,
                                 A_long bytes_per_sample, A_long num_channels, A_long fmt_signed,
                                 PF_LayerAudio* audio);
  PF_Err (*checkin_layer_audio)(PF_ProgPtr effect_ref, PF_LayerAudio audio);
  PF_Err (*get_audio_data)(PF_ProgPtr effect_ref, PF_LayerAudio audio, PF_SndSamplePtr* data0,
                           A_long* num_samples0, PF_UFixed* rate0, A_long* bytes_per_sample0,
                           A_long* num_channels0, A_long* fmt_signed0);
  void* reserved_str[3];
  void* reserved[10];
};

static_assert(offsetof(PF_InteractCallbacks, checkout_param) == 0);
static_assert(offsetof(PF_InteractCallbacks, checkin_param) == 8);
static_assert(offsetof(PF_InteractCallbacks, add_param) == 16);
static_assert(offsetof(PF_InteractCallbacks, abort) == 24);
static_assert(offsetof(PF_InteractCallbacks, progress) == 32);
static_assert(offsetof(PF_InteractCallbacks, register_ui) == 40);
static_assert(offsetof(PF_InteractCallbacks, checkout_layer_audio) == 48);
static_assert(offsetof(PF_InteractCallbacks, checkin_layer_audio) == 56);
static_assert(offsetof(PF_InteractCallbacks, get_audio_data) == 64);
static_assert(offsetof(PF_InteractCallbacks, reserved_str) == 72);
static_assert(offsetof(PF_InteractCallbacks, reserved) == 96);
static_assert(sizeof(PF_InteractCallbacks) == 176);

// A slot that is a bare pointer stands for a function whose arguments nobody here needs.
//
// fill                color null: black with alpha 0; dst_rect null: the whole world
// host_new_handle     size in bytes
struct PF_UtilCallbacks {
  void* begin_sampling;
  void* subpixel_sample;
  void* area_sample;
  void* get_batch_func_is_deprecated;
  void* end_sampling;
  void* composite_rect;
  void* blend;
  void* convolve;
  void* copy;
  PF_Err (*fill)(PF_ProgPtr effect_ref, const PF_Pixel* color, const PF_Rect* dst_rect,
                 PF_EffectWorld* world);
  void* gaussian_kernel;
  void* iterate;
  void* premultiply;
  void* premultiply_color;
  void* new_world;
  void* dispose_world;
  void* iterate_origin;
  void* iterate_lut;
  void* transfer_rect;
  void* transform_world;
  PF_Handle (*host_new_handle)(A_HandleSize size);
  void* (*host_lock_handle)(PF_Handle handle);
  void (*host_unlock_handle)(PF_Handle handle);
  void (*host_dispose_handle)(PF_Handle handle);
  void* get_callback_addr;
  void* app;
  PF_ANSICallbacks ansi;
  PF_ColorCallbacks colorCB;
  PF_Err (*get_platform_data)(PF_ProgPtr effect_ref, PF_PlatDataID which, void* data);
  A_HandleSize (*host_get_handle_size)(PF_Handle handle);
  void* iterate_origin_non_clip_src;
  void* iterate_generic;
  PF_Err (*host_resize_handle)(A_HandleSize new_size, PF_Handle* handle);
  void* subpixel_sample16;
  void* area_sample16;
  void* fill16;
  void* premultiply_color16;
  void* iterate16;
  void* iterate_origin16;
  void* iterate_origin_non_clip_src16;
  void* get_pixel_data8;
  void* get_pixel_data16;
  A_long reserved[1];
};

static_assert(offsetof(PF_UtilCallbacks, begin_sampling) == 0);
static_assert(offsetof(PF_UtilCallbacks, subpixel_sample) == 8);
static_assert(offsetof(PF_UtilCallbacks, area_sample) == 16);
static_assert(offsetof(PF_UtilCallbacks, get_batch_func_is_deprecated) == 24);
static_assert(offsetof(PF_UtilCallbacks, end_sampling) == 32);
static_assert(offsetof(PF_UtilCallbacks, composite_rect) == 40);
static_assert(offsetof(PF_UtilCallbacks, blend) == 48);
static_assert(offsetof(PF_UtilCallbacks, convolve) == 56);
static_assert(offsetof(PF_UtilCallbacks, copy) == 64);
static_assert(offsetof(PF_UtilCallbacks, fill) == 72);
static_assert(offsetof(PF_UtilCallbacks, gaussian_kernel) == 80);
static_assert(offsetof(PF_UtilCallbacks, iterate) == 88);
static_assert(offsetof(PF_UtilCallbacks, premultiply) == 96);
static_assert(offsetof(PF_UtilCallbacks, premultiply_color) == 104);
static_assert(offsetof(PF_UtilCallbacks, new_world) == 112);
static_assert(offsetof(PF_UtilCallbacks, dispose_world) == 120);
static_assert(offsetof(PF_UtilCallbacks, iterate_origin) == 128);
static_assert(offsetof(PF_UtilCallbacks, iterate_lut) == 136);
static_assert(offsetof(PF_UtilCallbacks, transfer_rect) == 144);
static_assert(offsetof(PF_UtilCallbacks, transform_world) == 152);
static_assert(offsetof(PF_UtilCallbacks, host_new_handle) == 160);
static_assert(offsetof(PF_UtilCallbacks, host_lock_handle) == 168);
static_assert(offsetof(PF_UtilCallbacks, host_unlock_handle) == 176);
static_assert(offsetof(PF_UtilCallbacks, host_dispose_handle) == 184);
static_assert(offsetof(PF_UtilCallbacks, get_callback_addr) == 192);
static_assert(offsetof(PF_UtilCallbacks, app) == 200);
static_assert(offsetof(PF_UtilCallbacks, ansi) == 208);
static_assert(offsetof(PF_UtilCallbacks, colorCB) == 368);
static_assert(offsetof(PF_UtilCallbacks, get_platform_data) == 432);
static_assert(offsetof(PF_UtilCallbacks, host_get_handle_size) == 440);
static_assert(offsetof(PF_UtilCallbacks, iterate_origin_non_clip_src) == 448);
static_assert(offsetof(PF_UtilCallbacks, iterate_generic) == 456);
static_assert(offsetof(PF_UtilCallbacks, host_resize_handle) == 464);
static_assert(offsetof(PF_UtilCallbacks, subpixel_sample16) == 472);
static_assert(offsetof(PF_UtilCallbacks, area_sample16) == 480);
static_assert(offsetof(PF_UtilCallbacks, fill16) == 488);
static_assert(offsetof(PF_UtilCallbacks, premultiply_color16) == 496);
static_assert(offsetof(PF_UtilCallbacks, iterate16) == 504);
static_assert(offsetof(PF_UtilCallbacks, iterate_origin16) == 512);
static_assert(offsetof(PF_UtilCallbacks, iterate_origin_non_clip_src16) == 520);
static_assert(offsetof(PF_UtilCallbacks, get_pixel_data8) == 528);
static_assert(offsetof(PF_UtilCallbacks, get_pixel_data16) == 536);
static_assert(offsetof(PF_UtilCallbacks, reserved) == 544);
static_assert(sizeof(PF_UtilCallbacks) == 552);
