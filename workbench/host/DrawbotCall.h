// What the callbacks of the drawing suites share.
#pragma once

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <type_traits>

#include "SPBasic.h"
#include "workbench/drawbot/Drawing.h"
#include "workbench/host/HostCall.h"

// Does the work of a call on the supplier, the surface or the reference to draw with.
//
// body   gets the call and its drawing, and returns the call's answer
template <typename Reference, typename Body>
SPErr OnDrawing(const char* name, Reference reference, Body body) {
  const HostCall call(name);
  if (!call) return call.Error();
  Drawing* drawing = call->drawing;
  if (drawing == nullptr) return call.Broken("drawing is legal during a draw event only");
  if (!drawing->Owns(reference)) return call.Broken("the reference is not the one of this draw");
  return body(call, *drawing);
}

// Null pointers count as numbers that are none.
inline bool AreFinite(std::initializer_list<float> numbers) {
  return std::all_of(numbers.begin(), numbers.end(), [](float n) { return std::isfinite(n); });
}
inline bool IsFinite(const DRAWBOT_ColorRGBA* c) {
  return c != nullptr && AreFinite({c->red, c->green, c->blue, c->alpha});
}
inline bool IsFinite(const DRAWBOT_PointF32* p) {
  return p != nullptr && AreFinite({p->x, p->y});
}
inline bool IsFinite(const DRAWBOT_RectF32* r) {
  return r != nullptr && AreFinite({r->left, r->top, r->width, r->height});
}

// Tells the plug-in `value`.
template <typename Value>
SPErr Answer(const HostCall& call, std::type_identity_t<Value> value, Value* answer) {
  if (answer == nullptr) return call.Broken("there is nowhere to put the answer");
  *answer = value;
  return 0;
}
