// A library that loads and has no entry point.
extern "C" __attribute__((visibility("default"))) int AnswerNothing() {
  return 0;
}
