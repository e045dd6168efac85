// The suite through which all other suites are acquired and released.
#pragma once

#include <cstddef>
#include <cstdint>

using SPErr = int32_t;
using SPBoolean = int32_t;

// Ask the result of AcquireSuite, never a slot, whether a suite is there: a suite that isn't
// available may come back with every slot set to `Undefined`.
struct SPBasicSuite {
  SPErr (*AcquireSuite)(const char* name, int version, const void** suite);
  SPErr (*ReleaseSuite)(const char* name, int version);
  SPBoolean (*IsEqual)(const char* token1, const char* token2);
  SPErr (*AllocateBlock)(size_t size, void** block);
  SPErr (*FreeBlock)(void* block);
  SPErr (*ReallocateBlock)(void* block, size_t newSize, void** newBlock);
  SPErr (*Undefined)();
};

static_assert(offsetof(SPBasicSuite, AcquireSuite) == 0);
static_assert(offsetof(SPBasicSuite, ReleaseSuite) == 8);
static_assert(offsetof(SPBasicSuite, IsEqual) == 16);
static_assert(offsetof(SPBasicSuite, AllocateBlock) == 24);
static_assert(offsetof(SPBasicSuite, FreeBlock) == 32);
static_assert(offsetof(SPBasicSuite, ReallocateBlock) == 40);
static_assert(offsetof(SPBasicSuite, Undefined) == 48);
static_assert(sizeof(SPBasicSuite) == 56);
