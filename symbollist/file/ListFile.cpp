#include "symbollist/file/ListFile.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <memory>
#include <new>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/Log.h"
#include "platform/services/tqCommon.h"
#include "platform/xml/XmlText.h"

namespace {

// A whole 16-bit signed decimal number, with blanks around it and a sign allowed.
bool ReadShort(CString text, int& value) {
  text.Trim();
  const char* begin = text.GetString();
  const char* end = begin + text.GetLength();
  if (begin != end && *begin == '+')
    ++begin;
  std::int16_t number = 0;
  const auto [stop, error] = std::from_chars(begin, end, number);
  if (error != std::errc() || stop != end || begin == end)
    return false;
  value = number;
  return true;
}

// As long as the bytes have not become a document.
tq::LoadOutcome OutcomeOf(tq::ReadResult result) {
  switch (result) {
  case tq::ReadResult::Missing:
    return tq::LoadOutcome::Missing;
  case tq::ReadResult::TooLarge:
    return tq::LoadOutcome::TooLarge;
  case tq::ReadResult::Failed:
    return tq::LoadOutcome::Unreadable;
  case tq::ReadResult::Ok:
    break;
  }
  return tq::LoadOutcome::Damaged;
}

constexpr const char* kStored[] = {"ID", "Name", "Value"};
constexpr char kLost = '?'; // what a character comes out as that the code page lacks

// An attribute that is absent is written empty.
bool SameList(const tq::XmlElement& one, const tq::XmlElement& other, bool mayLose) {
  for (const char* name : kStored) {
    CString value;
    CString again;
    one.Attribute(name, value);
    other.Attribute(name, again);
    if (value != again || (mayLose && value.Find(kLost) >= 0))
      return false;
  }
  return true;
}

// Whether `text`, what a save would write of the list file `bytes`, gives the same lists when it is
// read: identifiers, names and symbol strings. It does not when a value holds what stands in a file
// only as a reference (an ampersand, an apostrophe, "<"), is cut, or has characters that the
// process's code page lacks. `document` is what the DOM made of `bytes`.
bool ComesBack(const std::string& bytes, const tq::XmlDocument& document, const std::string& text) {
  // The usual case: the file is one of ours.
  if (bytes == text)
    return true;
  tq::XmlDocument again;
  if (!again.Load(text.data(), text.size()))
    return false;
  const std::vector<tq::XmlElement> lists = document.Select("/Result/SymbolList/List");
  const std::vector<tq::XmlElement> listsAgain = again.Select("/Result/SymbolList/List");
  if (lists.size() != listsAgain.size())
    return false;
  const bool mayLose = !document.KeepsBytes() || bytes.find("&#") != std::string::npos;
  for (std::size_t i = 0; i < lists.size(); ++i) {
    if (!SameList(lists[i], listsAgain[i], mayLose))
      return false;
  }
  return true;
}

} // namespace

