// Catches drawing calls that the host takes though they break a rule, and references that it
// counts wrongly.
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
  explicit DrawEvent(bool draws = true, Fault fault = {})
      : scope(host, nullptr, PF_Cmd_EVENT, fault) {
    scope.pane = &pane;
    if (draws) scope.drawing = &drawing;
  }

  DRAWBOT_PathRef Path() {
    supplier.NewPath(drawing.Supplier(), &path);
    return path;
  }
  DRAWBOT_BrushRef Brush() {
    DRAWBOT_BrushRef brush = nullptr;
    supplier.NewBrush(drawing.Supplier(), &kRed, &brush);
    return brush;
  }
  // An image of one row.
  SPErr Image(int width, int rowBytes, DRAWBOT_PixelLayout layout) {
    DRAWBOT_ImageRef image = nullptr;
    return supplier.NewImageFromBuffer(drawing.Supplier(), width, 1, rowBytes, layout, this,
                                       &image);
  }
  template <typename Reference>
  SPErr Release(Reference held) const {
    void* object = held;
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
  Drawing drawing{nullptr, kArea};
  const DRAWBOT_SupplierSuite1& supplier = SupplierSuite();
  const DRAWBOT_SurfaceSuite2& surface = SurfaceSuite();
  const DRAWBOT_PathSuite1& paths = PathSuite();
  CommandScope scope;
  // What the last call gave.
  DRAWBOT_DrawRef reference = nullptr;
  DRAWBOT_PathRef path = nullptr;
  DRAWBOT_PenRef pen = nullptr;
};

struct RudeCall {
  const char* says;
  std::function<SPErr(DrawEvent& e)> make;
};
const RudeCall kRudeCalls[] = {
    {"NewPen: the colour is no finite one",
     [](DrawEvent& e) {
       const DRAWBOT_ColorRGBA color{0, kNaN, 0, 1};
       return e.supplier.NewPen(e.drawing.Supplier(), &color, 1.0F, &e.pen);
     }},
    {"NewPath: the reference is not the one of this draw",
     [](DrawEvent& e) { return e.supplier.NewPath(nullptr, &e.path); }},
    {"GetSurface: there is nowhere to put the answer",
     [](DrawEvent& e) { return DrawSuite().GetSurface(e.drawing.DrawRef(), nullptr); }},
    {"NewImageFromBuffer: this host takes no pixels of layout 4",
     [](DrawEvent& e) { return e.Image(1, 4, kDRAWBOT_PixelLayout_32ARGB_Straight); }},
    {"NewImageFromBuffer: there is no image of 2 x 1 pixels with rows of 7 bytes",
     [](DrawEvent& e) { return e.Image(2, 7, kDRAWBOT_PixelLayout_32BGR); }},
    {"LineTo: a coordinate is no finite number",
     [](DrawEvent& e) {
       const SPErr error = e.paths.LineTo(e.Path(), 1.0F, INFINITY);
       e.Release(e.path);
       return error;
     }},
    {"MoveTo: the path is not a live one",
     [](DrawEvent& e) {
       e.Release(e.Path());
       return e.paths.MoveTo(e.path, 1.0F, 1.0F);
     }},
    {"StrokePath: the pen is not a live one",
     [](DrawEvent& e) {
       void* brush = e.Brush();
       e.pen = static_cast<DRAWBOT_PenRef>(brush);
       const SPErr error = e.surface.StrokePath(e.drawing.Surface(), e.pen, nullptr);
       e.Release(e.pen);
       return error;
     }},
    {"ReleaseObject: the object is not a live one",
     [](DrawEvent& e) {
       e.Release(e.Path());
       return e.Release(e.path);
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
       constexpr auto kNone = static_cast<DRAWBOT_AntiAliasPolicy>(3);
       return e.surface.SetAntiAliasPolicy(e.drawing.Surface(), kNone);
     }},
    {"PF_GetDrawingReference: the context is not the one of this event",
     [](DrawEvent& e) { return CustomUISuite().PF_GetDrawingReference(nullptr, &e.reference); }},
};

TEST(DrawbotSuites, RefuseWhatBreaksARuleAndSayWhich) {
  for (const RudeCall& c : kRudeCalls) {
    DrawEvent event;
    EXPECT_EQ(c.make(event), PF_Err_BAD_CALLBACK_PARAM) << c.says;
    EXPECT_EQ(event.Broken(), std::string(c.says) + "\n");
  }
}

TEST(DrawbotSuites, DrawInADrawEventOnly) {
  DrawEvent event(false);
  CustomUISuite().PF_GetDrawingReference(event.pane.Context(), &event.reference);
  event.surface.PushStateStack(event.drawing.Surface());
  event.paths.Close(nullptr);
  EXPECT_EQ(event.reference, nullptr);
  EXPECT_EQ(event.scope.BrokenRules().size(), 3U);
}

TEST(DrawbotSuites, GiveNothingInTheCallThatIsToGiveNull) {
  constexpr PF_Err kGivesNull = 0;
  DrawEvent event(true, {1, kGivesNull});
  EXPECT_EQ(event.Path(), nullptr);
  EXPECT_EQ(event.Broken(), "");
  EXPECT_NE(event.Path(), nullptr);
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

}  // namespace
