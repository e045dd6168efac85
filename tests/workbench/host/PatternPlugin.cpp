// An effect whose pixels a test can foretell, and that misses its world or its manners on demand.
#include <atomic>
#include <cstring>
#include <thread>

#include "AE_EffectSuites.h"
#include "DrawbotSuite.h"
#include "EventManners.h"
#include "Pattern.h"

namespace {

enum : A_long { kPattern = 1, kBefore, kPadding, kBehind, kRecord, kRowsBefore, kFailAt5, kMeet };
constexpr A_short kDeedCount = 8;
constexpr const char* kDeeds =
    "Pattern|Before|Padding|Behind|Record|Rows before|Fail at 5|Meet another";

constexpr A_long kTickOfFailure = 5;
constexpr PF_Err kFailure = 77;

PF_Err AddParameters(PF_InData* in_data, PF_OutData* out_data) {
  PF_ParamDef deed{};
  deed.param_type = PF_Param_POPUP;
  std::strcpy(deed.name, "Deed");
  deed.u.pd = {kPattern, kDeedCount, kPattern, {kDeeds}};
  PF_ParamDef sound{};
  sound.param_type = PF_Param_LAYER;
  std::strcpy(sound.name, "Sound");
  PF_ParamDef spot{};
  spot.param_type = PF_Param_POINT;
  std::strcpy(spot.name, "Spot");
  for (PF_ParamDef* def : {&deed, &sound, &spot}) {
    const PF_Err error = in_data->inter.add_param(in_data->effect_ref, -1, def);
    if (error != PF_Err_NONE) return error;
  }
  out_data->num_params = 4;
  return PF_Err_NONE;
}

PF_Err SetUpSequence(PF_InData* in_data, PF_OutData* out_data) {
  out_data->sequence_data = in_data->utils->host_new_handle(8);
  return PF_Err_NONE;
}

// Returns when two renders stand here at once.
void MeetAnother() {
  static std::atomic<int> arrived = 0;
  const int self = arrived++;
  while (arrived < self / 2 * 2 + 2) std::this_thread::yield();
}

A_u_char* RowOf(const PF_LayerDef* output, A_long y) {
  void* pixels = output->data;
  return static_cast<A_u_char*>(pixels) + ptrdiff_t{y} * output->rowbytes;
}

void Draw(const PF_InData* in_data, PF_ParamDef* const* params, const PF_LayerDef* output) {
  const PF_PointDef& point = params[3]->u.td;
  const PF_Point spot{point.x_value >> 16, point.y_value >> 16};
  for (A_long y = 0; y < output->height; ++y) {
    void* row = RowOf(output, y);
    for (A_long x = 0; x < output->width; ++x) {
      static_cast<PF_Pixel8*>(row)[x] =
          PatternPixel(x, y, in_data->current_time, spot, in_data->downsample_x.den);
    }
  }
}

PF_Err Render(PF_InData* in_data, PF_ParamDef** params, PF_LayerDef* output) {
  const A_long deed = params[1]->u.pd.value;
  in_data->utils->host_lock_handle(in_data->sequence_data);
  if (deed == kMeet) MeetAnother();
  in_data->utils->host_unlock_handle(in_data->sequence_data);
  Draw(in_data, params, output);
  if (deed == kBefore) RowOf(output, 0)[-1] = 0;
  if (deed == kPadding) RowOf(output, 3)[-2] = 1;
  if (deed == kBehind) std::memset(RowOf(output, output->height), 2, 5);
  if (deed == kRecord) ++output->width;
  if (deed == kRowsBefore) RowOf(output, -3)[4] = 3;
  return deed == kFailAt5 && in_data->current_time == kTickOfFailure ? kFailure : PF_Err_NONE;
}

// A suite that is released again: the host's tables outlive the release.
template <typename Table>
const Table& Borrow(const PF_InData* in_data, const char* name, int version) {
  const void* table = nullptr;
  in_data->pica_basicP->AcquireSuite(name, version, &table);
  in_data->pica_basicP->ReleaseSuite(name, version);
  return *static_cast<const Table*>(table);
}

// Paints what is to be updated in red.
void DrawRow(const PF_InData* in_data, const PF_EventExtra& event) {
  DRAWBOT_DrawRef reference = nullptr;
  DRAWBOT_SurfaceRef surface = nullptr;
  Borrow<PF_EffectCustomUISuite1>(in_data, kPFEffectCustomUISuite, 1)
      .PF_GetDrawingReference(event.contextH, &reference);
  Borrow<DRAWBOT_DrawbotSuite1>(in_data, kDRAWBOT_DrawSuite, 1).GetSurface(reference, &surface);
  const PF_UnionableRect& update = event.u.draw.update_rect;
  const auto number = [](A_long coordinate) { return static_cast<float>(coordinate); };
  const DRAWBOT_RectF32 rect{number(update.left), number(update.top),
                             number(update.right) - number(update.left),
                             number(update.bottom) - number(update.top)};
  const DRAWBOT_ColorRGBA red{1.0F, 0.0F, 0.0F, 1.0F};
  Borrow<DRAWBOT_SurfaceSuite2>(in_data, kDRAWBOT_SurfaceSuite, 2).PaintRect(surface, &red, &rect);
}

void Click(const PF_InData* in_data, PF_OutData* out_data, PF_EventExtra& event) {
  const auto& app = Borrow<PFAppSuite6>(in_data, kPFAppSuite, kPFAppSuiteVersion6);
  PF_DoClickEventInfo& click = event.u.do_click;
  click.continue_refcon[0] = kRefcon;
  if ((click.modifiers & kAskForDrags) != 0) click.send_drag = 1;
  if ((click.modifiers & kUpdateNow) != 0) event.evt_out_flags |= PF_EO_UPDATE_NOW;
  if ((click.modifiers & kRefresh) != 0) {
    out_data->out_flags |= PF_OutFlag_REFRESH_UI | PF_OutFlag_FORCE_RERENDER;
  }
  if ((click.modifiers & kInvalidate) != 0) {
    const PF_UnionableRect& frame = event.effect_win.current_frame;
    const PF_Rect first{frame.left + 1, frame.top + 2, frame.left + 2, frame.top + 3};
    const PF_Rect second{frame.left + 2, frame.top + 3, frame.left + 3, frame.top + 5};
    app.PF_InvalidateRect(event.contextH, &first);
    app.PF_InvalidateRect(event.contextH, &second);
  }
  if ((click.modifiers & kPickColor) != 0) {
    const PF_PixelFloat sample{};
    PF_PixelFloat color{};
    const PF_Err error = app.PF_AppColorPickerDialog("", &sample, 1, &color);
    const auto percent = static_cast<A_intptr_t>(color.green * 100.0F);
    click.continue_refcon[1] = error != PF_Err_NONE ? -A_intptr_t{error} : percent;
  }
}

PF_Err TakeEvent(const PF_InData* in_data, PF_OutData* out_data, PF_EventExtra& event) {
  if (event.e_type == PF_Event_DRAW) DrawRow(in_data, event);
  if (event.e_type == PF_Event_DO_CLICK) Click(in_data, out_data, event);
  if (event.e_type == PF_Event_ADJUST_CURSOR) {
    event.u.adjust_cursor.set_cursor = event.u.adjust_cursor.screen_point.h;
  }
  return PF_Err_NONE;
}

}  // namespace

extern "C" __attribute__((visibility("default"))) PF_Err EntryPointFunc(
    PF_Cmd cmd, PF_InData* in_data, PF_OutData* out_data, PF_ParamDef* params[],
    PF_LayerDef* output, void* extra) {
  switch (cmd) {
    case PF_Cmd_PARAMS_SETUP:
      return AddParameters(in_data, out_data);
    case PF_Cmd_SEQUENCE_SETUP:
      return SetUpSequence(in_data, out_data);
    case PF_Cmd_SEQUENCE_SETDOWN:
      in_data->utils->host_dispose_handle(in_data->sequence_data);
      out_data->sequence_data = nullptr;
      return PF_Err_NONE;
    case PF_Cmd_RENDER:
      return Render(in_data, params, output);
    case PF_Cmd_EVENT:
      return TakeEvent(in_data, out_data, *static_cast<PF_EventExtra*>(extra));
    default:
      return PF_Err_NONE;
  }
}
