// The workbench: reads its options, runs one command, returns its status.
#include <algorithm>
#include <exception>
#include <iostream>
#include <new>
#include <string>

#include "workbench/Failure.h"
#include "workbench/cli/CommandLine.h"
#include "workbench/cli/Console.h"

namespace {

// Names and texts from outside may hold line ends and other control codes; a message is one line.
void ShowFailure(std::string text) {
  const auto isControl = [](unsigned char letter) { return letter < ' ' || letter == 0x7F; };
  std::replace_if(text.begin(), text.end(), isControl, '?');
  std::cerr << "workbench: " << text << '\n';
}

}  // namespace

int main(int argc, char** argv) {
  constexpr int kJobFailed = 1;
  constexpr int kWrongCommandLine = 2;
  try {
    SetUpConsole();
    const int status = RunCommandLine(ConsoleArguments(argc, argv));
    if (std::cout.flush()) return status;
    ShowFailure("What was to be printed could not be written. Is the disk full?");
    return kJobFailed;
  } catch (const UsageFailure& failure) {
    ShowFailure(failure.what());
    return kWrongCommandLine;
  } catch (const std::bad_alloc&) {
    ShowFailure("There is not enough memory for this job. Try a shorter sound.");
    return kJobFailed;
  } catch (const std::exception& failure) {
    ShowFailure(failure.what());
    return kJobFailed;
  }
}
