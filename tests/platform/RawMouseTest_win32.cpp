// Catches presses without a mouse, and counts that are lost or come twice.
#include "platform/RawMouse.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "platform/LibraryModule.h"

namespace {

struct Movement {
  float dx = 0.0F;
  float dy = 0.0F;
  bool operator==(const Movement&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Movement& movement) {
  return out << movement.dx << ", " << movement.dy;
}

Movement ReadMovement() {
  Movement movement{99.0F, 99.0F};
  ReadMouseDelta({}, &movement.dx, &movement.dy);
  return movement;
}

// All that arrives until it is `expected`, or until it has had two seconds for that: the system
// counts on a thread of its own.
Movement AwaitMovement(const Movement& expected) {
  Movement sum;
  for (int tries = 0; tries < 2000 && sum != expected; ++tries) {
    const Movement part = ReadMovement();
    sum = {sum.dx + part.dx, sum.dy + part.dy};
    if (sum != expected) Sleep(1);
  }
  return sum;
}

// Steps of at most 6, which the system doesn't make larger for a fast hand.
void MoveMouse(int dx, int dy) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dx = dx;
  input.mi.dy = dy;
  input.mi.dwFlags = MOUSEEVENTF_MOVE;
  SendInput(1, &input, sizeof(input));
}

// A window in the foreground, which a device shared with others needs.
class ForegroundWindow {
 public:
  ForegroundWindow()
      : window(CreateWindowA("BUTTON", "", WS_POPUP | WS_VISIBLE, 0, 0, 400, 300, nullptr, nullptr,
                             nullptr, nullptr)) {
    SetForegroundWindow(window);
  }
  ~ForegroundWindow() { DestroyWindow(window); }
  ForegroundWindow(const ForegroundWindow&) = delete;
  ForegroundWindow& operator=(const ForegroundWindow&) = delete;

  HWND Handle() const { return window; }

 private:
  HWND window;
};

class RawMouse : public testing::Test {
 protected:
  RawMouse() { SetPointerPosition({200, 150}); }
  ~RawMouse() override {
    StopRawMouse();
    libraryModule = nullptr;
  }
};

TEST_F(RawMouse, FollowsThePointerWhereThereIsNoDevice) {
  StartRawMouse(nullptr, {});  // no device is made for no module
  EXPECT_EQ(ReadMovement(), (Movement{0, 0}));
  SetPointerPosition({207, 138});
  EXPECT_EQ(ReadMovement(), (Movement{7, -12}));
  EXPECT_EQ(ReadMovement(), (Movement{0, 0}));
}

TEST_F(RawMouse, CountsBeyondTheEdgeOfTheScreen) {
  const ForegroundWindow window;
  libraryModule = GetModuleHandleA(nullptr);
  for (int press = 0; press < 3; ++press) {
    SetPointerPosition({1, 1});
    StartRawMouse(window.Handle(), {});
    for (int step = 0; step < 10; ++step) MoveMouse(-4, -3);
    EXPECT_EQ(AwaitMovement({-40, -30}), (Movement{-40, -30})) << press;
    EXPECT_EQ(ReadMovement(), (Movement{0, 0})) << press;
    StopRawMouse();
  }
}

TEST_F(RawMouse, StandsStillWithADeviceThatNoWindowShares) {
  libraryModule = GetModuleHandleA(nullptr);
  StartRawMouse(nullptr, {});
  SetPointerPosition({300, 200});
  EXPECT_EQ(ReadMovement(), (Movement{0, 0}));
}

}  // namespace
