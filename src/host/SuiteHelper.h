// Fetches suites from the host and gives them back, with a text for the user where that fails.
#pragma once

#include "AE_Effect.h"
#include "DrawbotSuite.h"

// Asks the host for a suite.
//
// failureText   shown to the user on failure; null for a general text
// suite         receives the suite, or null
// Returns 0, or PF_Err_BAD_CALLBACK_PARAM with the text in out_data's return message.
PF_Err AcquireHostSuite(const PF_InData* in_data, PF_OutData* out_data, const char* name,
                        A_long version, const char* failureText, const void** suite);

// Gives back one acquired reference to a suite.
//
// Returns 0; PF_Err_BAD_CALLBACK_PARAM where the host can't be asked; or the host's own error. A
// failure leaves failureText (null: a general text) in out_data's return message.
PF_Err ReleaseHostSuite(const PF_InData* in_data, PF_OutData* out_data, const char* name,
                        A_long version, const char* failureText);

// The suites that draw into a panel. All four are set, or none.
struct AEFX_DrawbotSuites {
  const DRAWBOT_DrawbotSuite1* drawSuite = nullptr;
  const DRAWBOT_SupplierSuite1* supplierSuite = nullptr;
  const DRAWBOT_SurfaceSuite2* surfaceSuite = nullptr;
  const DRAWBOT_PathSuite1* pathSuite = nullptr;
};

// Acquires the four drawing suites, stopping at the first that the host doesn't have; those
// acquired before it are given back. Returns 514 with a text where `suites` is null.
PF_Err AEFX_AcquireDrawbotSuites(const PF_InData* in_data, PF_OutData* out_data,
                                 AEFX_DrawbotSuites* suites);

// Gives back all four. The first failure is returned, and the others are released all the same.
PF_Err AEFX_ReleaseDrawbotSuites(const PF_InData* in_data, PF_OutData* out_data);

// A suite of type Suite, held while this object lives.
template <typename Suite>
class HeldSuite {
 public:
  struct Texts {
    const char* acquireFailed;
    const char* releaseFailed;
  };

  HeldSuite(const PF_InData* inData, PF_OutData* outData, const char* suiteName,
            A_long suiteVersion, Texts failureTexts)
      : in_data(inData),
        out_data(outData),
        name(suiteName),
        version(suiteVersion),
        texts(failureTexts) {
    const void* acquired = nullptr;
    error = AcquireHostSuite(in_data, out_data, name, version, texts.acquireFailed, &acquired);
    suite = static_cast<const Suite*>(acquired);
  }
  ~HeldSuite() {
    if (suite != nullptr) ReleaseHostSuite(in_data, out_data, name, version, texts.releaseFailed);
  }
  HeldSuite(const HeldSuite&) = delete;
  HeldSuite& operator=(const HeldSuite&) = delete;

  explicit operator bool() const { return suite != nullptr; }
  const Suite* operator->() const { return suite; }

  // 0 while the suite is held, else why it isn't.
  PF_Err Error() const { return error; }

 private:
  const PF_InData* in_data;
  PF_OutData* out_data;
  const char* name;
  A_long version;
  Texts texts;
  const Suite* suite = nullptr;
  PF_Err error = PF_Err_NONE;
};
