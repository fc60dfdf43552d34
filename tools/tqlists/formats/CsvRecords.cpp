#include "tools/tqlists/formats/CsvRecords.h"

namespace tqlists {

int CsvRecords::read(char* buffer, int size) {
  int filled = 0;
  while (filled < size && at_ < bytes_.size()) {
    const char c = bytes_[at_++];
    const bool within = quotes_.IsWithin(c);
    if (c != '\0')
      buffer[filled++] = within && c == '\n' ? kHiddenBreak : c;
  }
  if (filled < size && !ended_) {
    ended_ = true;
    buffer[filled++] = '\n';
  }
  return filled;
}

std::size_t CsvLines::LineOf(std::size_t record) {
  for (; record_ < record && at_ < bytes_.size(); ++at_) {
    const bool within = quotes_.IsWithin(bytes_[at_]);
    if (bytes_[at_] != '\n')
      continue;
    ++line_;
    if (!within)
      ++record_;
  }
  return line_;
}

} // namespace tqlists
