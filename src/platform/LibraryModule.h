// The handle of the module that this code lies in; named resources are found through it.
#pragma once

using ModuleHandle = void*;

// Null where the system needs none.
extern ModuleHandle libraryModule;
