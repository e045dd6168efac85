// Turns the exception in flight into an error code and a text.
#include "shell/ThrownFailure.h"

#include <exception>
#include <new>

#include "host/DRAWBOT_Exception.h"
#include "host/ReturnMessage.h"

namespace {

PF_Err Report(PF_OutData* out_data, const char* text, PF_Err error) {
  if (out_data != nullptr) ShowReturnMessage(out_data, text);
  return error;
}

}  // namespace

PF_Err ReportThrownFailure(PF_OutData* out_data) noexcept {
  try {
    throw;
  } catch (int error) {
    // A thrown 0 would tell the host that all went well.
    return error != PF_Err_NONE ? error : PF_Err_INTERNAL_STRUCT_DAMAGED;
  } catch (const char* text) {
    return Report(out_data, text != nullptr ? text : "Delvior stopped without giving a reason.",
                  PF_Err_INTERNAL_STRUCT_DAMAGED);
  } catch (const DRAWBOT_Exception& failure) {
    return Report(out_data, "The host could not draw Delvior's panel.", failure.code);
  } catch (const std::bad_alloc&) {
    return PF_Err_OUT_OF_MEMORY;
  } catch (const std::exception& failure) {
    return Report(out_data, failure.what(), PF_Err_INTERNAL_STRUCT_DAMAGED);
  } catch (...) {
    return Report(out_data, "Delvior stopped without giving a reason.",
                  PF_Err_INTERNAL_STRUCT_DAMAGED);
  }
}
