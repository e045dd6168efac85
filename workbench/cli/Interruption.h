// The user's wish to stop a run that has files in the making.
#pragma once

// While an object of this class lives, Ctrl-C and a polite kill don't end the process: they are
// noted, for the run to end as a failed one does and take its unfinished files with it. A second
// one ends the process at once. One object at a time.
class Interruption {
 public:
  Interruption();
  ~Interruption();
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;

  // Throws JobFailure where the user wishes to stop. Any thread may ask.
  void Check() const;

 private:
  using Handler = void (*)(int);

  Handler oldInterrupt;
  Handler oldTerminate;
};
