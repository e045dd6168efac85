// Handles of the host's movable memory: locked, owned, and seen as a record.
#pragma once

#include <cstddef>

#include "AE_Effect.h"

// Keeps a handle locked while it lives. Nothing is locked where the handle is null or the host
// gives no address.
class HandleLock {
 public:
  HandleLock(const PF_InData* in_data, PF_Handle lockedHandle)
      : utils(in_data->utils),
        handle(lockedHandle),
        data(handle != nullptr ? utils->host_lock_handle(handle) : nullptr) {}
  ~HandleLock() {
    if (data != nullptr) utils->host_unlock_handle(handle);
  }
  HandleLock(const HandleLock&) = delete;
  HandleLock& operator=(const HandleLock&) = delete;

  // The memory, until this object goes; null if nothing is locked.
  void* Data() const { return data; }

 private:
  const PF_UtilCallbacks* utils;
  PF_Handle handle;
  void* data;
};

inline A_HandleSize HandleSize(const PF_InData* in_data, PF_Handle handle) {
  return handle != nullptr ? in_data->utils->host_get_handle_size(handle) : 0;
}

// A record that lies at the start of a handle, locked while this object lives. A handle that is
// too small for the record counts as having none.
template <typename Record>
class LockedRecord {
 public:
  LockedRecord(const PF_InData* in_data, PF_Handle handle)
      : fits(HandleSize(in_data, handle) >= sizeof(Record)),
        lock(in_data, fits ? handle : nullptr) {}

  explicit operator bool() const { return lock.Data() != nullptr; }

  // 0 while there is a record, else why there is none.
  PF_Err Error() const {
    if (lock.Data() != nullptr) return PF_Err_NONE;
    return fits ? PF_Err_OUT_OF_MEMORY : PF_Err_INTERNAL_STRUCT_DAMAGED;
  }

  Record* Get() const { return static_cast<Record*>(lock.Data()); }
  Record* operator->() const { return Get(); }
  Record& operator*() const { return *Get(); }

 private:
  bool fits;
  HandleLock lock;
};

// A new handle, disposed of with this object unless it was handed on.
class NewHandle {
 public:
  // size   bytes; what they hold is the host's affair
  NewHandle(const PF_InData* in_data, size_t size)
      : utils(in_data->utils), handle(utils->host_new_handle(size)) {}
  ~NewHandle() {
    if (handle != nullptr) utils->host_dispose_handle(handle);
  }
  NewHandle(const NewHandle&) = delete;
  NewHandle& operator=(const NewHandle&) = delete;

  // Null if the host had no memory.
  PF_Handle Get() const { return handle; }

  // Hands the handle on to a new owner.
  PF_Handle Release() {
    const PF_Handle released = handle;
    handle = nullptr;
    return released;
  }

 private:
  const PF_UtilCallbacks* utils;
  PF_Handle handle;
};
