// What one render is to make.
#pragma once

#include "AE_EffectTypes.h"
#include "workbench/host/OutputWorld.h"

// layerTick    the time of the frame, in layer time on the comp's scale
// downsample   1 and more: the world holds the layer at 1 / downsample of its size
struct RenderRequest {
  OutputWorld& world;
  A_long layerTick = 0;
  A_u_long downsample = 1;
};
