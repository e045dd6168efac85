// The global record's beginning and end.
#include "shell/GlobalCommands.h"

#include "gradient/CreateCustomPanels.h"
#include "gradient/GradientUndo.h"
#include "host/HandleLock.h"
#include "host/HostApplication.h"
#include "host/PluginHost_AE_Impl.h"
#include "shell/GlobalRecord.h"
#include "shell/PluginIdentity.h"
#include "toolkit/PanelRegistry.h"

PF_Err SetUpGlobal(PF_InData* in_data, PF_OutData* out_data) {
  if (IsPremiere(in_data)) return PF_Interrupt_CANCEL;
  out_data->my_version = kPluginVersion;
  out_data->out_flags |= kPluginOutFlags;
  out_data->out_flags2 |= kPluginOutFlags2;

  NewHandle handle(in_data, sizeof(GlobalRecord));
  if (handle.Get() == nullptr) return PF_Err_OUT_OF_MEMORY;
  {
    const LockedRecord<GlobalRecord> record(in_data, handle.Get());
    if (!record) return record.Error();
    const PluginHost_AE_Impl host(in_data, out_data, nullptr, nullptr);
    *record = GlobalRecord{};
    CreateCustomPanels();
  }
  out_data->global_data = handle.Release();
  return PF_Err_NONE;
}

PF_Err SetDownGlobal(PF_InData* in_data, PF_OutData* out_data) {
  DestroyCustomPanels();
  const PF_Handle handle = in_data->global_data;
  PF_Err error = PF_Err_NONE;
  if (handle != nullptr) {
    {
      const LockedRecord<GlobalRecord> record(in_data, handle);
      error = record.Error();
      if (record) {
        DropSnapshots({record->undoSnapshot, record->redoSnapshot, record->undoOwner});
      }
    }
    in_data->utils->host_dispose_handle(handle);
  }
  out_data->global_data = nullptr;
  return error;
}
