// Callbacks for handles, worlds, mathematics, text and the main window.
#include <algorithm>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "workbench/host/EffectHost.h"
#include "workbench/host/HostCall.h"
#include "workbench/host/HostCallbacks.h"

namespace {

PF_Handle NewHandle(A_HandleSize size) {
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr || scope->EnterCall() != PF_Err_NONE) return nullptr;
  return scope->Host().Handles().New(size);
}

void* LockHandle(PF_Handle handle) {
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr || scope->EnterCall() != PF_Err_NONE) return nullptr;
  const MovableHandles::Outcome outcome = scope->Host().Handles().Lock(handle);
  if (!outcome.broken.empty()) {
    scope->Broken("host_lock_handle", outcome.broken);
    return nullptr;
  }
  ++scope->locks[handle];
  return outcome.memory;
}

// Counted as a host call like any other, but it has no way to fail.
void UnlockHandle(PF_Handle handle) {
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr) return;
  scope->EnterCall();
  if (scope->locks[handle] <= 0) {
    scope->Broken("host_unlock_handle", "the handle was not locked by this command");
    return;
  }
  const MovableHandles::Outcome outcome = scope->Host().Handles().Unlock(handle);
  if (!outcome.broken.empty()) scope->Broken("host_unlock_handle", outcome.broken);
  --scope->locks[handle];
}

void DisposeHandle(PF_Handle handle) {
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr) return;
  scope->EnterCall();
  const MovableHandles::Outcome outcome = scope->Host().Handles().Dispose(handle);
  if (!outcome.broken.empty()) scope->Broken("host_dispose_handle", outcome.broken);
}

A_HandleSize GetHandleSize(PF_Handle handle) {
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr || scope->EnterCall() != PF_Err_NONE) return 0;
  if (!scope->Host().Handles().IsLive(handle)) {
    scope->Broken("host_get_handle_size", "the handle is not one of the host's");
    return 0;
  }
  return scope->Host().Handles().Size(handle);
}

// The part of a rectangle that lies in the world. Where there is none, one edge isn't behind the
// other.
PF_Rect Clipped(const PF_Rect* rect, const OutputWorld& world) {
  if (rect == nullptr) return {0, 0, world.Width(), world.Height()};
  return {std::max(rect->left, 0), std::max(rect->top, 0), std::min(rect->right, world.Width()),
          std::min(rect->bottom, world.Height())};
}

// color   null: black with alpha 0
void FillPixels(std::span<PF_Pixel> pixels, const PF_Pixel* color) {
  if (color == nullptr) {
    std::memset(pixels.data(), 0, pixels.size_bytes());
  } else {
    std::fill(pixels.begin(), pixels.end(), *color);
  }
}

PF_Err Fill(PF_ProgPtr effect_ref, const PF_Pixel* color, const PF_Rect* dst_rect,
            PF_EffectWorld* world) {
  const HostCall call("fill", effect_ref);
  if (!call) return call.Error();
  if (call->output == nullptr || world != call->output->Record()) {
    return call.Broken("the world is not one of the host's");
  }
  const PF_Rect area = Clipped(dst_rect, *call->output);
  if (area.right <= area.left) return PF_Err_NONE;
  const auto left = static_cast<size_t>(area.left);
  const auto width = static_cast<size_t>(area.right) - left;
  for (A_long y = area.top; y < area.bottom; ++y) {
    FillPixels(call->output->Row(y).subspan(left, width), color);
  }
  return PF_Err_NONE;
}

// The stand-in has no window of its own.
PF_Err GetPlatformData(PF_ProgPtr effect_ref, PF_PlatDataID which, void* data) {
  const HostCall call("get_platform_data", effect_ref);
  if (!call) return call.Error();
  if (which != PF_PlatData_MAIN_WND) return call.Broken("only the main window is known");
  *static_cast<void**>(data) = nullptr;
  return PF_Err_NONE;
}

int FormatText(A_char* text, const A_char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  const int length = std::vsprintf(text, format, arguments);
  va_end(arguments);
  return length;
}

PF_ANSICallbacks AnsiCallbacks() {
  PF_ANSICallbacks ansi{};
  ansi.atan = std::atan;
  ansi.atan2 = std::atan2;
  ansi.ceil = std::ceil;
  ansi.cos = std::cos;
  ansi.exp = std::exp;
  ansi.fabs = std::fabs;
  ansi.floor = std::floor;
  ansi.fmod = std::fmod;
  ansi.hypot = std::hypot;
  ansi.log = std::log;
  ansi.log10 = std::log10;
  ansi.pow = std::pow;
  ansi.sin = std::sin;
  ansi.sqrt = std::sqrt;
  ansi.tan = std::tan;
  ansi.sprintf = FormatText;
  ansi.strcpy = std::strcpy;
  ansi.asin = std::asin;
  ansi.acos = std::acos;
  return ansi;
}

PF_UtilCallbacks MakeCallbacks() {
  PF_UtilCallbacks callbacks{};
  callbacks.fill = Fill;
  callbacks.host_new_handle = NewHandle;
  callbacks.host_lock_handle = LockHandle;
  callbacks.host_unlock_handle = UnlockHandle;
  callbacks.host_dispose_handle = DisposeHandle;
  callbacks.host_get_handle_size = GetHandleSize;
  callbacks.get_platform_data = GetPlatformData;
  callbacks.ansi = AnsiCallbacks();
  return callbacks;
}

}  // namespace

PF_UtilCallbacks* UtilityCallbacks() {
  static PF_UtilCallbacks callbacks = MakeCallbacks();
  return &callbacks;
}
