// Lists as CSV: a record for each entry, one for a list without any.
#include "tools/tqlists/formats/CsvColumns.h"
#include "tools/tqlists/formats/Writer.h"

#include <iomanip>
#include <sstream>
#include <utility>

namespace tqlists {
namespace {

// As RFC 4180 wants them: quotes within are doubled.
auto Quoted(std::string_view text) {
  return std::quoted(text, '"', '"');
}

class CsvWriter : public Writer {
public:
  explicit CsvWriter(Sink sink) : sink_(std::move(sink)) {}
  void Begin(int defaultList) override;
  void Add(const List& list) override;
  void End() override {}

private:
  void WriteRecord(const std::string& list, std::size_t position, std::string_view entry);

  const Sink sink_;
  int default_ = -1;
  int lists_ = 0;
  std::ostringstream record_;
};

void CsvWriter::Begin(int defaultList) {
  default_ = defaultList;
  record_ << kColumnId << ',' << kColumnName << ',' << kColumnDefault << ',' << kColumnPosition
          << ',' << kColumnSymbol << ',' << kColumnHeading << "\r\n";
  sink_(record_.view());
}

void CsvWriter::Add(const List& list) {
  record_.str({});
  record_ << Quoted(list.id) << ',' << Quoted(list.name) << ',' << (lists_ == default_ ? kYes : "")
          << ',';
  const std::string front = record_.str();
  std::size_t position = 0;
  ForEachEntry(list.symbols,
               [&](std::string_view entry) { WriteRecord(front, ++position, entry); });
  if (position == 0)
    sink_(front + ",,\r\n");
  ++lists_;
}

void CsvWriter::WriteRecord(const std::string& list, std::size_t position, std::string_view entry) {
  const std::string_view heading = HeadingText(entry);
  record_.str({});
  record_ << list << position << ',';
  if (heading.empty())
    record_ << Quoted(entry) << ",\r\n";
  else
    record_ << ',' << Quoted(heading) << "\r\n";
  sink_(record_.view());
}

} // namespace

std::unique_ptr<Writer> MakeCsvWriter(Sink sink) {
  return std::make_unique<CsvWriter>(std::move(sink));
}

} // namespace tqlists
