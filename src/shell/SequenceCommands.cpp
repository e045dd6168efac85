// Handles that hold an instance's record.
#include "shell/SequenceCommands.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "host/HandleLock.h"
#include "host/ReturnMessage.h"
#include "shell/SequenceHeader.h"

namespace {

constexpr const char* kWrongSizeText =
    "Quorvane Delvior: Project or Favorite contains sequence data with wrong size.";

// Lays a stored header over that of `record`, up to the last field that is there in full. The
// alignment bytes are left out.
void TakeOverHeader(SequenceRecord& record, const SequenceRecord& stored, size_t storedSize) {
  const auto take = [storedSize](auto& field, const auto& storedField, size_t offset) {
    if (offset + sizeof field <= storedSize) std::memcpy(&field, &storedField, sizeof field);
  };
  take(record.lastRenderTime, stored.lastRenderTime, offsetof(SequenceRecord, lastRenderTime));
  for (size_t range = 0; range < std::size(record.heldValue); ++range) {
    take(record.heldValue[range], stored.heldValue[range],
         offsetof(SequenceRecord, heldValue) + range * sizeof(double));
  }
  take(record.applyButtonState, stored.applyButtonState,
       offsetof(SequenceRecord, applyButtonState));
  take(record.applySecondState, stored.applySecondState,
       offsetof(SequenceRecord, applySecondState));
  take(record.applyReserved, stored.applyReserved, offsetof(SequenceRecord, applyReserved));
  take(record.applyTracking, stored.applyTracking, offsetof(SequenceRecord, applyTracking));
}

// Makes a record in a handle of its own: the default colour map, and of the header what is stored.
//
// storedSize   bytes of `stored` that are there, 0 for a new record
PF_Err MakeRecord(const PF_InData* in_data, const SequenceRecord& stored, size_t storedSize,
                  PF_Handle* made) {
  NewHandle handle(in_data, sizeof(SequenceRecord));
  if (handle.Get() == nullptr) return PF_Err_OUT_OF_MEMORY;
  {
    const LockedRecord<SequenceRecord> record(in_data, handle.Get());
    if (!record) return record.Error();
    InitSequenceHeader(*record, true);
    TakeOverHeader(*record, stored, storedSize);
  }
  *made = handle.Release();
  return PF_Err_NONE;
}

}  // namespace

PF_Err SetUpSequence(PF_InData* in_data, PF_OutData* out_data) {
  return MakeRecord(in_data, SequenceRecord{}, 0, &out_data->sequence_data);
}

PF_Err ResetUpSequence(PF_InData* in_data, PF_OutData* out_data) {
  const PF_Handle storedHandle = in_data->sequence_data;
  if (storedHandle == nullptr) return SetUpSequence(in_data, out_data);
  const A_HandleSize storedSize = HandleSize(in_data, storedHandle);
  if (storedSize == sizeof(SequenceRecord)) return PF_Err_NONE;

  SequenceRecord stored{};
  const size_t headerSize = std::min<size_t>(storedSize, kSequenceHeaderSize);
  if (headerSize > 0) {
    const HandleLock lock(in_data, storedHandle);
    if (lock.Data() == nullptr) return PF_Err_OUT_OF_MEMORY;
    std::memcpy(static_cast<void*>(&stored), lock.Data(), headerSize);
  }
  // The old record goes only when the new one stands: a host without memory loses nothing.
  PF_Handle made = nullptr;
  const PF_Err error = MakeRecord(in_data, stored, headerSize, &made);
  if (error != PF_Err_NONE) return error;
  in_data->utils->host_dispose_handle(storedHandle);
  out_data->sequence_data = made;
  ShowReturnMessage(out_data, kWrongSizeText);
  return PF_Err_NONE;
}

PF_Err FlattenSequence(PF_InData* in_data, PF_OutData* out_data) {
  if (in_data->sequence_data == nullptr) return PF_Err_NONE;
  const LockedRecord<SequenceRecord> record(in_data, out_data->sequence_data);
  if (!record) return record.Error();
  InitSequenceHeader(*record, false);
  return PF_Err_NONE;
}

PF_Err CopyFlattenedSequence(PF_InData* in_data, PF_OutData* out_data) {
  NewHandle handle(in_data, sizeof(SequenceRecord));
  if (handle.Get() == nullptr) return PF_Err_OUT_OF_MEMORY;
  {
    const LockedRecord<SequenceRecord> copy(in_data, handle.Get());
    const LockedRecord<SequenceRecord> record(in_data, in_data->sequence_data);
    if (!copy) return copy.Error();
    if (!record) return record.Error();
    std::memcpy(copy.Get(), record.Get(), sizeof(SequenceRecord));
  }
  out_data->sequence_data = handle.Release();
  return PF_Err_NONE;
}

PF_Err SetDownSequence(PF_InData* in_data, PF_OutData* out_data) {
  if (in_data->sequence_data != nullptr) {
    in_data->utils->host_dispose_handle(in_data->sequence_data);
  }
  out_data->sequence_data = nullptr;
  return PF_Err_NONE;
}
