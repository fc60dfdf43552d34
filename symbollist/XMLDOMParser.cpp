#include "symbollist/XMLDOMParser.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <memory>
#include <string>
#include <system_error>
#include <utility>

#include "platform/Log.h"
#include "platform/xml/XmlText.h"
#include "symbollist/ListFile.h"
#include "symbollist/OwnedLists.h"
#include "symbollist/WriteBack.h"

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

} // namespace

bool CXMLDOMParser::Load(const CString& path) {
  const tq::ReadResult result = tq::ReadContents(path, tq::kXmlSizeLimit, contents_);
  outcome_ = OutcomeOf(result);
  const bool loaded = result == tq::ReadResult::Ok &&
                      document_.Load(contents_.bytes.data(), contents_.bytes.size());
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

void CXMLDOMParser::ReadLists(const CString& path, const Finish& finish, CPtrArray& lists,
                              int& defaultIndex) {
  if (Load(path))
    outcome_ = ReadDocument(finish, lists, defaultIndex);
}

tq::LoadOutcome CXMLDOMParser::ReadDocument(const Finish& finish, CPtrArray& lists,
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
    lists.Add(list.release());
  }
  std::string text;
  contents_.returns = tq::MakeListFileText(lists, std::max(defaultIndex, 0), text) &&
                      tq::ComesBack(contents_.bytes, document_, text);
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
