// A system whose modules are asked for nothing by their handle.
#include "platform/LibraryModule.h"

ModuleHandle libraryModule = nullptr;
