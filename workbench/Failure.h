// How a workbench command ends early: with one line for the user, and an exit status.
#pragma once

#include <stdexcept>
#include <string>

// The job could not be done: status 1. what() says what was tried, on what, and what to do.
class JobFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The command line asks for something that doesn't exist or can't be: status 2.
class UsageFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};
