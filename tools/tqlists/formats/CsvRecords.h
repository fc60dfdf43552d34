// The records of a CSV file, for a library that takes a line for a record: line breaks within
// quotes are hidden from it.
#pragma once

#include <cstddef>
#include <string_view>

#define CSV_IO_NO_THREAD
#include <libfccp/csv.h>

namespace tqlists {

// Stands for a line break within quotes. It is in no text of a list.
inline constexpr char kHiddenBreak = '\x1E';

// Tells which line breaks are within quotes.
class QuoteWatch {
public:
  // To be called with each byte in turn.
  bool IsWithin(char c) {
    within_ = within_ != (c == '"');
    return within_;
  }

private:
  bool within_ = false;
};

// Gives the library the bytes, ended by a line break, and without zero bytes, which would end its
// line.
class CsvRecords : public io::ByteSourceBase {
public:
  explicit CsvRecords(std::string_view bytes) : bytes_(bytes) {}
  int read(char* buffer, int size) override;

private:
  const std::string_view bytes_;
  std::size_t at_ = 0;
  QuoteWatch quotes_;
  bool ended_ = false;
};

// The line of the file in which each record begins.
class CsvLines {
public:
  explicit CsvLines(std::string_view bytes) : bytes_(bytes) {}
  // `record` counts from 1, and never falls from call to call.
  std::size_t LineOf(std::size_t record);

private:
  const std::string_view bytes_;
  std::size_t at_ = 0;
  std::size_t record_ = 1;
  std::size_t line_ = 1;
  QuoteWatch quotes_;
};

} // namespace tqlists
