// One file of a market directory: UTF-8, a line for each record, fields separated by tabs. Blank
// lines and lines that begin with "#" are passed over; the first line that is left names the
// columns. Lines may end in CR LF, and the file may begin with a byte-order mark.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace standin {

class TableFile {
public:
  using Row = std::vector<std::string_view>;

  // `columns` is the header as it has to stand in the file, names separated by tabs.
  TableFile(std::string name, std::string_view columns);

  // Reads the file and its header. False, with Error(), when it cannot be read or has another
  // header.
  bool Open(const std::string& directory);
  // Whether the file was there at all.
  bool Exists() const { return exists_; }

  // The fields of the next record, which point into this object. Empty at the end and after an
  // error.
  const Row& Next();

  // Reports what is wrong with the record of the latest Next: always false.
  bool Refuse(std::string_view reason);
  // "name:line: reason", empty while all is well.
  const std::string& Error() const { return error_; }

private:
  std::optional<std::string_view> NextLine();
  bool Split(std::string_view line);

  std::string name_;
  std::string_view columns_;
  std::size_t width_;
  std::string bytes_;
  std::string_view rest_;
  bool exists_ = false;
  int line_ = 0;
  Row row_;
  std::string error_;
};

// A whole text that is one decimal number within the bounds.
std::optional<int> ParseNumber(std::string_view text, int least, int most);

bool IsUtf8(std::string_view text);

} // namespace standin
