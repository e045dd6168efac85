// The drawing suites that hand out: what to draw on, and what to draw with.
#include "workbench/host/DrawbotCall.h"
#include "workbench/host/EffectHost.h"
#include "workbench/host/SuiteRegistry.h"

namespace {

// What a row of a panel is written in.
constexpr float kDefaultFontSize = 10.0F;

constexpr int kLargestImageSide = 32767;

// Gives the plug-in a new object, or null where the call is to give nothing.
template <typename Reference>
SPErr HandOut(const HostCall& call, Drawing& drawing, DrawObject object, Reference* reference) {
  if (reference == nullptr || call->GivesNull()) return Answer(call, nullptr, reference);
  *reference = static_cast<Reference>(drawing.objects.Add(std::move(object)));
  return 0;
}

// The same for one of the host's own.
template <typename Reference>
SPErr HandOutOwn(const HostCall& call, Reference own, Reference* reference) {
  return Answer(call, call->GivesNull() ? nullptr : own, reference);
}

SPErr GetSupplier(DRAWBOT_DrawRef draw, DRAWBOT_SupplierRef* supplier) {
  return OnDrawing("GetSupplier", draw, [=](const HostCall& call, Drawing& drawing) {
    return HandOutOwn(call, drawing.Supplier(), supplier);
  });
}

SPErr GetSurface(DRAWBOT_DrawRef draw, DRAWBOT_SurfaceRef* surface) {
  return OnDrawing("GetSurface", draw, [=](const HostCall& call, Drawing& drawing) {
    return HandOutOwn(call, drawing.Surface(), surface);
  });
}

SPErr NewPen(DRAWBOT_SupplierRef supplier, const DRAWBOT_ColorRGBA* color, float size,
             DRAWBOT_PenRef* pen) {
  return OnDrawing("NewPen", supplier, [=](const HostCall& call, Drawing& drawing) {
    if (!IsFinite(color)) return call.Broken("the colour is no finite one");
    if (!std::isfinite(size) || size < 0.0F) {
      return call.Broken("the pen's width is " + std::to_string(size));
    }
    return HandOut(call, drawing, DrawPen{*color, size}, pen);
  });
}

SPErr NewBrush(DRAWBOT_SupplierRef supplier, const DRAWBOT_ColorRGBA* color,
               DRAWBOT_BrushRef* brush) {
  return OnDrawing("NewBrush", supplier, [=](const HostCall& call, Drawing& drawing) {
    if (!IsFinite(color)) return call.Broken("the colour is no finite one");
    return HandOut(call, drawing, DrawBrush{*color}, brush);
  });
}

SPErr SupportsText(DRAWBOT_SupplierRef supplier, DRAWBOT_Boolean* supports) {
  return OnDrawing("SupportsText", supplier, [=](const HostCall& call, Drawing& /*drawing*/) {
    return Answer(call, call->Host().Profile().drawsText, supports);
  });
}

SPErr GetDefaultFontSize(DRAWBOT_SupplierRef supplier, float* size) {
  return OnDrawing("GetDefaultFontSize", supplier, [=](const HostCall& call, Drawing& /*drawing*/) {
    return Answer(call, kDefaultFontSize, size);
  });
}

SPErr NewDefaultFont(DRAWBOT_SupplierRef supplier, float size, DRAWBOT_FontRef* font) {
  return OnDrawing("NewDefaultFont", supplier, [=](const HostCall& call, Drawing& drawing) {
    if (!std::isfinite(size) || size <= 0.0F) {
      return call.Broken("the font's size is " + std::to_string(size));
    }
    return HandOut(call, drawing, DrawFont{size}, font);
  });
}

SPErr NewImageFromBuffer(DRAWBOT_SupplierRef supplier, int width, int height, int row_bytes,
                         DRAWBOT_PixelLayout layout, const void* data, DRAWBOT_ImageRef* image) {
  return OnDrawing("NewImageFromBuffer", supplier, [=](const HostCall& call, Drawing& drawing) {
    if (!IsKnownLayout(layout)) {
      return call.Broken("this host takes no pixels of layout " +
                         std::to_string(static_cast<int>(layout)));
    }
    if (width < 1 || height < 1 || width > kLargestImageSide || height > kLargestImageSide ||
        row_bytes / 4 < width || data == nullptr) {
      return call.Broken("there is no image of " + std::to_string(width) + " x " +
                         std::to_string(height) + " pixels with rows of " +
                         std::to_string(row_bytes) + " bytes");
    }
    return HandOut(call, drawing, CopyImage(width, height, row_bytes, layout, data), image);
  });
}

SPErr NewPath(DRAWBOT_SupplierRef supplier, DRAWBOT_PathRef* path) {
  return OnDrawing("NewPath", supplier, [=](const HostCall& call, Drawing& drawing) {
    return HandOut(call, drawing, DrawPath{}, path);
  });
}

// Pixels with blue first are what this host takes, and those with alpha first what it doesn't.
template <DRAWBOT_Boolean answer>
SPErr AnswerLayout(DRAWBOT_SupplierRef supplier, DRAWBOT_Boolean* is) {
  return OnDrawing(
      "SupportsPixelLayout", supplier,
      [=](const HostCall& call, Drawing& /*drawing*/) { return Answer(call, answer, is); });
}

SPErr RetainObject(DRAWBOT_ObjectRef object) {
  const HostCall call("RetainObject");
  if (!call) return call.Error();
  if (call->drawing != nullptr && call->drawing->objects.Retain(object)) return 0;
  return call.Broken("the object is not a live one");
}

// Letting go takes effect even where the host then answers with an error; so does PopStateStack.
SPErr ReleaseObject(DRAWBOT_ObjectRef object) {
  const HostCall call("ReleaseObject");
  if (!call.IsWithinCommand()) return call.Error();
  if (call->drawing != nullptr && call->drawing->objects.Release(object)) return call.Error();
  return call.Broken("the object is not a live one");
}

}  // namespace

const DRAWBOT_DrawbotSuite1& DrawSuite() {
  static const DRAWBOT_DrawbotSuite1 suite{GetSupplier, GetSurface};
  return suite;
}

const DRAWBOT_SupplierSuite1& SupplierSuite() {
  static const DRAWBOT_SupplierSuite1 suite{
      NewPen,          NewBrush,           SupportsText,    GetDefaultFontSize,
      NewDefaultFont,  NewImageFromBuffer, NewPath,         AnswerLayout<1>,
      AnswerLayout<1>, AnswerLayout<0>,    AnswerLayout<0>, RetainObject,
      ReleaseObject};
  return suite;
}
