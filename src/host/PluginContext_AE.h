// The tree's view of the host's call during one event, in the host's terms.
#pragma once

#include "AE_Effect.h"
#include "AE_EffectUI.h"
#include "toolkit/PluginContext.h"

// What the host passed in with an event; all its own.
struct EventRecords {
  PF_InData* inData = nullptr;
  PF_OutData* outData = nullptr;
  PF_ParamDef** params = nullptr;
  PF_LayerDef* output = nullptr;
  PF_EventExtra* extra = nullptr;
};

class PluginContext_AE : public PluginContext {
 public:
  explicit PluginContext_AE(const EventRecords& recordsOfEvent) : records(recordsOfEvent) {}
  PluginContext_AE(const PluginContext_AE&) = delete;
  PluginContext_AE& operator=(const PluginContext_AE&) = delete;

  bool BlitToHost(const NativeImageBuffer& buffer, int32_t srcX, int32_t srcY, int32_t width,
                  int32_t height, int32_t dstX, int32_t dstY) override;
  // Each is 1 where the host's ratio is none.
  double GetDownsampleX() const override;
  double GetDownsampleY() const override;
  double GetPixelAspect() const override;
  virtual ~PluginContext_AE() = default;

  PF_InData* InData() const { return records.inData; }
  PF_OutData* OutData() const { return records.outData; }
  PF_EventExtra* Extra() const { return records.extra; }

 private:
  EventRecords records;
};
