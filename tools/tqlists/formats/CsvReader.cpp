// Lists as CSV: a record for each entry, one for a list without any.
#include "tools/tqlists/formats/CsvColumns.h"
#include "tools/tqlists/formats/CsvRecords.h"
#include "tools/tqlists/formats/Format.h"

#include <unordered_map>
#include <utility>
#include <vector>

namespace tqlists {
namespace {

using Library = io::CSVReader<5, io::trim_chars<>, io::double_quote_escape<',', '"'>,
                              io::throw_on_overflow, io::empty_line_comment>;

struct Record {
  std::string id, name, isDefault, symbol, heading;
};

class CsvReader : public Reader {
public:
  CsvReader(std::string_view bytes, std::string stem) : bytes_(bytes), stem_(std::move(stem)) {}
  void Read(const TakeList& take, Notes& notes, Progress& progress) override;

private:
  // One reading of the file.
  struct Reading {
    Library library;
    CsvLines lines;
    Notes& notes;
    std::vector<List> lists;
    std::unordered_map<std::string, std::size_t> places; // by identifier and name
  };

  void ReadHeader(Reading& reading);
  bool ReadRecord(Reading& reading, Record& record);
  void TakeRecord(const Record& record, Reading& reading);
  List& ListOf(const Record& record, Reading& reading);
  static void Note(Reading& reading, const std::string& reason) {
    reading.notes.Add(reading.lines.LineOf(reading.library.get_file_line()), 1, reason);
  }

  const std::string_view bytes_;
  const std::string stem_;
};

// Rows of one list need not be together: a spreadsheet sorts them. So lists are handed on at the
// end.
void CsvReader::Read(const TakeList& take, Notes& notes, Progress& progress) {
  default_ = -1;
  broken_ = false;
  Reading reading{
      Library("", std::make_unique<CsvRecords>(bytes_)), CsvLines(bytes_), notes, {}, {}};
  try {
    ReadHeader(reading);
    Record record;
    while (!broken_ && ReadRecord(reading, record))
      TakeRecord(record, reading);
  } catch (const io::error::base&) {
    Note(reading, "no CSV: quotes that are not closed, a column named twice, or too long a record");
    broken_ = true;
  }
  progress.At(bytes_.size());
  for (List& list : reading.lists)
    take(std::move(list));
}

void CsvReader::ReadHeader(Reading& reading) {
  reading.library.read_header(io::ignore_extra_column | io::ignore_missing_column, kColumnId,
                              kColumnName, kColumnDefault, kColumnSymbol, kColumnHeading);
  if (reading.library.has_column(kColumnSymbol))
    return;
  Note(reading, "no column is called symbol");
  broken_ = true;
}

// A record with another number of columns than the first is left out.
bool CsvReader::ReadRecord(Reading& reading, Record& record) {
  for (;;) {
    record = {};
    try {
      return reading.library.read_row(record.id, record.name, record.isDefault, record.symbol,
                                      record.heading);
    } catch (const io::error::too_few_columns&) {
      Note(reading, "too few columns; the record is left out");
    } catch (const io::error::too_many_columns&) {
      Note(reading, "too many columns; the record is left out");
    }
  }
}

void CsvReader::TakeRecord(const Record& record, Reading& reading) {
  for (const std::string* text : {&record.id, &record.name, &record.symbol, &record.heading}) {
    if (!IsOneLine(*text))
      Note(reading, kBlankForControl);
  }
  if (LosesComma(record.heading))
    Note(reading, kBlankForComma);
  List& list = ListOf(record, reading);
  if (record.isDefault == kYes)
    default_ = static_cast<int>(&list - reading.lists.data());
  AppendEntry(list.symbols, OneLine(record.symbol));
  AppendEntry(list.symbols, HeadingEntry(OneLine(record.heading)));
}

List& CsvReader::ListOf(const Record& record, Reading& reading) {
  const bool unnamed = record.id.empty() && record.name.empty();
  const List list{OneLine(record.id), unnamed ? stem_ : OneLine(record.name), {}};
  const auto [place, isNew] =
      reading.places.try_emplace(list.id + '\n' + list.name, reading.lists.size());
  if (isNew)
    reading.lists.push_back(list);
  return reading.lists[place->second];
}

} // namespace

std::unique_ptr<Reader> MakeCsvReader(std::string_view bytes, const std::string& stem) {
  return std::make_unique<CsvReader>(bytes, stem);
}

} // namespace tqlists
