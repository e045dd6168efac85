// The drawing suite that draws. Everything that it is given is checked before the drawing gets it.
#include <optional>

#include "workbench/host/DrawbotCall.h"
#include "workbench/host/SuiteRegistry.h"

namespace {

constexpr size_t kLongestText = 4096;

SPErr PushStateStack(DRAWBOT_SurfaceRef surface) {
  return OnDrawing("PushStateStack", surface, [](const HostCall&, Drawing& drawing) {
    drawing.PushState();
    drawing.Note("PushStateStack");
    return SPErr{0};
  });
}

SPErr PopStateStack(DRAWBOT_SurfaceRef surface) {
  const HostCall call("PopStateStack");
  if (!call.IsWithinCommand()) return call.Error();
  if (call->drawing == nullptr || !call->drawing->Owns(surface)) {
    return call.Broken("the surface is not the one of this draw");
  }
  if (!call->drawing->PopState()) return call.Broken("no state is pushed");
  call->drawing->Note("PopStateStack");
  return call.Error();
}

SPErr PaintRect(DRAWBOT_SurfaceRef surface, const DRAWBOT_ColorRGBA* color,
                const DRAWBOT_RectF32* rect) {
  return OnDrawing("PaintRect", surface, [=](const HostCall& call, Drawing& drawing) -> SPErr {
    if (!IsFinite(color) || !IsFinite(rect)) {
      return call.Broken("the colour or the rectangle is no finite one");
    }
    drawing.PaintRect(*color, *rect);
    return 0;
  });
}

SPErr FillPath(DRAWBOT_SurfaceRef surface, DRAWBOT_BrushRef brush, DRAWBOT_PathRef path,
               DRAWBOT_FillType fill_type) {
  return OnDrawing("FillPath", surface, [=](const HostCall& call, Drawing& drawing) -> SPErr {
    const auto* liveBrush = drawing.objects.Find<DrawBrush>(brush);
    if (liveBrush == nullptr) return call.Broken("the brush is not a live one");
    const auto* livePath = drawing.objects.Find<DrawPath>(path);
    if (livePath == nullptr) return call.Broken("the path is not a live one");
    drawing.FillPath(*liveBrush, *livePath, fill_type);
    return 0;
  });
}

SPErr StrokePath(DRAWBOT_SurfaceRef surface, DRAWBOT_PenRef pen, DRAWBOT_PathRef path) {
  return OnDrawing("StrokePath", surface, [=](const HostCall& call, Drawing& drawing) -> SPErr {
    const auto* livePen = drawing.objects.Find<DrawPen>(pen);
    if (livePen == nullptr) return call.Broken("the pen is not a live one");
    const auto* livePath = drawing.objects.Find<DrawPath>(path);
    if (livePath == nullptr) return call.Broken("the path is not a live one");
    drawing.StrokePath(*livePen, *livePath);
    return 0;
  });
}

SPErr Clip(DRAWBOT_SurfaceRef surface, DRAWBOT_SupplierRef supplier, const DRAWBOT_Rect32* rect) {
  return OnDrawing("Clip", surface, [=](const HostCall& call, Drawing& drawing) -> SPErr {
    if (!drawing.Owns(supplier)) return call.Broken("the supplier is not the one of this draw");
    if (rect == nullptr) return call.Broken("the rectangle is null");
    drawing.State().Clip(*rect);
    drawing.Note("Clip", {static_cast<double>(rect->left), static_cast<double>(rect->top),
                          static_cast<double>(rect->width), static_cast<double>(rect->height)});
    return 0;
  });
}

SPErr GetClipBounds(DRAWBOT_SurfaceRef surface, DRAWBOT_Rect32* rect) {
  return OnDrawing("GetClipBounds", surface, [=](const HostCall& call, Drawing& drawing) {
    return Answer(call, drawing.State().ClipBounds(), rect);
  });
}

SPErr IsWithinClipBounds(DRAWBOT_SurfaceRef surface, const DRAWBOT_Rect32* rect,
                         DRAWBOT_Boolean* within) {
  return OnDrawing(
      "IsWithinClipBounds", surface, [=](const HostCall& call, Drawing& drawing) -> SPErr {
        if (rect == nullptr) return call.Broken("the rectangle is null");
        const ClipBox& clip = drawing.State().clip;
        const bool isWithin = rect->left >= clip.left && rect->top >= clip.top &&
                              static_cast<double>(rect->left) + rect->width <= clip.right &&
                              static_cast<double>(rect->top) + rect->height <= clip.bottom;
        return Answer(call, isWithin, within);
      });
}

SPErr Transform(DRAWBOT_SurfaceRef surface, const DRAWBOT_MatrixF32* matrix) {
  return OnDrawing("Transform", surface, [=](const HostCall& call, Drawing& drawing) -> SPErr {
    if (matrix == nullptr) return call.Broken("the matrix is null");
    std::vector<double> numbers;
    for (const auto& row : matrix->mat) {
      if (!AreFinite({row[0], row[1], row[2]})) return call.Broken("the matrix is no finite one");
      numbers.insert(numbers.end(), {row[0], row[1], row[2]});
    }
    drawing.State().matrix = drawing.State().matrix.After(FromHost(*matrix));
    drawing.Note("Transform", std::move(numbers));
    return 0;
  });
}

// The text up to its zero; nothing where there is none in reach.
std::optional<std::u16string> TakeText(const DRAWBOT_UTF16Char* string) {
  if (string == nullptr) return std::nullopt;
  std::u16string text;
  for (size_t i = 0; i < kLongestText; ++i) {
    if (string[i] == 0) return text;
    text += static_cast<char16_t>(string[i]);
  }
  return std::nullopt;
}

SPErr DrawString(DRAWBOT_SurfaceRef surface, DRAWBOT_BrushRef brush, DRAWBOT_FontRef font,
                 const DRAWBOT_UTF16Char* string, const DRAWBOT_PointF32* origin,
                 DRAWBOT_TextAlignment alignment, DRAWBOT_TextTruncation truncation,
                 float truncation_width) {
  return OnDrawing("DrawString", surface, [=](const HostCall& call, Drawing& drawing) -> SPErr {
    const auto* liveBrush = drawing.objects.Find<DrawBrush>(brush);
    if (liveBrush == nullptr) return call.Broken("the brush is not a live one");
    const auto* liveFont = drawing.objects.Find<DrawFont>(font);
    if (liveFont == nullptr) return call.Broken("the font is not a live one");
    if (!IsFinite(origin) || !std::isfinite(truncation_width)) {
      return call.Broken("the place or the width is no finite number");
    }
    const std::optional<std::u16string> text = TakeText(string);
    if (!text) return call.Broken("there is no text, or none that ends within 4096 letters");
    drawing.DrawString(*liveBrush, *text,
                       {{}, liveFont->size, *origin, alignment, truncation, truncation_width});
    return 0;
  });
}

SPErr DrawImageAt(DRAWBOT_SurfaceRef surface, DRAWBOT_ImageRef image,
                  const DRAWBOT_PointF32* origin, float alpha) {
  return OnDrawing("DrawImage", surface, [=](const HostCall& call, Drawing& drawing) -> SPErr {
    const auto* liveImage = drawing.objects.Find<DrawImage>(image);
    if (liveImage == nullptr) return call.Broken("the image is not a live one");
    if (!IsFinite(origin) || !std::isfinite(alpha)) {
      return call.Broken("the place or the opacity is no finite number");
    }
    drawing.PlaceImage(*liveImage, *origin, alpha);
    return 0;
  });
}

// Sets one of the policies, each of which has three values.
template <typename Policy>
SPErr SetPolicy(const char* name, DRAWBOT_SurfaceRef surface, Policy DrawState::*member,
                Policy policy) {
  return OnDrawing(name, surface, [=](const HostCall& call, Drawing& drawing) -> SPErr {
    const int number = policy;
    if (number < 0 || number > 2) {
      return call.Broken("there is no policy " + std::to_string(number));
    }
    drawing.State().*member = policy;
    drawing.Note(name, {static_cast<double>(number)});
    return 0;
  });
}

template <typename Policy>
SPErr GetPolicy(const char* name, DRAWBOT_SurfaceRef surface, Policy DrawState::*member,
                Policy* policy) {
  return OnDrawing(name, surface, [=](const HostCall& call, Drawing& drawing) {
    return Answer(call, drawing.State().*member, policy);
  });
}

SPErr SetInterpolationPolicy(DRAWBOT_SurfaceRef surface, DRAWBOT_InterpolationPolicy policy) {
  return SetPolicy("SetInterpolationPolicy", surface, &DrawState::interpolation, policy);
}
SPErr GetInterpolationPolicy(DRAWBOT_SurfaceRef surface, DRAWBOT_InterpolationPolicy* policy) {
  return GetPolicy("GetInterpolationPolicy", surface, &DrawState::interpolation, policy);
}
SPErr SetAntiAliasPolicy(DRAWBOT_SurfaceRef surface, DRAWBOT_AntiAliasPolicy policy) {
  return SetPolicy("SetAntiAliasPolicy", surface, &DrawState::antiAlias, policy);
}
SPErr GetAntiAliasPolicy(DRAWBOT_SurfaceRef surface, DRAWBOT_AntiAliasPolicy* policy) {
  return GetPolicy("GetAntiAliasPolicy", surface, &DrawState::antiAlias, policy);
}

SPErr Flush(DRAWBOT_SurfaceRef surface) {
  return OnDrawing("Flush", surface, [](const HostCall&, Drawing& drawing) {
    drawing.Note("Flush");
    return SPErr{0};
  });
}

SPErr GetTransformToScreenScale(DRAWBOT_SurfaceRef surface, float* scale) {
  return OnDrawing("GetTransformToScreenScale", surface,
                   [=](const HostCall& call, Drawing& drawing) {
                     return Answer(call, drawing.ScreenScale(), scale);
                   });
}

}  // namespace

const DRAWBOT_SurfaceSuite2& SurfaceSuite() {
  static const DRAWBOT_SurfaceSuite2 suite{PushStateStack,
                                           PopStateStack,
                                           PaintRect,
                                           FillPath,
                                           StrokePath,
                                           Clip,
                                           GetClipBounds,
                                           IsWithinClipBounds,
                                           Transform,
                                           DrawString,
                                           DrawImageAt,
                                           SetInterpolationPolicy,
                                           GetInterpolationPolicy,
                                           SetAntiAliasPolicy,
                                           GetAntiAliasPolicy,
                                           Flush,
                                           GetTransformToScreenScale};
  return suite;
}
