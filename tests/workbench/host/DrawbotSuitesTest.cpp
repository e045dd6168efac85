// Catches drawing calls that the host takes though they break a rule, references that it counts
// wrongly, and calls that it records out of order.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "workbench/drawbot/Drawing.h"
#include "workbench/host/EffectHost.h"
#include "workbench/host/Pane.h"
#include "workbench/host/SuiteRegistry.h"

namespace {

constexpr DRAWBOT_ColorRGBA kRed{1.0F, 0.0F, 0.0F, 1.0F};
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

constexpr PF_UnionableRect kFrame{0, 40, 300, 55};
constexpr ClipBox kArea{0, 40, 300, 55};

// A draw event in which a test plays the plug-in.
class DrawEvent {
 public:
  explicit DrawEvent(Fault fault = {}, bool draws = true)
      : scope(host, nullptr, PF_Cmd_EVENT, fault) {
    scope.pane = &pane;
    if (draws) scope.drawing = &drawing;
  }

  DRAWBOT_PathRef Path() const {
    DRAWBOT_PathRef path = nullptr;
    supplier.NewPath(drawing.Supplier(), &path);
    return path;
  }
  DRAWBOT_BrushRef Brush() const {
    DRAWBOT_BrushRef brush = nullptr;
    supplier.NewBrush(drawing.Supplier(), &kRed, &brush);
    return brush;
  }
  template <typename Reference>
  SPErr Release(Reference reference) const {
    void* object = reference;
    return supplier.ReleaseObject(static_cast<DRAWBOT_ObjectRef>(object));
  }
  // All that was broken, a line each, with what is left at the end.
  std::string Broken() {
    scope.CheckAllIsGivenBack();
    std::string told;
    for (const std::string& rule : scope.BrokenRules()) told += rule + '\n';
    return told;
  }

