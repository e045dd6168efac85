// A picture of the host's, made of the buffer's pixels and drawn at half their size.
#include "host/BlitToDrawBot.h"

#include <cstdio>

#include "AE_EffectSuites.h"
#include "engine/ExceptionInfo.h"
#include "host/DrawbotObject.h"
#include "host/PluginGui_AE_Impl.h"
#include "host/SuiteHelper.h"

namespace {

constexpr float kLogicalPerPhysical = 0.5F;

void ThrowOnError(PF_Err error, const char* text = nullptr) {
  if (error != PF_Err_NONE) throw App::ExceptionInfo{error, text};
}

template <typename Ref>
Ref Required(Ref ref, const char* text) {
  if (ref == nullptr) throw App::ExceptionInfo{App::kOutOfMemory, text};
  return ref;
}

// The four drawing suites, given back with this object.
class HeldDrawbotSuites {
 public:
  explicit HeldDrawbotSuites(const PluginContext_AE& pluginContext) : context(pluginContext) {
    ThrowOnError(AEFX_AcquireDrawbotSuites(context.InData(), context.OutData(), &suites));
  }
  ~HeldDrawbotSuites() { AEFX_ReleaseDrawbotSuites(context.InData(), context.OutData()); }
  HeldDrawbotSuites(const HeldDrawbotSuites&) = delete;
  HeldDrawbotSuites& operator=(const HeldDrawbotSuites&) = delete;

  const AEFX_DrawbotSuites* operator->() const { return &suites; }

 private:
  const PluginContext_AE& context;
  AEFX_DrawbotSuites suites;
};

// A rectangle of the buffer, in its own pixels.
struct BufferPart {
  const NativeImageBuffer& buffer;
  int32_t left = 0;
  int32_t top = 0;
  int32_t width = 0;
  int32_t height = 0;
};

// Asking for more than the buffer holds would let the host read beside it.
BufferPart PartOf(const NativeImageBuffer& buffer, int32_t srcX, int32_t srcY, int32_t width,
                  int32_t height) {
  const int64_t physicalWidth = int64_t{width} * 2;
  const int64_t physicalHeight = int64_t{height} * 2;
  const bool fits = srcX >= 0 && srcY >= 0 && width > 0 && height > 0 &&
                    srcX + physicalWidth <= buffer.Width() &&
                    srcY + physicalHeight <= buffer.Height();
  if (!fits) throw App::ExceptionInfo{App::kWrongFormat, "The area is not in the buffer."};
  return {buffer, srcX, srcY, static_cast<int32_t>(physicalWidth),
          static_cast<int32_t>(physicalHeight)};
}

using CustomUISuite = HeldSuite<PF_EffectCustomUISuite1>;

DRAWBOT_DrawRef GetDrawingReference(const CustomUISuite& customUi, PF_ContextH contextH) {
  DRAWBOT_DrawRef ref = nullptr;
  ThrowOnError(customUi->PF_GetDrawingReference(contextH, &ref), "PF_GetDrawingReference failed.");
  return Required(ref, "Drawing ref is null.");
}

DrawbotObject<DRAWBOT_ImageRef> NewImage(const HeldDrawbotSuites& suites,
                                         DRAWBOT_SupplierRef supplier, const BufferPart& part) {
  const DRAWBOT_SupplierSuite1* const suite = suites->supplierSuite;
  DRAWBOT_ImageRef ref = nullptr;
  const SPErr error = suite->NewImageFromBuffer(
      supplier, part.width, part.height, part.buffer.RowBytes(),
      kDRAWBOT_PixelLayout_32BGRA_Straight, part.buffer.Row(part.top) + part.left, &ref);
  ThrowOnError(error, "NewImageFromBuffer failed.");
  return {suite, error, Required(ref, "NewImageFromBuffer image ref is null.")};
}

void DrawAtHalfSize(const DRAWBOT_SurfaceSuite2* suite, DRAWBOT_SurfaceRef surface,
                    DRAWBOT_ImageRef image, int32_t dstX, int32_t dstY) {
  ThrowOnError(suite->PushStateStack(surface));
  const SurfaceStateGuard state(suite, surface);
  constexpr DRAWBOT_MatrixF32 kToLogical = {
      {{kLogicalPerPhysical, 0.0F, 0.0F}, {0.0F, kLogicalPerPhysical, 0.0F}, {0.0F, 0.0F, 1.0F}}};
  ThrowOnError(suite->Transform(surface, &kToLogical));
  const DRAWBOT_PointF32 place = {static_cast<float>(dstX) / kLogicalPerPhysical,
                                  static_cast<float>(dstY) / kLogicalPerPhysical};
  ThrowOnError(suite->DrawImage(surface, image, &place, 1.0F));
}

void Blit(const PluginContext_AE& context, const BufferPart& part, int32_t dstX, int32_t dstY) {
  const PF_ContextH contextH =
      Required(context.Extra()->contextH, "event_extra->contextH is null.");
  const CustomUISuite customUi(
      context.InData(), context.OutData(), kPFEffectCustomUISuite, kPFEffectCustomUISuiteVersion1,
      {"Unable to acquire Custom UI Suite for drawing in the ECW/LW/CW", nullptr});
  ThrowOnError(customUi.Error(), "Can't get kPFEffectCustomUISuite.");
  const DRAWBOT_DrawRef drawing = GetDrawingReference(customUi, contextH);
  const HeldDrawbotSuites suites(context);
  DRAWBOT_SupplierRef supplier = nullptr;
  if (suites->drawSuite->GetSupplier(drawing, &supplier) != 0) supplier = nullptr;
  Required(supplier, "GetSupplier returned null.");
  DRAWBOT_SurfaceRef surface = nullptr;
  if (suites->drawSuite->GetSurface(drawing, &surface) != 0) surface = nullptr;
  Required(surface, "GetSurface returned null.");
  const DrawbotObject<DRAWBOT_ImageRef> image = NewImage(suites, supplier, part);
  DrawAtHalfSize(suites->surfaceSuite, surface, image.Get(), dstX, dstY);
}

}  // namespace

bool BlitToDrawBot(const PluginContext_AE& pluginContext, const NativeImageBuffer& buffer,
                   int32_t srcX, int32_t srcY, int32_t width, int32_t height, int32_t dstX,
                   int32_t dstY) {
  const PF_EventExtra* const extra = pluginContext.Extra();
  if (extra == nullptr || extra->e_type != PF_Event_DRAW) return false;
  try {
    Blit(pluginContext, PartOf(buffer, srcX, srcY, width, height), dstX, dstY);
  } catch (const App::ExceptionInfo& failure) {
    if (failure.message != nullptr) {
      std::fprintf(stderr, "BlitToDrawBot: %s (%d)\n", failure.message, failure.code);
    } else {
      std::fprintf(stderr, "BlitToDrawBot: %d\n", failure.code);
    }
  } catch (...) {
    std::fprintf(stderr, "BlitToDrawBot exception thrown.\n");
  }
  return true;
}
