// What an effect draws with, and the references by which it knows these things.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <variant>
#include <vector>

#include "DrawbotTypes.h"

// One step of a path.
//
//   kMove, kLine   x, y
//   kCurve         three points: two controls and the end
//   kRect          left, top, width, height
//   kArc           centre x, y, radius, start, sweep: degrees, from the x axis toward the y axis
//   kClose         nothing
struct PathStep {
  enum class Kind { kMove, kLine, kCurve, kRect, kArc, kClose };
  Kind kind = Kind::kMove;
  std::array<float, 6> numbers{};
};

struct DrawPen {
  DRAWBOT_ColorRGBA color{};
  float width = 1.0F;
};
struct DrawBrush {
  DRAWBOT_ColorRGBA color{};
};
struct DrawFont {
  float size = 0.0F;  // of the em, in surface coordinates
};
struct DrawPath {
  std::vector<PathStep> steps;
};
// A copy of the effect's pixels, row by row without gaps: 0xAARRGGBB with colours premultiplied.
struct DrawImage {
  int32_t width = 0;
  int32_t height = 0;
  std::vector<uint32_t> pixels;
};
using DrawObject = std::variant<DrawPen, DrawBrush, DrawFont, DrawPath, DrawImage>;

// Whether images of this layout can be taken: 32-bit pixels with blue first.
bool IsKnownLayout(DRAWBOT_PixelLayout layout);

// width, height   above 0
// rowBytes        at least width x 4
// layout          a known one
DrawImage CopyImage(int32_t width, int32_t height, int32_t rowBytes, DRAWBOT_PixelLayout layout,
                    const void* data);

// The objects of one draw that are alive. A reference is an address that no other object of the
// last million had, so one kept too long names nothing.
class DrawObjects {
 public:
  // Returns the reference of a new object, which is held once.
  void* Add(DrawObject object);

  // Each answers false for a reference that names no live object.
  bool Retain(const void* reference);
  bool Release(const void* reference);

  // Null where the reference names no live object of this kind.
  template <typename Kind>
  Kind* Find(const void* reference) {
    const auto found = live.find(reference);
    return found != live.end() ? std::get_if<Kind>(&found->second.object) : nullptr;
  }

  // A phrase for each kind of which some are alive, such as "2 pen(s)".
  std::vector<std::string> LeftOver() const;

 private:
  struct Entry {
    DrawObject object;
    int64_t count = 1;
  };

  std::unordered_map<const void*, Entry> live;
};
