// The arrays of one colour map, wherever they lie: what every edit of a colour map works on.
#pragma once

#include <cstdint>
#include <memory>

#include "gradient/GradientRecord.h"

struct GradientView {
  // Looks into `record`, which must outlive the view and stay where it is. Changes nothing.
  explicit GradientView(GradientRecord& record);

  // A view over arrays of its own, which are freed with it: no stops, and a black ramp.
  // Throws std::bad_alloc.
  static GradientView WithOwnArrays();

  ~GradientView();
  GradientView(const GradientView&) = delete;
  GradientView& operator=(const GradientView&) = delete;

  float* const colorMapRed;  // GradientRampSize entries each
  float* const colorMapGreen;
  float* const colorMapBlue;
  uint8_t* const stopPosition;  // GradientStopLimit entries each
  float* const stopRed;
  float* const stopGreen;
  float* const stopBlue;
  bool ownsArrays = false;

 private:
  explicit GradientView(std::unique_ptr<GradientRecord> ownRecord);

  GradientRecord* const arrays;
};

// The number of stops, 0 to GradientStopLimit: the slots before the first free one. What lies
// behind that slot is no stop, whatever its bytes say.
int32_t CountStops(const GradientView& view);

// Copies the whole map, ramp and stops.
void CopyColorMap(const GradientView& source, GradientView& destination);

// Whether ramps and all slots, used or free, hold equal numbers: a NaN equals nothing, 0.0 is -0.0.
bool AreEqual(const GradientView& a, const GradientView& b);
