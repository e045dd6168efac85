// The workbench: reads its options, runs one command, returns its status.
#include <exception>
#include <iostream>
#include <new>

#include "workbench/Failure.h"
#include "workbench/cli/CommandLine.h"

int main(int argc, char** argv) {
  constexpr int kJobFailed = 1;
  constexpr int kWrongCommandLine = 2;
  try {
    return RunCommandLine(argc, argv);
  } catch (const UsageFailure& failure) {
    std::cerr << "workbench: " << failure.what() << '\n';
    return kWrongCommandLine;
  } catch (const std::bad_alloc&) {
    std::cerr << "workbench: There is not enough memory for this job. Try a shorter sound.\n";
    return kJobFailed;
  } catch (const std::exception& failure) {
    std::cerr << "workbench: " << failure.what() << '\n';
    return kJobFailed;
  }
}
