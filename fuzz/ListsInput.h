// Any bytes as a file that tqlists imports: reading ends well, what it gives can be stored, and it
// comes back when it is written in the same format.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tools/tqlists/formats/Charset.h"
#include "tools/tqlists/formats/Format.h"
#include "tools/tqlists/formats/Writer.h"

namespace fuzz {

// Nobody looks on.
class NoStreams : public tqlists::Streams {
public:
  std::size_t Read(char*, std::size_t) override { return 0; }
  tqlists::Written Write(std::string_view) override { return tqlists::Written::Yes; }
  tqlists::Written Flush() override { return tqlists::Written::Yes; }
  void Say(std::string_view) override {}
  bool IsWatched() override { return false; }
};

struct ReadLists {
  std::vector<tqlists::List> lists;
  int shownFirst = -1;
  bool broken = false;
};

inline ReadLists ReadText(tqlists::Format format, std::string_view text) {
  const std::unique_ptr<tqlists::Reader> reader =
      tqlists::MakeReader(format, text, "stem", tq::TextEncoding::Big5);
  NoStreams streams;
  tqlists::NoNotes notes;
  tqlists::Progress progress("", text.size(), streams);
  ReadLists read;
  reader->Read([&](tqlists::List&& list) { read.lists.push_back(std::move(list)); }, notes,
               progress);
  read.shownFirst = reader->DefaultList();
  read.broken = reader->IsBroken();
  return read;
}

inline std::string WriteText(tqlists::Format format, const ReadLists& lists) {
  std::string text;
  const tqlists::Sink sink = [&](std::string_view more) { text += more; };
  std::unique_ptr<tqlists::Writer> writer;
  if (format == tqlists::Format::Text)
    writer = tqlists::MakeTextWriter(sink, tqlists::TextStyle::Full);
  else if (format == tqlists::Format::Csv)
    writer = tqlists::MakeCsvWriter(sink);
  else
    writer = tqlists::MakeJsonWriter(sink);
  writer->Begin(lists.shownFirst);
  for (const tqlists::List& list : lists.lists)
    writer->Add(list);
  writer->End();
  return text;
}

// What every list has to be that goes into a list file.
inline std::string CheckStorable(const ReadLists& read) {
  const int count = static_cast<int>(read.lists.size());
  if (!read.broken && (read.shownFirst < -1 || read.shownFirst >= count))
    return "the list shown first is none of the lists";
  for (const tqlists::List& list : read.lists) {
    for (const std::string* text : {&list.id, &list.name, &list.symbols}) {
      if (!tqlists::IsOneLine(*text))
        return "a control character came through";
      bool bad = false;
      tqlists::DecodeFile("." + *text, tq::TextEncoding::Utf8, [&](std::size_t) { bad = true; });
      if (bad)
        return "a text is no UTF-8";
    }
  }
  return "";
}

inline std::string CheckLists(tqlists::Format format, const unsigned char* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::string text = tqlists::DecodeFile(bytes, tq::TextEncoding::Utf8, [](std::size_t) {});
  const ReadLists read = ReadText(format, text);
  std::string broken = CheckStorable(read);
  if (!broken.empty() || read.broken)
    return broken;
  const ReadLists again = ReadText(format, WriteText(format, read));
  if (again.broken || again.shownFirst != read.shownFirst ||
      again.lists.size() != read.lists.size())
    return "other lists come back from what was written";
  for (std::size_t i = 0; i < read.lists.size(); ++i) {
    const tqlists::List& before = read.lists[i];
    const tqlists::List& after = again.lists[i];
    if (after.id != before.id || after.name != before.name || after.symbols != before.symbols)
      return "a list comes back changed";
  }
  return "";
}

inline std::string CheckListsText(const unsigned char* data, std::size_t size) {
  return CheckLists(tqlists::Format::Text, data, size);
}
inline std::string CheckListsCsv(const unsigned char* data, std::size_t size) {
  return CheckLists(tqlists::Format::Csv, data, size);
}
inline std::string CheckListsJson(const unsigned char* data, std::size_t size) {
  return CheckLists(tqlists::Format::Json, data, size);
}

} // namespace fuzz
