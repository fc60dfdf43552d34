// Lists as plain text: one id a line, headings as "### text".
#include "tools/tqlists/formats/Format.h"
#include "tools/tqlists/formats/TextLines.h"

#include <algorithm>
#include <utility>

namespace tqlists {
namespace {

// What stands behind the name of a line, and behind one blank.
std::string_view Behind(std::string_view line, std::string_view name) {
  line.remove_prefix(name.size());
  if (line.starts_with(' '))
    line.remove_prefix(1);
  return line;
}

class TextReader : public Reader {
public:
  TextReader(std::string_view bytes, std::string stem) : bytes_(bytes), stem_(std::move(stem)) {}
  void Read(const TakeList& take, Notes& notes, Progress& progress) override;

private:
  // One reading of the text.
  struct Reading {
    const TakeList& take;
    Notes& notes;
    std::size_t line = 0;
    List list;
    bool open = false;  // a list has begun
    bool named = false; // with a line of its own
    int lists = 0;      // that were handed on
  };

  void TakeLine(std::string_view line, Reading& reading);
  void TakeMark(std::string_view line, Reading& reading);
  void TakeHeading(std::string_view text, Reading& reading);
  void TakeIds(std::string_view line, Reading& reading);
  void TakeEntry(std::string_view entry, Reading& reading);
  void BeginList(std::string_view name, Reading& reading);
  static void EndList(Reading& reading);

  const std::string_view bytes_;
  const std::string stem_;
};

void TextReader::Read(const TakeList& take, Notes& notes, Progress& progress) {
  default_ = -1;
  Reading reading{take, notes, 0, {}};
  for (std::size_t at = 0; at < bytes_.size();) {
    const std::size_t end = std::min(bytes_.find('\n', at), bytes_.size());
    std::string_view line = bytes_.substr(at, end - at);
    if (line.ends_with('\r'))
      line.remove_suffix(1);
    ++reading.line;
    TakeLine(line, reading);
    at = end + 1;
    progress.At(at);
  }
  EndList(reading);
}

void TextReader::TakeLine(std::string_view line, Reading& reading) {
  if (!IsOneLine(line))
    reading.notes.Add(reading.line, 1, "a control character; a blank stands for it");
  const std::string clean = OneLine(line);
  if (clean.starts_with(kHeadingLine))
    TakeHeading(Behind(clean, kHeadingLine), reading);
  else if (clean.starts_with(kComment))
    TakeMark(clean, reading);
  else if (clean.starts_with(kVerbatim))
    TakeEntry(std::string_view(clean).substr(1), reading);
  else if (!Trimmed(clean).empty())
    TakeIds(clean, reading);
}

void TextReader::TakeHeading(std::string_view text, Reading& reading) {
  if (LosesComma(text))
    reading.notes.Add(reading.line, 1, kBlankForComma);
  TakeEntry(HeadingEntry(text), reading);
}

// One id, or several with commas between. A heading cannot be meant: that is written in another
// way.
void TextReader::TakeIds(std::string_view line, Reading& reading) {
  ForEachEntry(line, [&](std::string_view piece) {
    const std::string_view id = Trimmed(piece);
    if (IsHeading(id))
      reading.notes.Add(reading.line, 1,
                        "the terminal takes an id with \":\" for a heading: " + Shown(id));
    TakeEntry(id, reading);
  });
}

void TextReader::TakeMark(std::string_view line, Reading& reading) {
  if (line.starts_with(kListLine))
    BeginList(Behind(line, kListLine), reading);
  else if (line.starts_with(kIdLine) && reading.named)
    reading.list.id = Behind(line, kIdLine);
  else if (Trimmed(line) == kDefaultLine && reading.named)
    default_ = reading.lists;
}

void TextReader::TakeEntry(std::string_view entry, Reading& reading) {
  if (Trimmed(entry).empty())
    return;
  if (!reading.open)
    reading.list.name = stem_;
  reading.open = true;
  AppendEntry(reading.list.symbols, entry);
}

void TextReader::BeginList(std::string_view name, Reading& reading) {
  EndList(reading);
  reading.open = reading.named = true;
  reading.list.name = name;
}

void TextReader::EndList(Reading& reading) {
  if (!reading.open)
    return;
  reading.take(std::exchange(reading.list, {}));
  reading.open = reading.named = false;
  ++reading.lists;
}

} // namespace

std::unique_ptr<Reader> MakeTextReader(std::string_view bytes, const std::string& stem) {
  return std::make_unique<TextReader>(bytes, stem);
}

} // namespace tqlists
