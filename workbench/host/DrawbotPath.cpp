// The drawing suite that builds paths.
#include <array>

#include "workbench/host/DrawbotCall.h"
#include "workbench/host/SuiteRegistry.h"

namespace {

// Does the work of a call on a path.
template <typename Body>
SPErr OnPath(const char* name, DRAWBOT_PathRef reference, Body body) {
  const HostCall call(name);
  if (!call) return call.Error();
  if (call->drawing == nullptr) return call.Broken("drawing is legal during a draw event only");
  auto* path = call->drawing->objects.Find<DrawPath>(reference);
  if (path == nullptr) return call.Broken("the path is not a live one");
  return body(call, path->steps);
}

SPErr AddStep(const char* name, DRAWBOT_PathRef path, PathStep::Kind kind,
              std::array<float, 6> numbers) {
  return OnPath(name, path, [=](const HostCall& call, std::vector<PathStep>& steps) -> SPErr {
    for (const float number : numbers) {
      if (!std::isfinite(number)) return call.Broken("a coordinate is no finite number");
    }
    steps.push_back({kind, numbers});
    return 0;
  });
}

SPErr AddNothing(const char* name, DRAWBOT_PathRef path) {
  return OnPath(name, path, [](const HostCall& call, std::vector<PathStep>& /*steps*/) {
    return call.Broken("a point or a rectangle is null");
  });
}

SPErr MoveTo(DRAWBOT_PathRef path, float x, float y) {
  return AddStep("MoveTo", path, PathStep::Kind::kMove, {x, y});
}
SPErr LineTo(DRAWBOT_PathRef path, float x, float y) {
  return AddStep("LineTo", path, PathStep::Kind::kLine, {x, y});
}
SPErr BezierTo(DRAWBOT_PathRef path, const DRAWBOT_PointF32* a, const DRAWBOT_PointF32* b,
               const DRAWBOT_PointF32* c) {
  if (a == nullptr || b == nullptr || c == nullptr) return AddNothing("BezierTo", path);
  return AddStep("BezierTo", path, PathStep::Kind::kCurve, {a->x, a->y, b->x, b->y, c->x, c->y});
}
SPErr AddRect(DRAWBOT_PathRef path, const DRAWBOT_RectF32* rect) {
  if (rect == nullptr) return AddNothing("AddRect", path);
  return AddStep("AddRect", path, PathStep::Kind::kRect,
                 {rect->left, rect->top, rect->width, rect->height});
}
SPErr AddArc(DRAWBOT_PathRef path, const DRAWBOT_PointF32* center, float radius, float start,
             float sweep) {
  if (center == nullptr) return AddNothing("AddArc", path);
  return AddStep("AddArc", path, PathStep::Kind::kArc,
                 {center->x, center->y, radius, start, sweep});
}
SPErr Close(DRAWBOT_PathRef path) {
  return AddStep("Close", path, PathStep::Kind::kClose, {});
}

}  // namespace

const DRAWBOT_PathSuite1& PathSuite() {
  static const DRAWBOT_PathSuite1 suite{MoveTo, LineTo, BezierTo, AddRect, AddArc, Close};
  return suite;
}
