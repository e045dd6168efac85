// Paints paths, text and images into an image surface.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "workbench/Failure.h"
#include "workbench/drawbot/CairoObjects.h"
#include "workbench/drawbot/PictureCanvas.h"

namespace {

// How far a curve may be off, in pixels: cairo's own tenth makes small circles visibly smaller.
constexpr double kCurveTolerance = 0.01;

cairo_antialias_t AntiAliasOf(DRAWBOT_AntiAliasPolicy policy) {
  if (policy == kDRAWBOT_AntiAliasPolicy_None) return CAIRO_ANTIALIAS_NONE;
  return policy == kDRAWBOT_AntiAliasPolicy_High ? CAIRO_ANTIALIAS_BEST : CAIRO_ANTIALIAS_GRAY;
}

cairo_filter_t FilterOf(DRAWBOT_InterpolationPolicy policy) {
  if (policy == kDRAWBOT_InterpolationPolicy_None) return CAIRO_FILTER_NEAREST;
  return policy == kDRAWBOT_InterpolationPolicy_High ? CAIRO_FILTER_BEST : CAIRO_FILTER_BILINEAR;
}

// Whether each of the image's pixels covers whole pixels of the picture, which are then its copies.
bool CoversWholePixels(const DrawMatrix& m, const DRAWBOT_PointF32& origin) {
  const auto isWhole = [](double number) { return number == std::floor(number); };
  const DrawPoint corner = m.Apply({origin.x, origin.y});
  return m.xy == 0.0 && m.yx == 0.0 && m.xx >= 1.0 && m.yy >= 1.0 && isWhole(m.xx) &&
         isWhole(m.yy) && isWhole(corner.x) && isWhole(corner.y);
}

double Near(double coordinate) {
  if (std::isnan(coordinate)) return 0.0;
  return std::clamp(coordinate, -kFarthestPixel, kFarthestPixel);
}

int SaturatedSide(int64_t side) {
  return static_cast<int>(std::min<int64_t>(side, INT32_MAX));
}

// Traces a path in pixels.
class Tracer {
 public:
  Tracer(cairo_t* cairo, const DrawMatrix& pathMatrix) : context(cairo), matrix(pathMatrix) {}

  void Trace(const DrawPath& path) {
    for (const PathStep& step : path.steps) Add(step);
  }

  void AddRect(double left, double top, double width, double height) {
    MoveTo(left, top);
    LineTo(left + width, top);
    LineTo(left + width, top + height);
    LineTo(left, top + height);
    cairo_close_path(context);
  }

 private:
  DrawPoint At(double x, double y) const {
    const DrawPoint point = matrix.Apply({x, y});
    return {Near(point.x), Near(point.y)};
  }

  void MoveTo(double x, double y) {
    const DrawPoint p = At(x, y);
    cairo_move_to(context, p.x, p.y);
  }

  void LineTo(double x, double y) {
    const DrawPoint p = At(x, y);
    cairo_line_to(context, p.x, p.y);
  }

  void CurveTo(const DrawPoint& control1, const DrawPoint& control2, const DrawPoint& end) {
    const DrawPoint a = At(control1.x, control1.y);
    const DrawPoint b = At(control2.x, control2.y);
    const DrawPoint c = At(end.x, end.y);
    cairo_curve_to(context, a.x, a.y, b.x, b.y, c.x, c.y);
  }

