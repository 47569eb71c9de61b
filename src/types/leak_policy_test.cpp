// The stubber never frees the text it generates (every bufprintf result and the abandoned
// helper lists live to the end of the process), so leak reports of the unit test binary say
// nothing about faults. The sanitizer reads these options when the binary starts; memory
// errors are still reported.
extern "C" const char *__asan_default_options() {
  return "detect_leaks=0";
}
