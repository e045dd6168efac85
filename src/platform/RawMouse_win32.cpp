// The mouse's own counts, by DirectInput 8; the pointer's movement where there is no device.
#include "platform/RawMouse.h"

#include <windows.h>
// The version has to be said first.
#define DIRECTINPUT_VERSION 0x0800
#include <dinput.h>

#include <cstdint>
#include <memory>

#include "platform/LibraryModule.h"

namespace {

struct ReleaseInterface {
  void operator()(IUnknown* object) const { object->Release(); }
};
template <typename Interface>
using Owned = std::unique_ptr<Interface, ReleaseInterface>;

// For the length of a press. The device goes before its factory.
Owned<IDirectInput8W> mouseInput;
Owned<IDirectInputDevice8W> mouseDevice;
PointerPosition lastCursorPoint;

HWND WindowUnder(const PointerPosition& position, void* fallback) {
  HWND const window = WindowFromPoint({position.x, position.y});
  return window != nullptr ? window : static_cast<HWND>(fallback);
}

void CreateInput() {
  void* input = nullptr;
  if (FAILED(DirectInput8Create(static_cast<HINSTANCE>(libraryModule), DIRECTINPUT_VERSION,
                                IID_IDirectInput8W, &input, nullptr))) {
    return;
  }
  mouseInput.reset(static_cast<IDirectInput8W*>(input));
  IDirectInputDevice8W* device = nullptr;
  if (FAILED(mouseInput->CreateDevice(GUID_SysMouse, &device, nullptr))) return;
  mouseDevice.reset(device);
}

// A device that can't be set up stays, and counts nothing for the whole press.
void SetUpDevice(HWND window) {
  if (FAILED(mouseDevice->SetDataFormat(&c_dfDIMouse2))) return;
  constexpr DWORD kShared = DISCL_NONEXCLUSIVE | DISCL_FOREGROUND;
  if (FAILED(mouseDevice->SetCooperativeLevel(window, kShared))) return;
  mouseDevice->Acquire();
}

float Distance(int32_t from, int32_t to) {
  return static_cast<float>(int64_t{to} - from);
}

}  // namespace

void StartRawMouse(void* window, const PointerPosition& /*position*/) {
  StopRawMouse();
  lastCursorPoint = GetPointerPosition();
  HWND const shared = WindowUnder(lastCursorPoint, window);
  CreateInput();
  if (mouseDevice != nullptr) SetUpDevice(shared);
  // Making a device takes a while, and the mouse has moved on.
  lastCursorPoint = GetPointerPosition();
}

void ReadMouseDelta(const PointerPosition& /*position*/, float* dx, float* dy) {
  *dx = 0.0F;
  *dy = 0.0F;
  if (mouseDevice != nullptr) {
    DIMOUSESTATE2 state{};
    if (FAILED(mouseDevice->GetDeviceState(sizeof(state), &state))) {
      mouseDevice->Acquire();  // lost to another window
      return;
    }
    *dx = static_cast<float>(state.lX);
    *dy = static_cast<float>(state.lY);
    return;
  }
  const PointerPosition position = GetPointerPosition();
  *dx = Distance(lastCursorPoint.x, position.x);
  *dy = Distance(lastCursorPoint.y, position.y);
  lastCursorPoint = position;
}

void StopRawMouse() {
  if (mouseDevice != nullptr) mouseDevice->Unacquire();
  mouseDevice.reset();
  mouseInput.reset();
}