  // As curves of up to a quarter turn, since a matrix may make an ellipse of the circle.
  void AddArc(const DrawPoint& centre, double radius, double startDegrees, double sweepDegrees) {
    constexpr double kDegree = std::numbers::pi / 180.0;
    const double sweep = std::clamp(sweepDegrees, -360.0, 360.0);
    const int pieces = std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / 90.0)));
    const double piece = sweep * kDegree / pieces;
    const double reach = 4.0 / 3.0 * std::tan(piece / 4.0);
    double angle = std::fmod(startDegrees, 360.0) * kDegree;
    // A point of the circle, or one that lies off it along the tangent.
    const auto on = [&](double direction, double tangent) {
      return DrawPoint{centre.x + radius * (std::cos(direction) - tangent * std::sin(direction)),
                       centre.y + radius * (std::sin(direction) + tangent * std::cos(direction))};
    };
    const DrawPoint first = on(angle, 0.0);
    LineTo(first.x, first.y);
    for (int i = 0; i < pieces; ++i, angle += piece) {
      CurveTo(on(angle, reach), on(angle + piece, -reach), on(angle + piece, 0.0));
    }
  }

  void Add(const PathStep& step) {
    const auto& n = step.numbers;
    switch (step.kind) {
      case PathStep::Kind::kMove:
        return MoveTo(n[0], n[1]);
      case PathStep::Kind::kLine:
        return LineTo(n[0], n[1]);
      case PathStep::Kind::kCurve:
        return CurveTo({n[0], n[1]}, {n[2], n[3]}, {n[4], n[5]});
      case PathStep::Kind::kRect:
        return AddRect(n[0], n[1], n[2], n[3]);
      case PathStep::Kind::kArc:
        return AddArc({n[0], n[1]}, n[2], n[3], n[4]);
      case PathStep::Kind::kClose:
        return cairo_close_path(context);
    }
  }

  cairo_t* context;
  const DrawMatrix& matrix;
};

