// Catches presses without a mouse, and counts that are lost or come twice.
#include "platform/RawMouse.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <utility>

#include "platform/LibraryModule.h"

namespace {

using Movement = std::pair<float, float>;

Movement ReadMovement() {
  Movement movement{99.0F, 99.0F};
  ReadMouseDelta({}, &movement.first, &movement.second);
  return movement;
}

// All that arrives until it is `expected`, or until it has had two seconds for that: the system
// counts on a thread of its own.
Movement AwaitMovement(const Movement& expected) {
  Movement sum;
  for (int tries = 0; tries < 2000 && sum != expected; ++tries) {
    const Movement part = ReadMovement();
    sum = {sum.first + part.first, sum.second + part.second};
    if (sum != expected) Sleep(1);
  }
  return sum;
}

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
  EXPECT_EQ(ReadMovement(), Movement(0, 0));
  SetPointerPosition({207, 138});
  EXPECT_EQ(ReadMovement(), Movement(7, -12));
  EXPECT_EQ(ReadMovement(), Movement(0, 0));
}

TEST_F(RawMouse, CountsBeyondTheEdgeOfTheScreen) {
  // A device that is shared with others counts for a window in the foreground.
  HWND const window = CreateWindowA("BUTTON", "", WS_POPUP | WS_VISIBLE, 0, 0, 400, 300, nullptr,
                                    nullptr, nullptr, nullptr);
  SetForegroundWindow(window);
  libraryModule = GetModuleHandleA(nullptr);
  INPUT step{};
  step.type = INPUT_MOUSE;
  step.mi = {-4, -3, 0, MOUSEEVENTF_MOVE, 0, 0};  // too small to be made larger for a fast hand
  for (int press = 0; press < 3; ++press) {
    SetPointerPosition({1, 1});
    StartRawMouse(window, {});
    for (int i = 0; i < 10; ++i) SendInput(1, &step, sizeof(step));
    EXPECT_EQ(AwaitMovement({-40, -30}), Movement(-40, -30)) << press;
    EXPECT_EQ(ReadMovement(), Movement(0, 0)) << press;
    StopRawMouse();
  }
  DestroyWindow(window);
}

TEST_F(RawMouse, StandsStillWithADeviceThatNoWindowSharesUntilTheRelease) {
  libraryModule = GetModuleHandleA(nullptr);
  StartRawMouse(nullptr, {});
  SetPointerPosition({300, 200});
  EXPECT_EQ(ReadMovement(), Movement(0, 0));
  StopRawMouse();
  EXPECT_EQ(ReadMovement(), Movement(100, 50));  // the pointer's, from the press on
}

}  // namespace
