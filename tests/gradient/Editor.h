// The colour map's panel on stored maps of several instances, played by a script.
#pragma once

#include <cstddef>
#include <cstring>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "gradient/GradientRamp.h"
#include "gradient/GradientSnapshot.h"
#include "tests/gradient/StoredMap.h"
#include "tools/specimens/DemoEditor.h"

class Editor : public DemoEditor {
 public:
  explicit Editor(std::vector<StoredMap> theMaps)
      : DemoEditor(theMaps[0].Record()), maps(std::move(theMaps)) {
    SetInstance(0);
  }

  void SetInstance(size_t index) {
    instance = index;
    map = &maps[index].Record();
  }
  // d x y press, D x y double press, m x y drag, u release; local to the strip.
  void Play(const std::string& script) {
    std::istringstream words(script);
    Point at;
    for (char event = 0; words >> event;) {
      if (event != 'u') words >> at.x >> at.y;
      const Point place = OnStrip(at.x, at.y);
      if (event == 'd' || event == 'D') Press(place, {}, event == 'D');
      if (event == 'm') Drag(place);
      if (event == 'u') Release(place);
    }
  }
  GradientSnapshot Stops() { return TakeSnapshot(GradientView(*map)); }
  bool RampIsThatOfItsStops() {
    GradientRecord rebuilt = *map;
    GradientView view(rebuilt);
    RebuildRamp(view);
    return std::memcmp(&rebuilt, map, offsetof(GradientRecord, stopPosition)) == 0;
  }
  // The panel on a picture of its size.
  void PaintAlone(ImageBuffer& picture) {
    picture.Allocate(612, 260, false);
    picture.SetScale(2.0F);
    picture.SetScaleAware(true);
    Paint(picture, {0, 0});
  }

  std::vector<StoredMap> maps;
  size_t instance = 0;
};
