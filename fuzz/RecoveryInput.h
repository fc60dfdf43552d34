// Any bytes as a damaged list file: every list comes back as text of the encoding asked for, no more
// comes back than was there, and what comes back is whole when it is saved and read again. The
// faults of a document are none exactly when the library takes it for one.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/Input.h"
#include "platform/Encoding.h"
#include "platform/xml/XmlDocument.h"
#include "recovery/DocumentFaults.h"
#include "recovery/ListRecovery.h"

namespace fuzz {

inline tq::TextEncoding ProcessText() {
  return tq::AnsiCodePage() == tq::kCodePageBig5 ? tq::TextEncoding::Big5 : tq::TextEncoding::Gbk;
}

inline bool IsValid(const std::string& text, tq::TextEncoding encoding) {
  const char* const end = text.data() + text.size();
  const unsigned codePage =
      encoding == tq::TextEncoding::Big5 ? tq::kCodePageBig5 : tq::kCodePageGbk;
  for (const char* at = text.data(); at != end;) {
    const auto byte = static_cast<unsigned char>(*at);
    std::size_t length = byte >= 0x20 || byte == '\t' || byte == '\n' || byte == '\r' ? 1 : 0;
    if (byte >= 0x80)
      length = encoding == tq::TextEncoding::Utf8 ? tq::Utf8CharLength(at, end)
                                                  : tq::AnsiCharLength(codePage, at, end);
    if (length == 0)
      return false;
    at += length;
  }
  return true;
}

inline std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    const bool special = c == '&' || c == '<' || c == '\'' || c == '\t' || c == '\n' || c == '\r';
    escaped += special ? "&#" + std::to_string(static_cast<int>(c)) + ";" : std::string(1, c);
  }
  return escaped;
}

// What came back, as a list file.
inline std::string SavedText(const std::vector<tq::RecoveredList>& lists,
                             tq::TextEncoding encoding) {
  const char* name = encoding == tq::TextEncoding::Big5 ? "big5" : "gb2312";
  if (encoding == tq::TextEncoding::Utf8)
    name = "utf-8";
  std::string text = std::string("<?xml version='1.0' encoding='") + name +
                     "' ?>\n<Result>\n<SymbolList DefaultIdx='0'>\n";
  for (const tq::RecoveredList& list : lists)
    text += "\t<List ID='" + Escaped(list.id) + "' Name='" + Escaped(list.name) + "' Value='" +
            Escaped(list.symbols) + "' Flag='0'/>\n";
  return text + "</SymbolList>\n</Result>";
}

inline std::string ReadAll(tq::ListRecovery& recovery, tq::TextEncoding encoding,
                           std::vector<tq::RecoveredList>& lists, std::size_t& bytes) {
  tq::RecoveredList list;
  while (recovery.Next(list)) {
    if ((list.fate == tq::ListFate::Whole) != list.findings.empty())
      return "a list is whole and has a finding, or is not and has none";
    if (list.fate == tq::ListFate::Lost)
      continue;
    if (list.id.empty() || !IsValid(list.id, encoding) || !IsValid(list.name, encoding) ||
        !IsValid(list.symbols, encoding))
      return "a list came back that no file can hold";
    bytes += list.name.size() + list.symbols.size();
    lists.push_back(list);
  }
  const int count = static_cast<int>(lists.size());
  return recovery.DefaultList() < count ? "" : "the default list is none that came back";
}

// Text whose encoding is told by its looks may be taken for another one once it stands with other
// text, and then it is said.
inline bool IsJudgedByLooks(const tq::ListRecovery& recovery,
                            const std::vector<tq::RecoveredList>& lists) {
  const auto holds = [](const std::vector<tq::Finding>& findings) {
    for (const tq::Finding& finding : findings) {
      if (finding.fault == tq::Fault::WrongEncoding || finding.fault == tq::Fault::OtherEncoding)
        return true;
    }
    return false;
  };
  for (const tq::RecoveredList& list : lists) {
    if (holds(list.findings))
      return true;
  }
  return holds(recovery.Findings());
}

inline std::string CheckSavedAgain(const std::vector<tq::RecoveredList>& lists,
                                   tq::TextEncoding encoding) {
  const std::string text = SavedText(lists, encoding);
  tq::ListRecovery recovery(text, {encoding, encoding});
  std::vector<tq::RecoveredList> again;
  std::size_t bytes = 0;
  std::string broken = ReadAll(recovery, encoding, again, bytes);
  if (!broken.empty() || IsJudgedByLooks(recovery, again))
    return broken;
  if (!recovery.IsSound() || again.size() != lists.size())
    return "what came back is damaged when it is saved";
  for (std::size_t i = 0; i < lists.size(); ++i) {
    if (again[i].id != lists[i].id || again[i].name != lists[i].name ||
        again[i].symbols != lists[i].symbols)
      return "another list comes back from what came back";
  }
  return "";
}

inline std::string CheckRecoveryIn(std::string_view file, tq::TextEncoding encoding) {
  tq::ListRecovery recovery(file, {encoding, ProcessText()});
  std::vector<tq::RecoveredList> lists;
  std::size_t bytes = 0;
  const std::string broken = ReadAll(recovery, encoding, lists, bytes);
  if (!broken.empty())
    return broken;
  if (bytes > 2 * file.size())
    return "more text came back than was there";
  return CheckSavedAgain(lists, encoding);
}

inline std::string CheckRecovery(const unsigned char* data, std::size_t size) {
  const std::string_view file = Begin(data, size);
  tq::XmlDocument document;
  if (document.Load(file.data(), file.size()) != tq::DocumentFaults(file, 3).empty())
    return "the faults of a document and its loading contradict each other";
  for (const tq::TextEncoding encoding : {ProcessText(), tq::TextEncoding::Utf8}) {
    std::string broken = CheckRecoveryIn(file, encoding);
    if (!broken.empty())
      return broken;
  }
  return EndOfServices();
}

} // namespace fuzz
