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

void CopyColorMap(const GradientView& source, GradientView& destination) {
  std::copy_n(source.colorMapRed, GradientRampSize, destination.colorMapRed);
  std::copy_n(source.colorMapGreen, GradientRampSize, destination.colorMapGreen);
  std::copy_n(source.colorMapBlue, GradientRampSize, destination.colorMapBlue);
  std::copy_n(source.stopPosition, GradientStopLimit, destination.stopPosition);
  std::copy_n(source.stopRed, GradientStopLimit, destination.stopRed);
  std::copy_n(source.stopGreen, GradientStopLimit, destination.stopGreen);
  std::copy_n(source.stopBlue, GradientStopLimit, destination.stopBlue);
}

bool AreEqual(const GradientView& a, const GradientView& b) {
  const auto same = [](const auto* left, const auto* right, int32_t count) {
    return std::equal(left, left + count, right);
  };
  return same(a.colorMapRed, b.colorMapRed, GradientRampSize) &&
         same(a.colorMapGreen, b.colorMapGreen, GradientRampSize) &&
         same(a.colorMapBlue, b.colorMapBlue, GradientRampSize) &&
         same(a.stopRed, b.stopRed, GradientStopLimit) &&
         same(a.stopGreen, b.stopGreen, GradientStopLimit) &&
         same(a.stopBlue, b.stopBlue, GradientStopLimit) &&
         same(a.stopPosition, b.stopPosition, GradientStopLimit);
}
