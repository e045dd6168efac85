// Where the module's handle is kept.
#include "platform/LibraryModule.h"

ModuleHandle libraryModule = nullptr;
