// The sound buffer inside the command records.
//
// The size of this record decides where PF_InData::pica_basicP and PF_OutData::out_flags2 stand.
// The 64-bit rate is our choice; a host that refuses it is answered here and nowhere else.
#pragma once

#include "AE_EffectTypes.h"

struct PF_SoundFormatInfo {
  PF_FpLong rateF;
  A_short num_channels;
  A_short format;
  A_short sample_size;
};

struct PF_SoundWorld {
  PF_SoundFormatInfo fi;
  A_long num_samples;
  void* dataP;
};

static_assert(offsetof(PF_SoundFormatInfo, rateF) == 0);
static_assert(offsetof(PF_SoundFormatInfo, num_channels) == 8);
static_assert(offsetof(PF_SoundFormatInfo, format) == 10);
static_assert(offsetof(PF_SoundFormatInfo, sample_size) == 12);
static_assert(sizeof(PF_SoundFormatInfo) == 16);

static_assert(offsetof(PF_SoundWorld, fi) == 0);
static_assert(offsetof(PF_SoundWorld, num_samples) == 16);
static_assert(offsetof(PF_SoundWorld, dataP) == 24);
static_assert(sizeof(PF_SoundWorld) == 32);
