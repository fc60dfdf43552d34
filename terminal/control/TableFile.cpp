#include "terminal/control/TableFile.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <memory>

namespace standin {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

bool ReadWhole(std::FILE* file, std::string& bytes) {
  constexpr std::size_t kBlock = 1 << 20;
  std::size_t size = 0;
  while (true) {
    bytes.resize(size + kBlock);
    const std::size_t got = std::fread(bytes.data() + size, 1, kBlock, file);
    size += got;
    if (got < kBlock)
      break;
  }
  bytes.resize(size);
  return std::ferror(file) == 0;
}

} // namespace

TableFile::TableFile(std::string name, std::string_view columns)
    : name_(std::move(name)), columns_(columns),
      width_(static_cast<std::size_t>(std::count(columns.begin(), columns.end(), '\t')) + 1) {}

bool TableFile::Open(const std::string& directory) {
  const std::unique_ptr<std::FILE, CloseFile> file(
      std::fopen((directory + "/" + name_).c_str(), "rb"));
  exists_ = file != nullptr;
  if (!file || !ReadWhole(file.get(), bytes_))
    return Refuse("cannot be read");
  rest_ = bytes_;
  if (rest_.substr(0, kByteOrderMark.size()) == kByteOrderMark)
    rest_.remove_prefix(kByteOrderMark.size());
  const std::optional<std::string_view> header = NextLine();
  if (!header)
    return Refuse("no header line");
  if (*header != columns_)
    return Refuse("the header line does not name the columns of this file");
  return true;
}

const TableFile::Row& TableFile::Next() {
  const std::optional<std::string_view> line =
      error_.empty() ? NextLine() : std::optional<std::string_view>();
  if (!line || !Split(*line))
    row_.clear();
  return row_;
}

std::optional<std::string_view> TableFile::NextLine() {
  while (!rest_.empty()) {
    const std::size_t end = rest_.find('\n');
    std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    ++line_;
    if (!line.empty() && line.back() == '\r')
      line.remove_suffix(1);
    if (!line.empty() && line.front() != '#')
      return line;
  }
  return std::nullopt;
}

bool TableFile::Split(std::string_view line) {
  if (line.find('\0') != std::string_view::npos)
    return Refuse("a NUL character");
  if (!IsUtf8(line))
    return Refuse("not UTF-8");
  row_.clear();
  while (true) {
    const std::size_t tab = line.find('\t');
    row_.push_back(line.substr(0, tab));
    if (tab == std::string_view::npos)
      break;
    line.remove_prefix(tab + 1);
  }
  if (row_.size() == width_)
    return true;
  return Refuse(std::to_string(width_) + " fields expected, found " + std::to_string(row_.size()));
}

bool TableFile::Refuse(std::string_view reason) {
  error_ = name_ + (line_ > 0 ? ":" + std::to_string(line_) : "") + ": ";
  error_ += reason;
  return false;
}

std::optional<int> ParseNumber(std::string_view text, int least, int most) {
  int number = 0;
  const char* end = text.data() + text.size();
  const auto [stop, problem] = std::from_chars(text.data(), end, number);
  if (problem != std::errc() || stop != end || number < least || number > most)
    return std::nullopt;
  return number;
}

} // namespace standin
