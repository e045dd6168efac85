// The points of a curve: adding them, taking them away, moving them.
#pragma once

#include <cstdint>

#include "gradient/CurveView.h"

// The number of points, 0 to CurvePointLimit: the slots before the first that ends the list.
int32_t CountPoints(const CurveView& curve);

// The slot that a new point at position `x` would take, or CurveNoPoint where it is too close to a
// neighbour or the list is full. Nothing is too close behind the last point.
int32_t FindPlaceFor(const CurveView& curve, float x);

// Adds a point and returns its slot; where there is no place for it, returns CurveNoPoint and
// changes nothing.
int32_t InsertPoint(const CurveView& curve, float x, float value);

// Takes a point out of the list; an index outside of it changes nothing.
void DeletePoint(const CurveView& curve, int32_t index);

// Gives a point another value and another position, held to the curve. A position that is too close
// to the neighbour on that side is left as it was. An index outside the list changes nothing.
void MovePoint(const CurveView& curve, int32_t index, float x, float value);

// Ends the list before its first point.
void ClearPoints(const CurveView& curve);

// Mirrors the points; twice gives the same list.
void FlipPoints(const CurveView& curve);
