// A host with one instance of the effect, its sound, and a world to render into.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "Sheet.h"
#include "gradient/GradientStops.h"
#include "graph/RenderSpectrumFrame.h"
#include "shell/SequenceRecord.h"
#include "tests/analysis/AnalysisHost.h"

// What host calls make of a handle: they are given nothing else.
struct FakeHandle {
  void* memory = nullptr;
  A_HandleSize size = 0;
  bool canBeLocked = true;
  int locks = 0;
};

struct GraphHost : AnalysisHost {
  TestParameters params;
  std::array<PF_ParamDef*, kParameterCount> pointers{};
  SequenceRecord record;
  FakeHandle handle{&record, sizeof record};
  Sheet picture;
  PF_LayerDef output;
  PF_OutData out_data{};
  PF_ParamDef** givenParams = pointers.data();
  PF_LayerDef* givenOutput = &output;
  PF_Err fillError = PF_Err_NONE;

  // A world of width x height pixels in the middle of a picture, three pixels from its edges.
  GraphHost(int32_t width, int32_t height)
      : picture(width + 6, height + 6), output(picture.Part(3, 3, width, height)) {
    for (size_t i = 0; i < pointers.size(); ++i) pointers[i] = &params.records[i];
    for (const int32_t element :
         {kLogarithmicScale, kShowSpectrum, kShowSelectionRanges, kShowOutput, kShowColormap}) {
      params.At(element).bd.value = 1;
    }
    params.At(kGradient).pd.value = kGradientVertical;
    params.At(kQuantizeValue).sd.value = 20;
    params.At(kFillSegment).fd.value = 80 * kFixedOne;
    for (int32_t range = 0; range < kRangeCount; ++range) SetUpRange(range);
    params.At(kScale).fd.value = 4 * kFixedOne;
    record.lastRenderTime = -1;
    InitRecord(record.gradient);
    in_data.sequence_data = reinterpret_cast<PF_Handle>(&handle);
    in_data.time_step = 4;
    in_data.time_scale = 100;
    in_data.utils->host_lock_handle = [](PF_Handle locked) -> void* {
      auto& fake = *reinterpret_cast<FakeHandle*>(locked);
      if (!fake.canBeLocked) return nullptr;
      ++fake.locks;
      return fake.memory;
    };
    in_data.utils->host_unlock_handle = [](PF_Handle locked) {
      --reinterpret_cast<FakeHandle*>(locked)->locks;
    };
    in_data.utils->host_get_handle_size = [](PF_Handle sized) {
      return reinterpret_cast<FakeHandle*>(sized)->size;
    };
    in_data.utils->fill = [](PF_ProgPtr ref, const PF_Pixel* color, const PF_Rect* rect,
                             PF_EffectWorld* /*world*/) {
      auto& host = static_cast<GraphHost&>(Of(ref));
      if (color != nullptr || rect != nullptr) return PF_Err{PF_Err_BAD_CALLBACK_PARAM};
      if (host.fillError == PF_Err_NONE) host.FillWorld(PF_Pixel{});
      return host.fillError;
    };
  }

  void FillWorld(PF_Pixel color) {
    for (int32_t y = 0; y < output.height; ++y) {
      std::fill_n(&picture.At(3, 3 + y), output.width, color);
    }
  }

  PF_Err Render(A_long time) {
    in_data.current_time = time;
    const PluginHost_AE_Impl facade(&in_data, &out_data, givenParams, givenOutput);
    return RenderSpectrumFrame(facade);
  }

 private:
  // A third of the graph's width, lower half; each range with a type and a falloff of its own.
  void SetUpRange(int32_t range) {
    const auto place = [](int32_t share, int32_t size) { return share * size / 10 * kFixedOne; };
    params.At(range, kRangeActive).bd.value = 1;
    params.At(range, kRangeType).pd.value = kTypeAverage + range;
    params.At(range, kRangeCorner1).td.x_value = place(1 + 2 * range, output.width);
    params.At(range, kRangeCorner1).td.y_value = place(5, output.height);
    params.At(range, kRangeCorner2).td.x_value = place(3 + 2 * range, output.width);
    params.At(range, kRangeCorner2).td.y_value = place(9, output.height);
    params.At(range, kRangeFalloff).pd.value = kFalloffInstant + range;
    params.At(range, kRangeFalloffTime).fd.value = kFixedOne;
  }
};
