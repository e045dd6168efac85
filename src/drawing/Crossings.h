// Where the edges of polygons cross the rows of samples.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

struct Crossing {
  Crossing* next = nullptr;
  int32_t x = 0;        // the first sample to the right of the edge
  int32_t winding = 0;  // +1 for an edge that goes down, -1 for one that goes up
};

// Hands out crossings from blocks that are kept and used again.
class CrossingPool {
 public:
  CrossingPool() = default;
  CrossingPool(const CrossingPool&) = delete;
  CrossingPool& operator=(const CrossingPool&) = delete;
  ~CrossingPool();

  // Throws App::ExceptionInfo kOutOfMemory.
  Crossing& Take();
  // All crossings that were handed out are gone; their blocks are free for new ones.
  void TakeAllBack();

 private:
  static constexpr size_t kBlockSize = 100;
  struct Block {
    Block* next = nullptr;
    std::array<Crossing, kBlockSize> crossings = {};
  };

  void AddBlock();
  static void Delete(Block* list);

  Block* used = nullptr;  // the first one is being handed out
  Block* free = nullptr;
  size_t usedOfFirst = kBlockSize;
};

// A list of crossings for each row.
class CrossingRows {
 public:
  // What a path may have together, 16 MB of them: five hundred edges over the whole height of a
  // panel at scale 2.
  static constexpr int64_t kMostCrossings = int64_t{1} << 20;

  // Empties all rows and makes sure that there are `rows` of them, counted from 0. Costs as much as
  // the rows between the first and the last that was used. Throws App::ExceptionInfo kOutOfMemory.
  void Reset(size_t rows);

  // Throws App::ExceptionInfo kOutOfMemory, also where the path has all its crossings.
  void Add(int32_t row, int32_t x, int32_t winding);

  // The row's crossings from left to right, equal ones in the order of their adding.
  const Crossing* Sorted(int32_t row);

 private:
  struct List {
    Crossing* first = nullptr;
    Crossing* last = nullptr;
  };

  std::vector<List> lists;
  size_t usedFrom = 0;  // lists outside of these are empty
  size_t usedTo = 0;
  CrossingPool pool;
  int64_t taken = 0;
};
