// The points of a curve: adding them, taking them away, moving them.
#include "gradient/CurvePoints.h"

#include <algorithm>
#include <utility>

namespace {

// Every list that this file leaves is ended, whatever lies in the slots behind it.
void EndListAt(const CurveView& curve, int32_t index) {
  if (index < CurvePointLimit) curve.pointX[index] = CurveListEnd;
}

}  // namespace

int32_t CountPoints(const CurveView& curve) {
  const float* const begin = curve.pointX;
  return static_cast<int32_t>(std::find(begin, begin + CurvePointLimit, CurveListEnd) - begin);
}

int32_t FindPlaceFor(const CurveView& curve, float x) {
  const int32_t count = CountPoints(curve);
  if (count == CurvePointLimit) return CurveNoPoint;
  for (int32_t i = 0; i < count; ++i) {
    if (!(curve.pointX[i] - CurveLeastDistance > x)) continue;
    const bool isFree = i == 0 || x - curve.pointX[i - 1] >= CurveLeastDistance;
    return isFree ? i : CurveNoPoint;
  }
  return count;
}

int32_t InsertPoint(const CurveView& curve, float x, float value) {
  const int32_t place = FindPlaceFor(curve, x);
  if (place == CurveNoPoint) return CurveNoPoint;
  const int32_t count = CountPoints(curve);
  std::copy_backward(curve.pointX + place, curve.pointX + count, curve.pointX + count + 1);
  std::copy_backward(curve.pointY + place, curve.pointY + count, curve.pointY + count + 1);
  curve.pointX[place] = x;
  curve.pointY[place] = value;
  EndListAt(curve, count + 1);
  return place;
}

void DeletePoint(const CurveView& curve, int32_t index) {
  const int32_t count = CountPoints(curve);
  if (index < 0 || index >= count) return;
  std::copy(curve.pointX + index + 1, curve.pointX + count, curve.pointX + index);
  std::copy(curve.pointY + index + 1, curve.pointY + count, curve.pointY + index);
  EndListAt(curve, count - 1);
}

void MovePoint(const CurveView& curve, int32_t index, float x, float value) {
  const int32_t count = CountPoints(curve);
  if (index < 0 || index >= count) return;
  const float held = std::clamp(x, 0.0F, static_cast<float>(CurvePositionEnd));
  float& place = curve.pointX[index];
  const bool meetsNext =
      held > place && index + 1 < count && curve.pointX[index + 1] - held < CurveLeastDistance;
  const bool meetsPrevious =
      held < place && index > 0 && held - curve.pointX[index - 1] < CurveLeastDistance;
  if (!meetsNext && !meetsPrevious) place = held;
  curve.pointY[index] = value;
}

void ClearPoints(const CurveView& curve) {
  std::fill_n(curve.pointX, CurvePointLimit, CurveListEnd);
}

void FlipPoints(const CurveView& curve) {
  const int32_t count = CountPoints(curve);
  std::reverse(curve.pointX, curve.pointX + count);
  std::reverse(curve.pointY, curve.pointY + count);
  for (int32_t i = 0; i < count; ++i) {
    curve.pointX[i] = static_cast<float>(CurvePositionEnd) - curve.pointX[i];
  }
}
