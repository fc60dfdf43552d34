// Whatever a list holds, it comes back from every format by way of every other.
#include "tests/tools/ToolTest.h"

#include <memory>
#include <ostream>
#include <random>

#include "tools/tqlists/formats/Format.h"
#include "tools/tqlists/formats/Writer.h"
#include "tools/tqlists/lists/ListFileWriter.h"

namespace tqlists {

bool operator==(const List& left, const List& right) {
  return left.id == right.id && left.name == right.name && left.symbols == right.symbols;
}
void PrintTo(const List& list, std::ostream* out) {
  *out << '"' << list.name << "\" [" << list.id << "] " << list.symbols;
}

namespace {

struct SomeLists {
  std::vector<List> lists;
  int shownFirst = -1;
};

constexpr Format kFormats[] = {Format::Lists, Format::Text, Format::Csv, Format::Json};

// Text that some format gives a meaning. In Big5 the characters end in a backslash and a vertical
// bar.
constexpr const char* kPieces[] = {"\"",  "\"\"",    "'",        "&",    "<",  ">",  "#",
                                   "###", "# List:", "# Id: x",  "-",    "=",  "+",  "\\",
                                   "|",   ";",       "[",        "]",    "{",  "}",  "&amp;",
                                   "]]>", "<!--",    " ",        "  ",   "a",  "B",  "2330",
                                   ".TW", "許功蓋",  "四季育樂", "电脑", "龜", "０", "é"};
constexpr const char* kEnds[] = {"", " ", "x", "\\", "#"};

class Texts {
public:
  explicit Texts(unsigned seed) : random_(seed) {}

  std::string Name() { return Text(0, 5); }
  // Not blank, and without a comma. Some are headings of each kind.
  std::string Entry() {
    const std::string text = Text(1, 3) + "k" + kEnds[Below(std::size(kEnds))];
    switch (Below(5)) {
    case 0:
      return text + ":";
    case 1:
      return text + ":" + text;
    default:
      return text;
    }
  }
  std::size_t Below(std::size_t end) { return random_() % end; }

private:
  std::string Text(std::size_t least, std::size_t more) {
    std::string text;
    for (std::size_t left = least + Below(more); left > 0; --left)
      text += kPieces[Below(std::size(kPieces))];
    return text;
  }
  std::mt19937 random_;
};

SomeLists RandomLists(unsigned seed) {
  Texts texts(seed);
  SomeLists lists;
  const std::size_t count = 1 + texts.Below(5);
  for (std::size_t i = 0; i < count; ++i) {
    List list{"id " + std::to_string(i) + "'&\",", texts.Name(), ""};
    for (std::size_t entries = texts.Below(6); entries > 0; --entries)
      AppendEntry(list.symbols, texts.Entry());
    lists.lists.push_back(list);
  }
  lists.shownFirst = static_cast<int>(texts.Below(count));
  return lists;
}

class Collected : public Output {
public:
  std::string bytes;

protected:
  void Send(std::string_view more) override { bytes += more; }
  void Finish() override {}
};

std::string WriteListFile(const SomeLists& lists) {
  Collected output;
  ListFileWriter writer(output, tq::TextEncoding::Utf8);
  writer.Begin(lists.shownFirst);
  for (const List& list : lists.lists)
    writer.Add(list.id, list.name, list.symbols);
  writer.End();
  output.Commit();
  return output.bytes;
}

std::unique_ptr<Writer> WriterOf(Format format, std::string& text) {
  const Sink sink = [&text](std::string_view more) { text += more; };
  if (format == Format::Csv)
    return MakeCsvWriter(sink);
  return format == Format::Json ? MakeJsonWriter(sink) : MakeTextWriter(sink, TextStyle::Full);
}

std::string Write(Format format, const SomeLists& lists) {
  if (format == Format::Lists)
    return WriteListFile(lists);
  std::string text;
  const std::unique_ptr<Writer> writer = WriterOf(format, text);
  writer->Begin(lists.shownFirst);
  for (const List& list : lists.lists)
    writer->Add(list);
  writer->End();
  return text;
}

// A test that reads what it wrote itself expects no notes.
class Refused : public Notes {
public:
  void Add(std::size_t line, std::size_t column, std::string_view reason) override {
    ADD_FAILURE() << line << ":" << column << ": " << reason;
  }
};

SomeLists ReadBack(Format format, const std::string& text) {
  const std::unique_ptr<Reader> reader = MakeReader(format, text, "stem", tq::TextEncoding::Big5);
  TextStreams streams;
  Progress progress("", text.size(), streams);
  Refused notes;
  SomeLists lists;
  reader->Read([&](List&& list) { lists.lists.push_back(std::move(list)); }, notes, progress);
  EXPECT_FALSE(reader->IsBroken());
  lists.shownFirst = reader->DefaultList();
  return lists;
}

TEST(RoundTrip, ListsComeBackFromEachFormatByWayOfEachOther) {
  for (unsigned seed = 0; seed < 60; ++seed) {
    const SomeLists lists = RandomLists(seed);
    for (const Format first : kFormats) {
      for (const Format second : kFormats) {
        SCOPED_TRACE(testing::Message()
                     << "seed " << seed << ", formats " << int(first) << " and " << int(second));
        const SomeLists between = ReadBack(first, Write(first, lists));
        const SomeLists back = ReadBack(second, Write(second, between));
        ASSERT_EQ(back.lists, lists.lists);
        ASSERT_EQ(back.shownFirst, lists.shownFirst);
      }
    }
  }
}

TEST(RoundTrip, AListWithoutEntriesAndOneWithoutANameComeBack) {
  const SomeLists lists{{{"a", "empty", ""}, {"b", "", "2330.TW"}}, 1};
  for (const Format format : kFormats) {
    SCOPED_TRACE(int(format));
    const SomeLists back = ReadBack(format, Write(format, lists));
    EXPECT_EQ(back.lists, lists.lists);
    EXPECT_EQ(back.shownFirst, 1);
  }
}

} // namespace
} // namespace tqlists
