// The module's handle, as the system tells it when it loads and unloads the library.
#include "platform/LibraryModule.h"

#include <windows.h>

ModuleHandle libraryModule = nullptr;

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void* reserved);

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void* /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) {
    libraryModule = instance;
    DisableThreadLibraryCalls(instance);
  } else if (reason == DLL_PROCESS_DETACH) {
    libraryModule = nullptr;
  }
  return TRUE;
}
