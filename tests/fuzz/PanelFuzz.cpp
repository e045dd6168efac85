// Sends any events to the colour map's row of two instances with any records, while calls of the
// host fail: no rule of the host may be broken, and all memory must come back.
#include <cstdlib>
#include <iostream>

#include "tests/fuzz/Input.h"
#include "workbench/host/PanelRow.h"

extern "C" PF_Err EntryPointFunc(PF_Cmd cmd, PF_InData* in_data, PF_OutData* out_data,
                                 PF_ParamDef* params[], PF_LayerDef* output, void* extra);

namespace {

constexpr int kMostEvents = 32;  // painting takes its time under sanitizers

void Require(const CommandResult& result) {
  if (result.broken.empty()) return;
  std::cerr << result.broken.front() << '\n';
  std::abort();
}

// In or near the row, or anywhere.
A_long TakePlace(Input& input) {
  const auto place = input.Take<uint16_t>();
  return (place & 0xF000) == 0xF000 ? input.Take<A_long>() : A_long{place % 400} - 40;
}

// One effect and its row; its record is a new one, or ends with the input's stops.
struct Shown {
  Shown(EffectHost& host, Layer& layer, Input& input)
      : effect(host.Parameters(), layer),
        row(host, effect, 12,
            (input.Take<uint8_t>() & 7) != 0 ? PF_UnionableRect{0, 40, 306, 170}
                                             : input.Take<PF_UnionableRect>(),
            Require) {
    size_t count = input.Take<uint16_t>() % 653;
    std::vector<uint8_t> record(3112, 255);
    for (size_t i = record.size() - 652; i < record.size() && count > 0; ++i, --count) {
      record[i] = input.Take<uint8_t>();
    }
    const bool isStored = (input.Take<uint8_t>() & 1) != 0;
    if (isStored) effect.sequenceData = host.Handles().NewFrom(record);
    Require(host.Send(isStored ? PF_Cmd_SEQUENCE_RESETUP : PF_Cmd_SEQUENCE_SETUP, &effect));
  }

  EffectInstance effect;
  PanelRow row;
};

void Replay(Input& input, EffectHost& host, PanelRow& row) {
  const auto what = input.Take<uint8_t>();
  row.fault = {};
  if ((what & 0xF0) == 0xF0) row.fault = {input.Take<uint8_t>(), (what & 8) != 0 ? 1234 : 0};
  const auto keys = static_cast<PF_Modifiers>(input.Take<uint8_t>() << 8);
  const A_long x = TakePlace(input);
  const PF_Point point{x, TakePlace(input)};
  switch (what & 7) {
    case 0:
    case 1:
      return row.Click(point, keys, 1 + (what >> 3 & 1));
    case 2:
      return row.Drag(point, keys);
    case 3:
      return row.Release(point, keys);
    case 4:
      row.Move(point, keys);
      return;
    case 5:
      row.pane.Invalidate(nullptr);
      return row.Draw();
    case 6:
      row.pane.colorAnswers.emplace_back(input.Take<PF_PixelFloat>());
      return;
    default:
      if ((what & 0xF8) != 0) return;
      Require(host.Send(PF_Cmd_GLOBAL_SETDOWN));
      Require(host.Send(PF_Cmd_GLOBAL_SETUP));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Input input(data, size);
  Comp comp;
  Layer& layer = comp.AddLayer("layer", nullptr);
  EffectHost host(EntryPointFunc);
  for (const PF_Cmd cmd : {PF_Cmd_GLOBAL_SETUP, PF_Cmd_PARAMS_SETUP}) Require(host.Send(cmd));
  Shown first(host, layer, input);
  Shown second(host, layer, input);
  for (int n = 0; n < kMostEvents && !input.IsEmpty(); ++n) {
    Replay(input, host, (input.Take<uint8_t>() & 3) == 0 ? second.row : first.row);
  }
  for (Shown* const shown : {&first, &second}) {
    Require(host.Send(PF_Cmd_SEQUENCE_SETDOWN, &shown->effect));
  }
  Require(host.Send(PF_Cmd_GLOBAL_SETDOWN));
  if (host.Handles().LiveCount() != 0) std::abort();
  return 0;
}
