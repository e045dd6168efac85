// Lists of crossings, and the blocks that their memory comes from.
#include "drawing/Crossings.h"

#include <algorithm>
#include <new>

#include "engine/ExceptionInfo.h"

namespace {

bool IsSorted(const Crossing* list) {
  for (; list != nullptr && list->next != nullptr; list = list->next) {
    if (list->next->x < list->x) return false;
  }
  return true;
}

// Of equal crossings those of `a` come first.
Crossing* Merge(Crossing* a, Crossing* b) {
  Crossing* first = nullptr;
  Crossing** end = &first;
  while (a != nullptr && b != nullptr) {
    Crossing*& lesser = b->x < a->x ? b : a;
    *end = lesser;
    end = &lesser->next;
    lesser = lesser->next;
  }
  *end = a != nullptr ? a : b;
  return first;
}

// Merges runs of 1, 2, 4, ... crossings; run i holds 2^i of them or none. Putting each crossing in
// its place as it comes would do for shapes of a few dozen edges, but a path from outside may have
// a million on one row.
Crossing* Sort(Crossing* list) {
  std::array<Crossing*, 32> runs = {};
  size_t runCount = 0;
  while (list != nullptr) {
    Crossing* run = list;
    list = list->next;
    run->next = nullptr;
    size_t i = 0;
    for (; i < runCount && runs[i] != nullptr; ++i) {
      run = Merge(runs[i], run);
      runs[i] = nullptr;
    }
    runs[i] = run;
    runCount = std::max(runCount, i + 1);
  }
  Crossing* all = nullptr;
  for (size_t i = 0; i < runCount; ++i) all = Merge(runs[i], all);
  return all;
}

}  // namespace

CrossingPool::~CrossingPool() {
  Delete(used);
  Delete(free);
}

Crossing& CrossingPool::Take() {
  if (usedOfFirst == kBlockSize) AddBlock();
  return used->crossings[usedOfFirst++];
}

void CrossingPool::TakeAllBack() {
  while (used != nullptr) {
    Block* block = used;
    used = block->next;
    block->next = free;
    free = block;
  }
  usedOfFirst = kBlockSize;
}

void CrossingPool::AddBlock() {
  Block* block = free != nullptr ? free : new (std::nothrow) Block;
  if (block == nullptr) throw App::ExceptionInfo{App::kOutOfMemory, nullptr};
  if (block == free) free = block->next;
  block->next = used;
  used = block;
  usedOfFirst = 0;
}

void CrossingPool::Delete(Block* list) {
  while (list != nullptr) {
    const Block* block = list;
    list = block->next;
    delete block;
  }
}

void CrossingRows::Reset(size_t rows) {
  pool.TakeAllBack();
  taken = 0;
  try {
    if (lists.size() < rows) lists.resize(rows);
  } catch (const std::bad_alloc&) {
    throw App::ExceptionInfo{App::kOutOfMemory, nullptr};
  }
  for (size_t i = usedFrom; i < usedTo; ++i) lists[i] = {};
  usedFrom = lists.size();
  usedTo = 0;
}

void CrossingRows::Add(int32_t row, int32_t x, int32_t winding) {
  if (taken == kMostCrossings) {
    throw App::ExceptionInfo{App::kOutOfMemory, "The path has more edges than can be drawn"};
  }
  Crossing& crossing = pool.Take();
  ++taken;
  crossing = {nullptr, x, winding};
  const auto index = static_cast<size_t>(row);
  usedFrom = std::min(usedFrom, index);
  usedTo = std::max(usedTo, index + 1);
  List& list = lists[index];
  (list.last != nullptr ? list.last->next : list.first) = &crossing;
  list.last = &crossing;
}

const Crossing* CrossingRows::Sorted(int32_t row) {
  List& list = lists[static_cast<size_t>(row)];
  if (!IsSorted(list.first)) {
    list.first = Sort(list.first);
    list.last = list.first;
    while (list.last->next != nullptr) list.last = list.last->next;
  }
  return list.first;
}