class CairoCanvas : public PictureCanvas {
 public:
  CairoCanvas(const CanvasArea& canvasArea, PF_Pixel8 ground)
      : area(canvasArea),
        toPicture{static_cast<double>(area.zoom),
                  0.0,
                  -static_cast<double>(area.left) * area.zoom,
                  0.0,
                  static_cast<double>(area.zoom),
                  -static_cast<double>(area.top) * area.zoom} {
    const int64_t width = int64_t{area.width} * area.zoom;
    const int64_t height = int64_t{area.height} * area.zoom;
    // Cairo refuses sides beyond 16 bits itself.
    surface.reset(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, SaturatedSide(width),
                                             SaturatedSide(height)));
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) {
      throw JobFailure("A panel picture of " + std::to_string(width) + " x " +
                       std::to_string(height) + " pixels is too large. Choose a smaller --zoom.");
    }
    const CairoContext context(cairo_create(surface.get()));
    cairo_set_source_rgb(context.get(), ground.red / 255.0, ground.green / 255.0,
                         ground.blue / 255.0);
    cairo_paint(context.get());
  }

  void FillPath(const DrawState& state, const DRAWBOT_ColorRGBA& color, const DrawPath& path,
                DRAWBOT_FillType fillType) override {
    const DrawMatrix matrix = toPicture.After(state.matrix);
    if (!matrix.IsRegular()) return;
    const CairoContext context = Begin(state, color);
    Tracer(context.get(), matrix).Trace(path);
    cairo_set_fill_rule(context.get(), fillType == kDRAWBOT_FillType_Winding
                                           ? CAIRO_FILL_RULE_WINDING
                                           : CAIRO_FILL_RULE_EVEN_ODD);
    cairo_fill(context.get());
  }

  // The path is traced in pixels, and the pen turned and stretched by the matrix.
  void StrokePath(const DrawState& state, const DrawPen& pen, const DrawPath& path) override {
    const DrawMatrix matrix = toPicture.After(state.matrix);
    if (!matrix.IsRegular()) return;
    const CairoContext context = Begin(state, pen.color);
    Tracer(context.get(), matrix).Trace(path);
    const double norm = std::hypot(matrix.xx, matrix.xy) + std::hypot(matrix.yx, matrix.yy);
    const cairo_matrix_t penMatrix = AsCairo(matrix);
    cairo_set_matrix(context.get(), &penMatrix);
    cairo_set_line_width(context.get(), std::min<double>(pen.width, kFarthestPixel / norm));
    cairo_stroke(context.get());
  }

  void PlaceText(const DrawState& state, const DRAWBOT_ColorRGBA& color,
                 const PlacedText& text) override {
    const DrawMatrix matrix = toPicture.After(state.matrix);
    if (!matrix.IsRegular()) return;
    const CairoContext context = Begin(state, color);
    PaintText(context.get(), matrix, text);
  }

  // The image's outermost pixels go on beyond its edge, so that interpolation lets no ground in.
  void PlaceImage(const DrawState& state, const DrawImage& image, const DRAWBOT_PointF32& origin,
                  float opacity) override {
    const DrawMatrix matrix = toPicture.After(state.matrix);
    if (!matrix.IsRegular()) return;
    const CairoContext context = Begin(state, {});
    const auto width = static_cast<float>(image.width);
    const auto height = static_cast<float>(image.height);
    Tracer(context.get(), matrix)
        .Trace({{{PathStep::Kind::kRect, {origin.x, origin.y, width, height}}}});
    cairo_clip(context.get());
    const CairoSurface source = SourceOf(image);
    const cairo_matrix_t imageMatrix = AsCairo(matrix);
    cairo_set_matrix(context.get(), &imageMatrix);
    cairo_set_source_surface(context.get(), source.get(), origin.x, origin.y);
    cairo_pattern_set_extend(cairo_get_source(context.get()), CAIRO_EXTEND_PAD);
    cairo_pattern_set_filter(cairo_get_source(context.get()), CoversWholePixels(matrix, origin)
                                                                  ? CAIRO_FILTER_NEAREST
                                                                  : FilterOf(state.interpolation));
    cairo_paint_with_alpha(context.get(), opacity);
  }

  Picture Copy() const override {
    cairo_surface_flush(surface.get());
    const unsigned char* data = cairo_image_surface_get_data(surface.get());
    Picture picture{cairo_image_surface_get_width(surface.get()),
                    cairo_image_surface_get_height(surface.get()),
                    {}};
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) {
      throw JobFailure("The panel's picture was lost while it was drawn.");
    }
    const ptrdiff_t stride = cairo_image_surface_get_stride(surface.get());
    // The ground is opaque, and so is whatever lies over it: premultiplied is straight.
    for (int32_t y = 0; y < picture.height; ++y) {
      for (int32_t x = 0; x < picture.width; ++x) {
        const unsigned char* pixel = data + y * stride + ptrdiff_t{x} * 4;
        picture.pixels.push_back({pixel[3], pixel[2], pixel[1], pixel[0]});
      }
    }
    return picture;
  }

 private:
  // A context of its own for each painting: one that cairo refuses spoils no other.
  CairoContext Begin(const DrawState& state, const DRAWBOT_ColorRGBA& color) const {
    CairoContext context(cairo_create(surface.get()));
    cairo_set_antialias(context.get(), AntiAliasOf(state.antiAlias));
    cairo_set_tolerance(context.get(), kCurveTolerance);
    const ClipBox& clip = state.clip;
    Tracer(context.get(), toPicture)
        .AddRect(clip.left, clip.top, std::max(clip.right - clip.left, 0.0),
                 std::max(clip.bottom - clip.top, 0.0));
    cairo_clip(context.get());
    cairo_set_source_rgba(context.get(), color.red, color.green, color.blue, color.alpha);
    return context;
  }

  // Borrows the image's pixels.
  static CairoSurface SourceOf(const DrawImage& image) {
    void* pixels = const_cast<uint32_t*>(image.pixels.data());  // cairo only reads a source
    return CairoSurface(cairo_image_surface_create_for_data(static_cast<unsigned char*>(pixels),
                                                            CAIRO_FORMAT_ARGB32, image.width,
                                                            image.height, image.width * 4));
  }

  CanvasArea area;
  DrawMatrix toPicture;
  CairoSurface surface{nullptr};
};

}  // namespace

bool CanPaintPictures() {
  return true;
}

std::unique_ptr<PictureCanvas> NewPictureCanvas(const CanvasArea& area, PF_Pixel8 ground) {
  return std::make_unique<CairoCanvas>(area, ground);
}
