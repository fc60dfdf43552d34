// The log: lines go to the standard error output.
#include <TQLog.h>

#include <cstdarg>
#include <cstdio>

TQLog::TQLog() : impl_(nullptr) {}
TQLog::~TQLog() {}

int TQLog::storage(const char*, const char*, const char*, bool, bool) {
  return 1;
}

TQLog& TQLog::operator()(int) {
  return *this;
}

int TQLog::write(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  std::vfprintf(stderr, format, arguments);
  va_end(arguments);
  return std::fputc('\n', stderr) != EOF;
}
