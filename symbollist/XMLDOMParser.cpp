#include "symbollist/XMLDOMParser.h"

#include <charconv>
#include <cstdint>
#include <memory>
#include <string>
#include <system_error>

#include "platform/FileAccess.h"
#include "platform/XmlText.h"
#include "symbollist/Log.h"
#include "symbollist/TQSymbolListMgr.h"

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

} // namespace

bool CXMLDOMParser::Load(const CString& path) {
  std::string bytes;
  return tq::Files().ReadWholeFile(path, tq::kXmlSizeLimit, bytes) == tq::ReadResult::Ok &&
         document_.Load(bytes.data(), bytes.size());
}

int CXMLDOMParser::GetDefaultIndex(const tq::XmlElement& symbolList) {
  CString text;
  int index = 0;
  if (symbolList.Attribute("DefaultIdx", text) && ReadShort(text, index))
    return index;
  tq::LogLine(tq::kLogChange, "CXMLDOMParser don't find GetDefaultIndex");
  return 0;
}

void CXMLDOMParser::LoadSymbolList(const CString& path) {
  if (!Load(path))
    return;
  const tq::XmlElement symbolList = document_.SelectSingle("/Result/SymbolList");
  if (symbolList.IsNull())
    return;
  // Nothing bounds the index by the number of lists: callers do.
  manager_.SetDefaultIndex(GetDefaultIndex(symbolList));
  const std::vector<tq::XmlElement> elements = document_.Select("/Result/SymbolList/List");
  for (const tq::XmlElement& element : elements) {
    auto list = std::make_unique<CSymbolList>();
    if (list->FillFromElement(element) == 0)
      return;
    manager_.AdoptSymbolList(list.release());
  }
  if (elements.empty())
    manager_.SaveSymbolList();
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
