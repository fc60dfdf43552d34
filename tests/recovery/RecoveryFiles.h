// List files for the tests of recovery, as the library writes them, and what comes back of them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Encoding.h"
#include "recovery/ListRecovery.h"

namespace recovery {

struct StoredList {
  std::string id, name, symbols;
  bool operator==(const StoredList&) const = default;
};

// In Big5 and GBK: two names whose characters end with a backslash or a bar, in the trail byte.
inline constexpr char kBig5Name[] = "\xB3\x5C\xA5\x5C\xBB\x5C\xA4\x7C"; // trails 5C and 7C
inline constexpr char kBig5Other[] = "\xA6\xDB\xBF\xEF\xAA\xD1\xA4\x40";
inline constexpr char kGbkName[] = "\x95\x5C\x84\x7C\xC0\x5C\xD7\xD4"; // trails 5C and 7C
inline constexpr char kGbkOther[] = "\xD7\xD4\xD1\xA1\xB9\xC9\xD2\xBB";

inline std::string LineOf(const StoredList& list) {
  return "\t<List ID='" + list.id + "' Name='" + list.name + "' Value='" + list.symbols +
         "' Flag='" + (list.id.starts_with("ZUSYSLIST") ? "1" : "0") + "'/>\n";
}

inline std::string FileOf(const std::vector<StoredList>& lists, const char* encoding,
                          const std::string& index = "0") {
  std::string file = std::string("<?xml version='1.0' encoding='") + encoding + "' ?>\n" +
                     "<Result>\n<SymbolList DefaultIdx='" + index + "'>\n";
  for (const StoredList& list : lists)
    file += LineOf(list);
  return file + "</SymbolList>\n</Result>";
}

struct Outcome {
  std::vector<tq::RecoveredList> lists;
  std::vector<tq::Finding> findings;
  int defaultList = -1;
  tq::TextEncoding encoding = tq::TextEncoding::Utf8;
  bool sound = false;

  bool Has(tq::Fault fault) const {
    for (const tq::Finding& finding : findings) {
      if (finding.fault == fault)
        return true;
    }
    return false;
  }
  // Those that were not lost.
  std::vector<StoredList> Kept() const {
    std::vector<StoredList> kept;
    for (const tq::RecoveredList& list : lists) {
      if (list.fate != tq::ListFate::Lost)
        kept.push_back({list.id, list.name, list.symbols});
    }
    return kept;
  }
};

inline bool HasFault(const tq::RecoveredList& list, tq::Fault fault) {
  for (const tq::Finding& finding : list.findings) {
    if (finding.fault == fault)
      return true;
  }
  return false;
}

inline Outcome Recover(std::string_view file, tq::TextEncoding encoding,
                       tq::TextEncoding assumed = tq::TextEncoding::Big5) {
  tq::ListRecovery recovery(file, {encoding, assumed});
  Outcome outcome;
  tq::RecoveredList list;
  while (recovery.Next(list))
    outcome.lists.push_back(list);
  outcome.findings = recovery.Findings();
  outcome.defaultList = recovery.DefaultList();
  outcome.encoding = recovery.Encoding();
  outcome.sound = recovery.IsSound();
  return outcome;
}

// The ids of a symbol string, headings left out.
inline std::vector<std::string> IdsOf(const std::string& symbols) {
  std::vector<std::string> ids;
  for (std::size_t at = 0; at <= symbols.size();) {
    const std::size_t comma = std::min(symbols.find(',', at), symbols.size());
    const std::string id = symbols.substr(at, comma - at);
    if (!id.empty() && id.find(':', 1) == std::string::npos)
      ids.push_back(id);
    at = comma + 1;
  }
  return ids;
}

// Where each list's line begins, tab included, and ends, line feed included.
struct Line {
  std::size_t begin, end;
};

inline std::vector<Line> LinesOf(const std::string& file) {
  std::vector<Line> lines;
  for (std::size_t at = file.find("\t<List"); at != std::string::npos;
       at = file.find("\t<List", at + 1))
    lines.push_back({at, file.find('\n', at) + 1});
  return lines;
}

inline std::set<std::string> KnownIds(const std::vector<StoredList>& lists) {
  std::set<std::string> known;
  for (const StoredList& list : lists) {
    known.insert(list.id);
    for (const std::string& id : IdsOf(list.symbols))
      known.insert(id);
  }
  return known;
}

// Identifiers of lists that were made anew have the findings for it.
inline bool IsNewId(const tq::RecoveredList& list) {
  return HasFault(list, tq::Fault::NoId) || HasFault(list, tq::Fault::RepeatedId);
}

// The first id of lists and symbols for which `isKnown` is false; empty when there is none.
template <typename IsKnown> std::string FindMadeUp(const Outcome& outcome, IsKnown isKnown) {
  for (const tq::RecoveredList& list : outcome.lists) {
    if (list.fate == tq::ListFate::Lost)
      continue;
    if (!IsNewId(list) && !isKnown(list.id))
      return list.id;
    for (const std::string& id : IdsOf(list.symbols)) {
      if (!isKnown(id))
        return id;
    }
  }
  return "";
}

inline std::string Encoded(std::string_view utf8, tq::TextEncoding encoding) {
  if (encoding == tq::TextEncoding::Utf8)
    return std::string(utf8);
  tq::CharacterEncoder encoder(encoding == tq::TextEncoding::Big5 ? tq::kCodePageBig5
                                                                  : tq::kCodePageGbk);
  std::string text;
  for (const char* at = utf8.data(); at != utf8.data() + utf8.size();) {
    if (static_cast<unsigned char>(*at) < 0x80) {
      text += *at++;
      continue;
    }
    char bytes[2];
    const std::size_t length = encoder.Encode(tq::TakeUtf8Char(at), bytes);
    text.append(bytes, length);
  }
  return text;
}

// A file of each code page with everything that a list file has.
struct Sample {
  std::string file;
  std::vector<StoredList> lists;
  tq::TextEncoding encoding;
};

inline std::vector<Sample> Samples() {
  std::vector<Sample> samples;
  const auto add = [&](std::vector<StoredList> lists, const char* declared,
                       tq::TextEncoding encoding) {
    std::string file = FileOf(lists, declared, "1");
    samples.push_back({std::move(file), std::move(lists), encoding});
  };
  const std::string guid = "0A1B2C3D-4E5F-6a7b-8C9D-0E1F2A3B4C5D";
  const std::string other = "F0E1D2C3-B4A5-9687-7869-5A4B3C2D1E0F";
  add({{"ZUSYSLIST1", kBig5Other, "2330.TW,2317.TW"},
       {guid, kBig5Name, "0050.TW,\xA5\x78\xC6\x57:\xA4\x40,AT&T.NYSE,1101.TW"},
       {other, "", ""},
       {"Z", "plain", "6488.TE"}},
      "big5", tq::TextEncoding::Big5);
  add({{"ZUSYSLIST1", kGbkOther, "600000.SH,000001.SZ"},
       {guid, kGbkName, "600036.SH,\xB7\xD6\xD7\xE9:x,601398.SH"},
       {other, "B2", ""},
       {"Z", kGbkOther, "601988.SH"}},
      "gb2312", tq::TextEncoding::Gbk);
  return samples;
}

} // namespace recovery
