// Numbered items, made on several threads and taken in order.
#pragma once

#include <cstdint>
#include <functional>

// worker   0 and up: what `make` of an item has left with a worker stays until its `take`
struct OrderedWork {
  std::function<void(int worker, int64_t item)> make;  // several at once, each for its own worker
  std::function<void(int worker, int64_t item)> take;  // one at a time, in the order of the items
};

// Does the work for each item from `first` to `last`, both included, with at most `workers`
// threads, the calling one among them. With one worker all happens in order on the calling thread.
//
// Throws what the first item in order to fail has thrown; no item behind it is taken. All threads
// have ended by then.
void RunInOrder(int64_t first, int64_t last, int workers, const OrderedWork& work);
