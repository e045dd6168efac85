// An effect whose pixels a test can foretell, and that misses its world or its manners on demand.
#include <atomic>
#include <cstring>
#include <mutex>
#include <thread>

#include "AE_Effect.h"
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

// The handle holds how many renders there were.
PF_Err SetUpSequence(PF_InData* in_data, PF_OutData* out_data) {
  const PF_Handle handle = in_data->utils->host_new_handle(sizeof(int32_t));
  std::memset(in_data->utils->host_lock_handle(handle), 0, sizeof(int32_t));
  in_data->utils->host_unlock_handle(handle);
  out_data->sequence_data = handle;
  return PF_Err_NONE;
}

void Count(void* record) {
  static std::mutex mutex;
  const std::scoped_lock guard(mutex);
  int32_t count = 0;
  std::memcpy(&count, record, sizeof count);
  ++count;
  std::memcpy(record, &count, sizeof count);
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
  void* const record = in_data->utils->host_lock_handle(in_data->sequence_data);
  if (record != nullptr) Count(record);
  if (deed == kMeet) MeetAnother();
  if (record != nullptr) in_data->utils->host_unlock_handle(in_data->sequence_data);
  Draw(in_data, params, output);
  if (deed == kBefore) RowOf(output, 0)[-1] = 0;
  if (deed == kPadding) RowOf(output, 3)[-2] = 1;
  if (deed == kBehind) std::memset(RowOf(output, output->height), 2, 5);
  if (deed == kRecord) ++output->width;
  if (deed == kRowsBefore) RowOf(output, -3)[4] = 3;
  return deed == kFailAt5 && in_data->current_time == kTickOfFailure ? kFailure : PF_Err_NONE;
}

}  // namespace

extern "C" __attribute__((visibility("default"))) PF_Err EntryPointFunc(
    PF_Cmd cmd, PF_InData* in_data, PF_OutData* out_data, PF_ParamDef* params[],
    PF_LayerDef* output, void* /*extra*/) {
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
    default:
      return PF_Err_NONE;
  }
}
