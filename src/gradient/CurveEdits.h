// What the buttons of the curve editor do to a curve.
#pragma once

#include <cstdint>

#include "gradient/CurveView.h"

// Places the fewest points whose smooth line keeps close to the samples, at equal distances, and
// writes that line into the samples.
//
// height   of the graph that the line is laid out in, pixels
void FitCurve(const CurveView& curve, int32_t height);

// Replaces each sample by the mean of itself and its neighbours, 5 in all or, strongly, 11; beyond
// an end the last sample repeats.
void SmoothSamples(const CurveView& curve, bool strong);

void RandomizeSamples(const CurveView& curve, uint32_t seed);
// Five to nine points anywhere, in order; the last one stands at the end and as high as the one
// before it.
void RandomizePoints(const CurveView& curve, uint32_t seed);

void FlipSamples(const CurveView& curve);

// Whether all that is edited is 0.0: the samples of a curve drawn freehand, else the points.
bool IsFlatCurve(const CurveView& curve, bool freehand);
