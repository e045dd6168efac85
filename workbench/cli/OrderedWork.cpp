// A counter hands out items; a turn, items in order, takes them back.
#include "workbench/cli/OrderedWork.h"

#include <condition_variable>
#include <exception>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <vector>

namespace {

class Run {
 public:
  Run(int64_t firstItem, int64_t lastItem, const OrderedWork& orderedWork)
      : work(orderedWork), next(firstItem), turn(firstItem), last(lastItem) {}

  // What each thread does until no item is left or one has failed.
  void Work(int worker) {
    while (const auto item = NextItem()) {
      const std::exception_ptr thrown = Try(work.make, worker, *item);
      if (!TakeInTurn(worker, *item, thrown)) return;
    }
  }

  void RethrowFailure() const {
    if (failure != nullptr) std::rethrow_exception(failure);
  }

 private:
  using Step = std::function<void(int worker, int64_t item)>;

  static std::exception_ptr Try(const Step& step, int worker, int64_t item) {
    try {
      step(worker, item);
      return nullptr;
    } catch (...) {
      return std::current_exception();
    }
  }

  std::optional<int64_t> NextItem() {
    const std::scoped_lock guard(mutex);
    if (failure != nullptr || next > last) return std::nullopt;
    return next++;
  }

  // False where an item before this one has failed, or this one has.
  bool TakeInTurn(int worker, int64_t item, std::exception_ptr thrown) {
    std::unique_lock guard(mutex);
    turnChanged.wait(guard, [&] { return turn == item || failure != nullptr; });
    if (failure != nullptr) return false;
    // Taken outside the lock, so that the others go on making; the turn stays with this item.
    guard.unlock();
    if (thrown == nullptr) thrown = Try(work.take, worker, item);
    guard.lock();
    failure = thrown;
    ++turn;
    turnChanged.notify_all();
    return failure == nullptr;
  }

  const OrderedWork& work;
  std::mutex mutex;
  std::condition_variable turnChanged;
  int64_t next;  // to be made
  int64_t turn;  // to be taken
  int64_t last;
  std::exception_ptr failure;
};

}  // namespace

void RunInOrder(int64_t first, int64_t last, int workers, const OrderedWork& work) {
  Run run(first, last, work);
  {
    std::vector<std::jthread> threads;
    try {
      for (int worker = 1; worker < workers; ++worker) {
        threads.emplace_back([&run, worker] { run.Work(worker); });
      }
    } catch (const std::system_error&) {
      // The system gives no more threads: those that run do all the work.
    }
    run.Work(0);
  }
  run.RethrowFailure();
}