namespace tq {

const char* DeclarationOf(bool traditionalChinese) {
  return traditionalChinese ? "<?xml version='1.0' encoding='big5' ?>\n"
                            : "<?xml version='1.0' encoding='gb2312' ?>\n";
}

const char* FileDeclaration() {
  return DeclarationOf(IsTraditionChinese() != 0);
}

size_t ListFileLength(const ListVector& lists) {
  constexpr size_t kFrame = 160; // declaration, root, default index and tail
  size_t length = kFrame;
  for (const auto& list : lists)
    length += 1 + list->XmlLength();
  return length;
}

std::string ListFileText(const ListVector& lists, int defaultIndex) {
  std::string text;
  text.reserve(ListFileLength(lists));
  text += FileDeclaration();
  text += "<Result>\n<SymbolList DefaultIdx='";
  text += std::to_string(defaultIndex);
  text += "'>\n";
  if (defaultIndex >= 0) {
    for (const auto& list : lists) {
      text += '\t';
      list->AppendXml(text);
    }
  }
  text += "</SymbolList>\n</Result>";
  return text;
}

TextResult MakeListFileText(const ListVector& lists, int defaultIndex, std::string& text) {
  constexpr int kFrameElements = 2;
  if (lists.size() > size_t{kXmlPieceLimit - kFrameElements})
    return TextResult::TooMuch;
  try {
    text = ListFileText(lists, defaultIndex);
  } catch (const std::bad_alloc&) {
    return TextResult::NoMemory;
  }
  return text.size() <= kXmlSizeLimit ? TextResult::Made : TextResult::TooMuch;
}

bool HoldsSameLists(const std::string& file, const std::string& text) {
  if (file == text)
    return true;
  XmlDocument stored;
  XmlDocument wanted;
  CString index;
  CString wantedIndex;
  if (!stored.Load(file.data(), file.size()) || !wanted.Load(text.data(), text.size()))
    return false;
  stored.SelectSingle("/Result/SymbolList").Attribute("DefaultIdx", index);
  wanted.SelectSingle("/Result/SymbolList").Attribute("DefaultIdx", wantedIndex);
  return index == wantedIndex && ComesBack(file, stored, text);
}

} // namespace tq

bool CXMLDOMParser::Load(tq::ReadResult read, tq::FileContents contents) {
  contents_ = std::move(contents);
  outcome_ = OutcomeOf(read);
  const bool loaded =
      read == tq::ReadResult::Ok && document_.Load(contents_.bytes.data(), contents_.bytes.size());
  if (loaded)
    outcome_ = tq::LoadOutcome::Whole;
  else if (document_.SystemFailed())
    outcome_ = tq::LoadOutcome::Unreadable;
  return loaded;
}

int CXMLDOMParser::GetDefaultIndex(const tq::XmlElement& symbolList) {
  CString text;
  int index = 0;
  if (symbolList.Attribute("DefaultIdx", text) && ReadShort(text, index))
    return index;
  tq::LogLine(tq::kLogChange, "CXMLDOMParser don't find GetDefaultIndex");
  return 0;
}

void CXMLDOMParser::ReadLists(tq::ReadResult read, tq::FileContents contents, const Finish& finish,
                              tq::ListVector& lists, int& defaultIndex) {
  if (Load(read, std::move(contents)))
    outcome_ = ReadDocument(finish, lists, defaultIndex);
}

tq::LoadOutcome CXMLDOMParser::ReadDocument(const Finish& finish, tq::ListVector& lists,
                                            int& defaultIndex) {
  const tq::XmlElement symbolList = document_.SelectSingle("/Result/SymbolList");
  if (symbolList.IsNull())
    return tq::LoadOutcome::NoListFile;
  // Nothing bounds the index by the number of lists: callers do.
  defaultIndex = GetDefaultIndex(symbolList);
  const std::vector<tq::XmlElement> elements = document_.Select("/Result/SymbolList/List");
  for (const tq::XmlElement& element : elements) {
    auto list = std::make_unique<CSymbolList>();
    if (list->FillFromElement(element) == 0)
      return tq::LoadOutcome::EndedEarly;
    finish(*list);
    lists.push_back(std::move(list));
  }
  std::string text;
  contents_.returns =
      tq::MakeListFileText(lists, std::max(defaultIndex, 0), text) == tq::TextResult::Made &&
      ComesBack(contents_.bytes, document_, text);
  return elements.empty() ? tq::LoadOutcome::Empty : tq::LoadOutcome::Whole;
}

CString CXMLDOMParser::FormatStatus(int status, const char* body) {
  CString text;
  text.Format("<Result Status='%d'>%s</Result>", status, body);
  return text;
}

CString CXMLDOMParser::FormatStatus(int status, const char* reason, const char* body) {
  CString text;
  text.Format("<Result Status='%d' Reason='%s'>%s</Result>", status, reason, body);
  return text;
}
