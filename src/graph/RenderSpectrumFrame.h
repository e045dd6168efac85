// One frame of the effect's output: the analysis of the sound around it, as a picture.
#pragma once

#include "AE_Effect.h"
#include "host/PluginHost_AE_Impl.h"

// Replaces the output's pixels by the graph of the current time, and advances the falloff memory in
// the sequence record. The input layer is never read.
//
// One frame at a time is rendered in the whole process; a call on another thread waits. A host may
// ask for a frame out of a call that a frame makes.
// Returns 0; PF_Err_BAD_CALLBACK_PARAM where the call has no parameters or no output; the error of
// the record that isn't there; that of the host's audio calls or of its fill. After an error the
// record is as before and nothing has been drawn.
PF_Err RenderSpectrumFrame(const PluginHost_AE_Impl& host);
