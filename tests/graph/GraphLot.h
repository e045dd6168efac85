// All that a picture of the graph depends on, drawn by lot: tame, or such as no host should send.
#pragma once

#include <cstdint>
#include <limits>
#include <random>

#include "gradient/GradientStops.h"
#include "graph/OutputBars.h"
#include "graph/SpectrumGraph.h"
#include "tests/analysis/AnalysisHost.h"

struct GraphInputs {
  GraphSettings settings;
  std::array<double, kBandCount> levels{};
  GradientRecord colorMap;
  RangeGeometry geometry;
  std::array<double, kRangeCount> raw{};
  std::array<double, kRangeCount> held{};

  GraphInputs() { InitRecord(colorMap); }
};

inline void DrawGraph(const PF_LayerDef& output, const GraphLayout& layout, const GraphInputs& in) {
  const OutputWorld world = MakeOutputWorld(output);
  DrawSpectrumGraph(world, layout, in.settings, in.colorMap, in.levels, in.geometry);
  if (in.settings.output) DrawOutputBars(world, layout, in.settings.active, in.raw, in.held);
}

class GraphLot {
 public:
  explicit GraphLot(uint32_t seed) : engine(seed) {}

  // What a user can set.
  GraphInputs Tame(int32_t width, int32_t height) {
    GraphInputs inputs;
    GraphSettings& settings = inputs.settings;
    settings.gradient = Whole(1, 2);
    settings.quantize = Whole(0, 1) == 1;
    settings.quantizeValue = Whole(4, 50);
    settings.fillSegment = static_cast<float>(Whole(20, 100)) * 0.01F;
    for (bool* flag : {&settings.logarithmicScale, &settings.spectrum, &settings.selectionRanges,
                       &settings.output, &settings.colormap, &settings.active[0],
                       &settings.active[1], &settings.active[2]}) {
      *flag = Whole(0, 3) > 0;
    }
    for (double& level : inputs.levels) level = OneOf({0.0, 1.0, Share(), Share()});
    for (double& raw : inputs.raw) raw = OneOf({0.0, 1.0, Share()});
    for (double& held : inputs.held) held = OneOf({0.0, 1.0, Share()});
    SetRanges(inputs, width, height, [&](int32_t size) { return Whole(0, size) * kFixedOne; });
    return inputs;
  }

  // The same with values that are beyond their limits or no numbers at all.
  GraphInputs Hostile(int32_t width, int32_t height) {
    using Limits = std::numeric_limits<double>;
    GraphInputs inputs = Tame(width, height);
    GraphSettings& settings = inputs.settings;
    settings.gradient = OneOf({1, 2, 0, -7, kMax});
    settings.quantizeValue = OneOf({0, -1, -3, -50, 1, 2, 3, 10000, 2000000000, kMin, kMax});
    settings.fillSegment = OneOf({-327.68F, -1.0F, 0.0F, 0.8F, 1.5F, 327.67F});
    const auto strange = [&] {
      return OneOf({Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), -0.5, 1.5, 32.0,
                    1e300, -1e300, Share()});
    };
    for (double& level : inputs.levels) level = strange();
    for (double& raw : inputs.raw) raw = OneOf({0.0, 32.0, 1.5, Share()});
    for (double& held : inputs.held) held = strange();
    for (float& entry : inputs.colorMap.colorMapRed) entry = static_cast<float>(strange());
    SetRanges(inputs, width, height, [&](int32_t) { return OneOf({kMin, -1, 0, kMax}); });
    return inputs;
  }

  int32_t Whole(int32_t least, int32_t most) {
    return least + static_cast<int32_t>(engine() % static_cast<uint32_t>(most - least + 1));
  }

 private:
  static constexpr int32_t kMin = std::numeric_limits<int32_t>::min();
  static constexpr int32_t kMax = std::numeric_limits<int32_t>::max();

  double Share() { return Whole(0, 1000) / 1000.0; }

  template <typename Value>
  Value OneOf(std::initializer_list<Value> values) {
    return values.begin()[Whole(0, static_cast<int32_t>(values.size()) - 1)];
  }

  template <typename Place>
  void SetRanges(GraphInputs& inputs, int32_t width, int32_t height, Place place) {
    TestParameters params;
    for (int32_t range = 0; range < kRangeCount; ++range) {
      params.At(range, kRangeType).pd.value = Whole(kTypeAverage, kTypeTrigger);
      for (const RangeRow corner : {kRangeCorner1, kRangeCorner2}) {
        params.At(range, corner).td.x_value = place(width);
        params.At(range, corner).td.y_value = place(height);
      }
    }
    ComputeRangeGeometry(params, width, height, inputs.geometry);
  }

  std::mt19937 engine;
};
