// Thrown where the host's drawing fails at a point that there is no going on from.
#pragma once

#include "SPBasic.h"

struct DRAWBOT_Exception {
  SPErr code = 0;  // the host's
};
