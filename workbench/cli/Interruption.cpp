// Signals that are noted and looked at later.
#include "workbench/cli/Interruption.h"

#include <atomic>
#include <csignal>

#include "workbench/Failure.h"

namespace {

// All that a handler may touch.
std::atomic<bool> wished = false;
static_assert(std::atomic<bool>::is_always_lock_free);

void Note(int signal) {
  wished = true;
  std::signal(signal, SIG_DFL);
}

}  // namespace

Interruption::Interruption()
    : oldInterrupt(std::signal(SIGINT, Note)), oldTerminate(std::signal(SIGTERM, Note)) {}

Interruption::~Interruption() {
  std::signal(SIGINT, oldInterrupt);
  std::signal(SIGTERM, oldTerminate);
  wished = false;
}

void Interruption::Check() const {
  if (wished) throw JobFailure("stopped before the end; nothing has been written.");
}
