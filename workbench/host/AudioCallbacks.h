// The three callbacks through which an effect gets the sound of a layer.
#pragma once

#include "AE_Effect.h"

PF_Err CheckoutLayerAudio(PF_ProgPtr effect_ref, PF_ParamIndex index, A_long start_time,
                          A_long duration, A_u_long time_scale, PF_UFixed rate,
                          A_long bytes_per_sample, A_long num_channels, A_long fmt_signed,
                          PF_LayerAudio* audio);
PF_Err CheckinLayerAudio(PF_ProgPtr effect_ref, PF_LayerAudio audio);
PF_Err GetAudioData(PF_ProgPtr effect_ref, PF_LayerAudio audio, PF_SndSamplePtr* data0,
                    A_long* num_samples0, PF_UFixed* rate0, A_long* bytes_per_sample0,
                    A_long* num_channels0, A_long* fmt_signed0);
