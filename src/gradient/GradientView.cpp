// Where the arrays of a colour map lie, and who frees them.
#include "gradient/GradientView.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <utility>

#include "gradient/GradientRecord.h"

GradientView::GradientView(GradientRecord& record)
    : colorMapRed(record.colorMapRed),
      colorMapGreen(record.colorMapGreen),
      colorMapBlue(record.colorMapBlue),
      stopPosition(record.stopPosition),
      stopRed(record.stopRed),
      stopGreen(record.stopGreen),
      stopBlue(record.stopBlue),
      arrays(&record) {}

GradientView::GradientView(std::unique_ptr<GradientRecord> ownRecord)
    : GradientView(*ownRecord.release()) {
  ownsArrays = true;
}

GradientView GradientView::WithOwnArrays() {
  auto record = std::make_unique<GradientRecord>();
  std::fill_n(record->stopPosition, GradientStopLimit, GradientNoStop);
  return GradientView(std::move(record));
}

GradientView::~GradientView() {
  if (ownsArrays) delete arrays;
}

int32_t CountStops(const GradientView& view) {
  const uint8_t* const begin = view.stopPosition;
  return static_cast<int32_t>(std::find(begin, begin + GradientStopLimit, GradientNoStop) - begin);
}
