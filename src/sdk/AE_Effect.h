// The effect interface: the two records that go with every command, and all that they are made of.
#pragma once

#include "AE_EffectCB.h"
#include "AE_EffectCommands.h"
#include "AE_EffectOutFlags.h"
#include "AE_EffectParam.h"
#include "AE_EffectSound.h"
#include "AE_EffectTypes.h"
#include "AE_EffectWorld.h"
#include "SPBasic.h"

// What the host tells with every command. Valid for the call only.
//
// appl_id       four characters, the first in the high byte: 'FXTC' 0x46585443 is After Effects,
//               'PrMr' 0x50724D72 is Premiere Pro
// current_time  and the other times: layer time in ticks of 1 / time_scale seconds
struct PF_InData {
  PF_InteractCallbacks inter;
  PF_UtilCallbacks* utils;
  PF_ProgPtr effect_ref;
  PF_Quality quality;
  PF_SpecVersion version;
  A_long serial_num;
  A_long appl_id;
  A_long num_params;
  A_long reserved;
  A_long what_cpu;
  A_long what_fpu;
  A_long current_time;
  A_long time_step;
  A_long total_time;
  A_long local_time_step;
  A_u_long time_scale;
  PF_Field field;
  PF_Fixed shutter_angle;
  A_long width;
  A_long height;
  PF_Rect extent_hint;
  A_long output_origin_x;
  A_long output_origin_y;
  PF_RationalScale downsample_x;
  PF_RationalScale downsample_y;
  PF_RationalScale pixel_aspect_ratio;
  PF_InFlags in_flags;
  PF_Handle global_data;
  PF_Handle sequence_data;
  PF_Handle frame_data;
  A_long start_sampL;
  A_long dur_sampL;
  A_long total_sampL;
  PF_SoundWorld src_snd;
  SPBasicSuite* pica_basicP;
  A_long pre_effect_source_origin_x;
  A_long pre_effect_source_origin_y;
  PF_Fixed shutter_phase;
};

static_assert(offsetof(PF_InData, inter) == 0);
static_assert(offsetof(PF_InData, utils) == 176);
static_assert(offsetof(PF_InData, effect_ref) == 184);
static_assert(offsetof(PF_InData, quality) == 192);
static_assert(offsetof(PF_InData, version) == 196);
static_assert(offsetof(PF_InData, serial_num) == 200);
static_assert(offsetof(PF_InData, appl_id) == 204);
static_assert(offsetof(PF_InData, num_params) == 208);
static_assert(offsetof(PF_InData, reserved) == 212);
static_assert(offsetof(PF_InData, what_cpu) == 216);
static_assert(offsetof(PF_InData, what_fpu) == 220);
static_assert(offsetof(PF_InData, current_time) == 224);
static_assert(offsetof(PF_InData, time_step) == 228);
static_assert(offsetof(PF_InData, total_time) == 232);
static_assert(offsetof(PF_InData, local_time_step) == 236);
static_assert(offsetof(PF_InData, time_scale) == 240);
static_assert(offsetof(PF_InData, field) == 244);
static_assert(offsetof(PF_InData, shutter_angle) == 248);
static_assert(offsetof(PF_InData, width) == 252);
static_assert(offsetof(PF_InData, height) == 256);
static_assert(offsetof(PF_InData, extent_hint) == 260);
static_assert(offsetof(PF_InData, output_origin_x) == 276);
static_assert(offsetof(PF_InData, output_origin_y) == 280);
static_assert(offsetof(PF_InData, downsample_x) == 284);
static_assert(offsetof(PF_InData, downsample_y) == 292);
static_assert(offsetof(PF_InData, pixel_aspect_ratio) == 300);
static_assert(offsetof(PF_InData, in_flags) == 308);
static_assert(offsetof(PF_InData, global_data) == 312);
static_assert(offsetof(PF_InData, sequence_data) == 320);
static_assert(offsetof(PF_InData, frame_data) == 328);
static_assert(offsetof(PF_InData, start_sampL) == 336);
static_assert(offsetof(PF_InData, dur_sampL) == 340);
static_assert(offsetof(PF_InData, total_sampL) == 344);
static_assert(offsetof(PF_InData, src_snd) == 352);
static_assert(offsetof(PF_InData, pica_basicP) == 384);
static_assert(offsetof(PF_InData, pre_effect_source_origin_x) == 392);
static_assert(offsetof(PF_InData, pre_effect_source_origin_y) == 396);
static_assert(offsetof(PF_InData, shutter_phase) == 400);
static_assert(sizeof(PF_InData) == 408);

// What the effect answers. The host reads it when the command returns.
//
// return_msg  ends with a zero; shown when PF_OutFlag_DISPLAY_ERROR_MESSAGE is set
struct PF_OutData {
  A_u_long my_version;
  A_char name[32];
  PF_Handle global_data;
  A_long num_params;
  PF_Handle sequence_data;
  A_long flat_sdata_size;
  PF_Handle frame_data;
  A_long width;
  A_long height;
  PF_Point origin;
  PF_OutFlags out_flags;
  A_char return_msg[256];
  A_long start_sampL;
  A_long dur_sampL;
  PF_SoundWorld dest_snd;
  PF_OutFlags2 out_flags2;
};

static_assert(offsetof(PF_OutData, my_version) == 0);
static_assert(offsetof(PF_OutData, name) == 4);
static_assert(offsetof(PF_OutData, global_data) == 40);
static_assert(offsetof(PF_OutData, num_params) == 48);
static_assert(offsetof(PF_OutData, sequence_data) == 56);
static_assert(offsetof(PF_OutData, flat_sdata_size) == 64);
static_assert(offsetof(PF_OutData, frame_data) == 72);
static_assert(offsetof(PF_OutData, width) == 80);
static_assert(offsetof(PF_OutData, height) == 84);
static_assert(offsetof(PF_OutData, origin) == 88);
static_assert(offsetof(PF_OutData, out_flags) == 96);
static_assert(offsetof(PF_OutData, return_msg) == 100);
static_assert(offsetof(PF_OutData, start_sampL) == 356);
static_assert(offsetof(PF_OutData, dur_sampL) == 360);
static_assert(offsetof(PF_OutData, dest_snd) == 368);
static_assert(offsetof(PF_OutData, out_flags2) == 400);
static_assert(sizeof(PF_OutData) == 408);

// The function that the library exports. The name of this type is ours.
//
// params  the parameters in the order of their declaration, the input layer first
// extra   what belongs to the command: with PF_Cmd_EVENT a PF_EventExtra*
using PF_EntryPoint = PF_Err (*)(PF_Cmd cmd, PF_InData* in_data, PF_OutData* out_data,
                                 PF_ParamDef* params[], PF_LayerDef* output, void* extra);
