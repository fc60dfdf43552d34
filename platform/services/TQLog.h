// TQLog: the terminal's logging library. One logger writes one file of a directory.
//
// A line is written as logger(level).write(format, ...). A logger belongs to the thread that made
// it. Nothing throws. The object is one pointer, made by whoever calls: its size is part of the
// binary interface and does not change.
#pragma once

#include "platform/Compiler.h"

class TQ_SERVICE_API TQLog {
public:
  TQLog();
  // Closes the file. On Windows it may be called while the system's loader is at work, when the
  // terminal frees the library that made the logger: it must neither load or free a library nor
  // wait for another thread. A logger that lives when the process ends is not destroyed there; the
  // logging library then brings its lines to the file when it ends itself.
  ~TQLog();
  TQLog(const TQLog&) = delete;
  TQLog& operator=(const TQLog&) = delete;

  // Opens the log for appending and closes the one that was open: `directory` in the process's ANSI
  // code page, joined by backslashes without one at the end, its last level created when missing;
  // `base` is the file's name without extension; `prefix` opens every line. With `daily` the file
  // is "<base>_<yyyymmdd>.log", of the day on which it was opened, else "<base>.log". With `flush`
  // each line is on its way to the disk when its write returns. Returns non-zero on success.
  // Without a success every write is dropped. Fails for a null text and where no file can be
  // opened.
  int storage(const char* directory, const char* base, const char* prefix, bool daily, bool flush);

  // Sets the level that the next lines carry (64 changes of lists, 256 start and stop ...).
  TQLog& operator()(int level);

  // One line, printf-style; the line feed is the logger's. User text is an argument, never the
  // format. Lines have any length. Returns non-zero when the line was written, 0 without an open
  // file or for a null format.
  int write(const char* format, ...) TQ_PRINTF_MEMBER;

private:
  void* impl_; // the logging library's own
};

static_assert(sizeof(TQLog) == sizeof(void*));
