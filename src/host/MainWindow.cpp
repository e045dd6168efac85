// Keeps the window's handle for the life of the library.
#include "host/MainWindow.h"

namespace {

void* mainWindow = nullptr;

}  // namespace

void FetchMainWindow(const PF_InData* in_data) {
  if (mainWindow != nullptr) return;
  void* told = nullptr;
  const PF_Err error =
      in_data->utils->get_platform_data(in_data->effect_ref, PF_PlatData_MAIN_WND, &told);
  if (error == PF_Err_NONE) mainWindow = told;
}

void* MainWindow() {
  return mainWindow;
}