  EffectHost host{RUDE_PLUGIN};
  Pane pane{kFrame};
  mutable Drawing drawing{nullptr, kArea};
  const DRAWBOT_SupplierSuite1& supplier = SupplierSuite();
  const DRAWBOT_SurfaceSuite2& surface = SurfaceSuite();
  const DRAWBOT_PathSuite1& paths = PathSuite();
  CommandScope scope;
};

struct RudeCall {
  const char* says;
  std::function<SPErr(DrawEvent& e)> make;
};
const RudeCall kRudeCalls[] = {
    {"NewPen: the colour is no finite one",
     [](DrawEvent& e) {
       const DRAWBOT_ColorRGBA color{0, kNaN, 0, 1};
       DRAWBOT_PenRef pen = nullptr;
       return e.supplier.NewPen(e.drawing.Supplier(), &color, 1.0F, &pen);
     }},
    {"NewPath: the reference is not the one of this draw",
     [](DrawEvent& e) {
       DRAWBOT_PathRef path = nullptr;
       return e.supplier.NewPath(nullptr, &path);
     }},
    {"GetSurface: there is nowhere to put the answer",
     [](DrawEvent& e) { return DrawSuite().GetSurface(e.drawing.DrawRef(), nullptr); }},
    {"NewImageFromBuffer: this host takes no pixels of layout 4",
     [](DrawEvent& e) {
       DRAWBOT_ImageRef image = nullptr;
       return e.supplier.NewImageFromBuffer(e.drawing.Supplier(), 1, 1, 4,
                                            kDRAWBOT_PixelLayout_32ARGB_Straight, &e, &image);
     }},
    {"NewImageFromBuffer: there is no image of 2 x 1 pixels with rows of 7 bytes",
     [](DrawEvent& e) {
       DRAWBOT_ImageRef image = nullptr;
       return e.supplier.NewImageFromBuffer(e.drawing.Supplier(), 2, 1, 7,
                                            kDRAWBOT_PixelLayout_32BGR, &e, &image);
     }},
    {"LineTo: a coordinate is no finite number",
     [](DrawEvent& e) {
       const DRAWBOT_PathRef path = e.Path();
       const SPErr error = e.paths.LineTo(path, 1.0F, INFINITY);
       e.Release(path);
       return error;
     }},
    {"MoveTo: the path is not a live one",
     [](DrawEvent& e) {
       const DRAWBOT_PathRef path = e.Path();
       e.Release(path);
       return e.paths.MoveTo(path, 1.0F, 1.0F);
     }},
    {"StrokePath: the pen is not a live one",
     [](DrawEvent& e) {
       const DRAWBOT_BrushRef brush = e.Brush();
       void* object = brush;
       const SPErr error =
           e.surface.StrokePath(e.drawing.Surface(), static_cast<DRAWBOT_PenRef>(object), nullptr);
       e.Release(brush);
       return error;
     }},
    {"ReleaseObject: the object is not a live one",
     [](DrawEvent& e) {
       const DRAWBOT_BrushRef brush = e.Brush();
       e.Release(brush);
       return e.Release(brush);
     }},
    {"Event: 2 brush(es) not released at the end",
     [](DrawEvent& e) { return e.Brush() != e.Brush() ? PF_Err_BAD_CALLBACK_PARAM : 0; }},
    {"Event: 1 pushed state(s) of the surface not popped at the end",
     [](DrawEvent& e) {
       e.surface.PushStateStack(e.drawing.Surface());
       return SPErr{PF_Err_BAD_CALLBACK_PARAM};
     }},
    {"PopStateStack: no state is pushed",
     [](DrawEvent& e) { return e.surface.PopStateStack(e.drawing.Surface()); }},
    {"SetAntiAliasPolicy: there is no policy 3",
     [](DrawEvent& e) {
       return e.surface.SetAntiAliasPolicy(e.drawing.Surface(),
                                           static_cast<DRAWBOT_AntiAliasPolicy>(3));
     }},
    {"PF_GetDrawingReference: the context is not the one of this event",
     [](DrawEvent& /*e*/) {
       DRAWBOT_DrawRef reference = nullptr;
       return CustomUISuite().PF_GetDrawingReference(nullptr, &reference);
     }},
};

TEST(DrawbotSuites, RefuseWhatBreaksARuleAndSayWhich) {
  for (const RudeCall& c : kRudeCalls) {
    DrawEvent event;
    EXPECT_EQ(c.make(event), PF_Err_BAD_CALLBACK_PARAM) << c.says;
    EXPECT_EQ(event.Broken(), std::string(c.says) + "\n");
  }
}

TEST(DrawbotSuites, DrawInADrawEventOnly) {
  DrawEvent event({}, false);
  DRAWBOT_DrawRef reference = nullptr;
  CustomUISuite().PF_GetDrawingReference(event.pane.Context(), &reference);
  event.surface.PushStateStack(event.drawing.Surface());
  event.paths.Close(nullptr);
  EXPECT_EQ(reference, nullptr);
  EXPECT_EQ(event.scope.BrokenRules().size(), 3U);
}

TEST(DrawbotSuites, KeepAnObjectUntilItsLastReferenceGoes) {
  DrawEvent event;
  const DRAWBOT_PathRef path = event.Path();
  void* object = path;
  event.supplier.RetainObject(static_cast<DRAWBOT_ObjectRef>(object));
  EXPECT_EQ(event.Release(path), 0);
  EXPECT_EQ(event.paths.MoveTo(path, 1.0F, 2.0F), 0);
  EXPECT_EQ(event.Release(path), 0);
  EXPECT_EQ(event.Broken(), "");
}

// What a plug-in that checks every answer does in a draw. Returns whether all went well.
bool DrawPolitely(DrawEvent& e) {
  DRAWBOT_DrawRef draw = nullptr;
  DRAWBOT_SupplierRef supplier = nullptr;
  DRAWBOT_SurfaceRef surface = nullptr;
  CustomUISuite().PF_GetDrawingReference(e.pane.Context(), &draw);
  if (draw == nullptr || DrawSuite().GetSupplier(draw, &supplier) != 0 ||
      DrawSuite().GetSurface(draw, &surface) != 0 || supplier == nullptr || surface == nullptr) {
    return false;
  }
  bool isWell = e.surface.PushStateStack(surface) == 0;
  const bool isPushed = isWell;
  const DRAWBOT_BrushRef brush = e.Brush();
  const DRAWBOT_PathRef path = e.Path();
  const DRAWBOT_RectF32 rect{0, 40, 300, 15};
  isWell = isWell && brush != nullptr && path != nullptr && e.paths.AddRect(path, &rect) == 0 &&
           e.surface.FillPath(surface, brush, path, kDRAWBOT_FillType_Winding) == 0;
  if (brush != nullptr) isWell = e.Release(brush) == 0 && isWell;
  if (path != nullptr) isWell = e.Release(path) == 0 && isWell;
  return (!isPushed || e.surface.PopStateStack(surface) == 0) && isWell;
}

TEST(DrawbotSuites, LeaveNothingBehindWhenAnyCallFailsOrGivesNull) {
  DrawEvent whole;
  ASSERT_TRUE(DrawPolitely(whole));
  constexpr PF_Err kGivesNull = 0;
  constexpr PF_Err kErrors[] = {1234, kGivesNull};
  for (const PF_Err error : kErrors) {
    int64_t struck = 0;
    for (int64_t n = 1; n <= whole.scope.CallCount(); ++n) {
      DrawEvent event({n, error});
      const bool isWell = DrawPolitely(event);
      EXPECT_EQ(isWell, !event.scope.FaultStruck()) << n;
      EXPECT_EQ(event.Broken(), "") << n;
      if (event.scope.FaultStruck()) ++struck;
    }
    EXPECT_EQ(struck, error == kGivesNull ? 5 : whole.scope.CallCount());
  }
}

TEST(DrawbotSuites, RecordTheCallsInTheirOrder) {
  DrawEvent event;
  ASSERT_TRUE(DrawPolitely(event));
  std::string lines;
  for (const DrawCall& call : event.drawing.calls) lines += DrawCallText(call) + '\n';
  EXPECT_EQ(lines,
            "PushStateStack\n"
            "FillPath color 1 0 0 1 path rect(0 40 300 15) numbers 1\n"
            "PopStateStack\n");
}

}  // namespace
