// A pen, brush, font, path or picture of the host's drawing, given back with this object.
#pragma once

#include <utility>

#include "DrawbotSuite.h"

template <typename Ref>
class DrawbotObject {
 public:
  DrawbotObject() = default;
  // Takes over what a call of the supplier handed out.
  //
  // error   of that call; anything but 0 means that there is no object
  DrawbotObject(const DRAWBOT_SupplierSuite1* supplierSuite, SPErr error, Ref handedOut)
      : suite(supplierSuite), ref(error == 0 ? handedOut : nullptr) {}
  ~DrawbotObject() { Release(); }
  DrawbotObject(DrawbotObject&& other) noexcept
      : suite(other.suite), ref(std::exchange(other.ref, nullptr)) {}
  DrawbotObject& operator=(DrawbotObject&& other) noexcept {
    if (this == &other) return *this;
    Release();
    suite = other.suite;
    ref = std::exchange(other.ref, nullptr);
    return *this;
  }

  explicit operator bool() const { return ref != nullptr; }
  Ref Get() const { return ref; }

  void Release() {
    if (ref != nullptr) suite->ReleaseObject(reinterpret_cast<DRAWBOT_ObjectRef>(ref));
    ref = nullptr;
  }

 private:
  const DRAWBOT_SupplierSuite1* suite = nullptr;
  Ref ref = nullptr;
};
