// Catches items that are lost, taken twice or out of order, and work that goes on behind a failure.
#include "workbench/cli/OrderedWork.h"

#include <gtest/gtest.h>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <numeric>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

std::vector<int64_t> Numbers(int64_t first, int64_t count) {
  std::vector<int64_t> numbers(static_cast<size_t>(count));
  std::iota(numbers.begin(), numbers.end(), first);
  return numbers;
}

// Item 0 waits for item 1 to be made: with less than two at a time this would never end.
TEST(OrderedWork, MakesItemsWhileEarlierOnesAreStillInTheMaking) {
  std::mutex mutex;
  std::condition_variable changed;
  bool isSecondMade = false;
  std::vector<int64_t> taken;
  OrderedWork work;
  work.make = [&](int /*worker*/, int64_t item) {
    std::unique_lock guard(mutex);
    if (item == 1) isSecondMade = true;
    changed.notify_all();
    changed.wait(guard, [&] { return isSecondMade; });
  };
  work.take = [&](int /*worker*/, int64_t item) { taken.push_back(item); };
  RunInOrder(0, 3, 2, work);
  EXPECT_EQ(taken, Numbers(0, 4));
}

TEST(OrderedWork, EndsWithTheFirstFailureInOrderAndTakesNothingBehindIt) {
  for (const bool inMake : {true, false}) {
    for (const int workers : {1, 4}) {
      std::vector<int64_t> taken;
      std::atomic<int> madeCount = 0;
      const auto failAt5 = [](bool isHere, int64_t item) {
        if (isHere && item == 5) throw std::runtime_error("item " + std::to_string(item));
      };
      OrderedWork work;
      work.make = [&](int /*worker*/, int64_t item) {
        ++madeCount;
        // Until every other worker has one of the items behind it.
        while (item == 5 && madeCount < 5 + workers) std::this_thread::yield();
        failAt5(inMake, item);
      };
      work.take = [&](int /*worker*/, int64_t item) {
        failAt5(!inMake, item);
        taken.push_back(item);
      };
      try {
        RunInOrder(0, 1000, workers, work);
        ADD_FAILURE() << "nothing was thrown";
      } catch (const std::runtime_error& failure) {
        EXPECT_STREQ(failure.what(), "item 5") << workers;
      }
      EXPECT_EQ(taken, Numbers(0, 5));
      EXPECT_LE(madeCount, 5 + workers);
    }
  }
}

}  // namespace
