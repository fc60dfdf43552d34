// Lists as plain text: one id a line, headings as "### text".
#include "tools/tqlists/formats/TextLines.h"
#include "tools/tqlists/formats/Writer.h"

#include <utility>

namespace tqlists {
namespace {

// Whether a reader takes a line with this entry for the entry.
bool ReadsAsItIs(std::string_view entry) {
  return !IsHeading(entry) && Trimmed(entry) == entry && entry.front() != kComment &&
         entry.front() != kVerbatim;
}

class TextWriter : public Writer {
public:
  TextWriter(Sink sink, TextStyle style) : sink_(std::move(sink)), style_(style) {}
  void Begin(int defaultList) override { default_ = defaultList; }
  void Add(const List& list) override;
  void End() override {}

private:
  void WriteMarks(const List& list);
  void WriteEntry(std::string_view entry);

  const Sink sink_;
  const TextStyle style_;
  int default_ = -1;
  int lists_ = 0;
  std::string line_;
};

void TextWriter::Add(const List& list) {
  if (style_ == TextStyle::Full)
    WriteMarks(list);
  ForEachEntry(list.symbols, [&](std::string_view entry) { WriteEntry(entry); });
  ++lists_;
}

void TextWriter::WriteMarks(const List& list) {
  line_ = lists_ == 0 ? "" : "\n";
  line_ += kListLine;
  line_ += ' ' + OneLine(list.name) + '\n';
  line_ += kIdLine;
  line_ += ' ' + OneLine(list.id) + '\n';
  if (lists_ == default_) {
    line_ += kDefaultLine;
    line_ += '\n';
  }
  sink_(line_);
}

void TextWriter::WriteEntry(std::string_view entry) {
  const std::string clean = OneLine(entry);
  const std::string_view heading = HeadingText(clean);
  line_.clear();
  if (!heading.empty())
    line_.append(kHeadingLine).append(" ").append(heading);
  else if (ReadsAsItIs(clean))
    line_ += clean;
  else
    line_.append(1, kVerbatim).append(clean);
  line_ += '\n';
  sink_(line_);
}

} // namespace

std::unique_ptr<Writer> MakeTextWriter(Sink sink, TextStyle style) {
  return std::make_unique<TextWriter>(std::move(sink), style);
}

} // namespace tqlists
