#include "tools/tqlists/lists/ListFileWriter.h"

#include "tools/tqlists/formats/Charset.h"
#include "tools/tqlists/formats/Entries.h"

namespace tqlists {
namespace {

// What the library loads at most.
constexpr std::size_t kLargestFile = std::size_t{64} << 20;
constexpr std::size_t kMostLists = 999'998;
// Characters that stand in a value as references only. None is the second byte of a character.
constexpr std::string_view kReferenced = "'&<\t\n\r";
constexpr std::string_view kSystemLists = "ZUSYSLIST";

const char* ReferenceTo(char c) {
  switch (c) {
  case '\'':
    return "&apos;";
  case '&':
    return "&amp;";
  case '<':
    return "&lt;";
  case '\t':
    return "&#9;";
  case '\n':
    return "&#10;";
  default:
    return "&#13;";
  }
}

bool IsSystemList(std::string_view id) {
  return id.size() == kSystemLists.size() + 1 && id.starts_with(kSystemLists) && id.back() >= '1' &&
         id.back() <= '6';
}

} // namespace

bool NeedsReferences(std::string_view text) {
  return text.find_first_of(kReferenced) != std::string_view::npos;
}

void ListFileWriter::Put(std::string_view text) {
  output_.Write(text);
  size_ += text.size();
}

void ListFileWriter::PutValue(std::string_view text) {
  for (;;) {
    const std::size_t next = text.find_first_of(kReferenced);
    Put(text.substr(0, next));
    if (next == std::string_view::npos)
      return;
    Put(ReferenceTo(text[next]));
    text.remove_prefix(next + 1);
  }
}

void ListFileWriter::Begin(int defaultList) {
  Put("<?xml version='1.0' encoding='");
  Put(NameOf(encoding_));
  Put("' ?>\n<Result>\n<SymbolList DefaultIdx='");
  Put(std::to_string(defaultList));
  Put("'>\n");
}

void ListFileWriter::Add(std::string_view id, std::string_view name, std::string_view symbols) {
  Put("\t<List ID='");
  PutValue(id);
  Put("' Name='");
  PutValue(name);
  Put("' Value='");
  PutValue(symbols);
  Put(IsSystemList(id) ? "' Flag='1'/>\n" : "' Flag='0'/>\n");
  ++lists_;
}

void ListFileWriter::End() {
  Put("</SymbolList>\n</Result>");
}

bool ListFileWriter::IsLoadable() const {
  return size_ <= kLargestFile && lists_ <= kMostLists;
}

} // namespace tqlists
