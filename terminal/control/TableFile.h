// A file of a market directory: UTF-8, one record per line, fields separated by tabs. Blank lines
// and lines that begin with "#" are skipped; the first remaining line names the columns. Lines may
// end in CR LF, and the file may begin with a byte-order mark.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace standin {

class TableFile {
public:
  using Row = std::vector<std::string_view>;

  // `columns` is the required header, names separated by tabs.
  TableFile(std::string name, std::string_view columns);

  // Reads the file and its header. False, with Error(), when it cannot be read or has another
  // header.
  bool Open(const std::string& directory);
  // Whether the file exists.
  bool Exists() const { return exists_; }

  // The fields of the next record, which point into this object. Empty at the end and after an
  // error.
  const Row& Next();

  // Reports an error in the latest record of Next. Always returns false.
  bool Refuse(std::string_view reason);
  // "name:line: reason"; empty without an error.
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

// Parses the whole text as a decimal number within the bounds.
std::optional<int> ParseNumber(std::string_view text, int least, int most);

bool IsUtf8(std::string_view text);

} // namespace standin
