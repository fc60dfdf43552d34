// A list file that is written over another one in place, by a copy that was broken off or did not
// shorten it: the lists of both that are still whole come back, whatever either file is like.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "tests/recovery/RecoveryFiles.h"

namespace {

using recovery::Line;
using recovery::Outcome;
using recovery::StoredList;
using tq::TextEncoding;

struct WrittenFile {
  const char* what;
  std::string bytes;
  std::vector<StoredList> lists; // as they come back, in UTF-8
};

WrittenFile Made(const char* what, std::vector<StoredList> lists, TextEncoding encoding,
                 bool carriageReturns = false) {
  std::vector<StoredList> stored;
  for (const StoredList& list : lists)
    stored.push_back({list.id, recovery::Encoded(list.name, encoding),
                      recovery::Encoded(list.symbols, encoding)});
  const char* const declared = encoding == TextEncoding::Utf8   ? "utf-8"
                               : encoding == TextEncoding::Big5 ? "big5"
                                                                : "gb2312";
  std::string bytes = recovery::FileOf(stored, declared);
  for (std::size_t at = bytes.find('\n'); carriageReturns && at != std::string::npos;
       at = bytes.find('\n', at + 2))
    bytes.insert(at, 1, '\r');
  return {what, std::move(bytes), std::move(lists)};
}

std::vector<StoredList> Many(const std::string& prefix, const char* name, int count) {
  std::vector<StoredList> lists;
  for (int i = 0; i < count; ++i) {
    const std::string number = std::to_string(i);
    lists.push_back({prefix + number, name + number, "3" + number + "1.TW,4" + number + "2.TE"});
  }
  return lists;
}

// Names and headings that are sure to be in their encoding.
std::vector<WrittenFile> WrittenFiles() {
  const std::vector<StoredList> groups = {
      {"ZUSYSLIST1", "自選股一", "2330.TW,2317.TW"},
      {"A-groups", "許功蓋四", "0050.TW,權值電子股:,2454.TW,2308.TW,許功蓋:x,1101.TW"},
      {"A-plain", "plain", "6488.TE"}};
  std::vector<StoredList> edited = groups;
  edited[0].symbols += ",2412.TW";
  edited[2].name = "renamed";
  return {
      Made("Big5 with groups", groups, TextEncoding::Big5),
      Made("the same, edited", edited, TextEncoding::Big5),
      Made("GB2312",
           {{"B-1", "我的股票池", "600000.SH,银行与证券:,600036.SH"}, {"B-2", "自选股一", ""}},
           TextEncoding::Gbk),
      Made("UTF-8",
           {{"C-1", "許功蓋与证券", "AAPL.NASD,台灣電子:,DIS.NYSE"}, {"C-2", "", "IBM.NYSE"}},
           TextEncoding::Utf8),
      Made("Big5 with CRLF",
           {{"D-1", "許功蓋電子", "5347.TE,6488.TE"}, {"D-2", "許功蓋電子股", "8299.TE"}},
           TextEncoding::Big5, true),
      Made("UTF-8 with CRLF", {{"E-1", "我的股票池", "TXFL6.TF"}, {"E-2", "two", "MXFL6.TF"}},
           TextEncoding::Utf8, true),
      Made("no list", {}, TextEncoding::Big5),
      Made("one list", {{"F", "f", "1.TW"}}, TextEncoding::Gbk),
      Made("many lists", Many("G-", "許功蓋電子", 40), TextEncoding::Big5),
  };
}

// How far the write of a file came: evenly, and to the end of each of its lists.
std::vector<std::size_t> CutsOf(const WrittenFile& file) {
  constexpr std::size_t parts = 31;
  std::vector<std::size_t> cuts;
  for (std::size_t part = 0; part <= parts; ++part)
    cuts.push_back(file.bytes.size() * part / parts);
  for (const Line& line : recovery::LinesOf(file.bytes))
    cuts.push_back(line.end);
  return cuts;
}

std::string Overwritten(const WrittenFile& newer, const WrittenFile& older, std::size_t cut) {
  std::string bytes = newer.bytes.substr(0, cut);
  if (cut < older.bytes.size())
    bytes += older.bytes.substr(cut);
  return bytes;
}

// The one of a taken identifier has got a new one.
bool IsThere(const Outcome& outcome, const StoredList& wanted) {
  return std::any_of(outcome.lists.begin(), outcome.lists.end(), [&](const auto& list) {
    const bool sameId = list.id == wanted.id || recovery::HasFault(list, tq::Fault::RepeatedId);
    return list.fate != tq::ListFate::Lost && sameId && list.name == wanted.name &&
           list.symbols == wanted.symbols;
  });
}

// Where the bytes of the two files meet, two halves may make an id that looks like any other, and
// so may the half of one that begins or ends there: an apostrophe stays in an id, markup never
// does.
bool IsSpliced(const std::string& bytes, std::size_t cut, const std::string& id) {
  if (id.find("='") != std::string::npos || id.find_first_of("\t\r\n<>") != std::string::npos)
    return false;
  for (const TextEncoding encoding : {TextEncoding::Utf8, TextEncoding::Big5, TextEncoding::Gbk}) {
    const std::string stored = recovery::Encoded(id, encoding);
    for (std::size_t at = bytes.find(stored); at <= cut; at = bytes.find(stored, at + 1)) {
      if (cut <= at + stored.size())
        return true;
    }
  }
  return false;
}

void ExpectListsOfBoth(const WrittenFile& newer, const WrittenFile& older, std::size_t cut) {
  const std::string bytes = Overwritten(newer, older, cut);
  const Outcome outcome = recovery::Recover(bytes, TextEncoding::Utf8);
  const std::vector<Line> written = recovery::LinesOf(newer.bytes);
  for (std::size_t i = 0; i < written.size(); ++i)
    EXPECT_TRUE(written[i].end > cut || IsThere(outcome, newer.lists[i])) << "newer list " << i;
  const std::vector<Line> left = recovery::LinesOf(older.bytes);
  for (std::size_t i = 0; i < left.size(); ++i)
    EXPECT_TRUE(left[i].begin < cut || IsThere(outcome, older.lists[i])) << "older list " << i;
  std::vector<StoredList> all = newer.lists;
  all.insert(all.end(), older.lists.begin(), older.lists.end());
  const std::set<std::string> known = recovery::KnownIds(all);
  const std::string madeUp = recovery::FindMadeUp(outcome, [&](const std::string& id) {
    return known.count(id) != 0 || IsSpliced(bytes, cut, id);
  });
  EXPECT_EQ(madeUp, "");
}

class Overwriting : public testing::TestWithParam<std::size_t> {};

TEST_P(Overwriting, LeavesTheListsOfBothThatAreWhole) {
  const std::vector<WrittenFile> files = WrittenFiles();
  const WrittenFile& newer = files.at(GetParam());
  for (const WrittenFile& older : files) {
    for (const std::size_t cut : CutsOf(newer)) {
      SCOPED_TRACE(testing::Message()
                   << newer.what << " over " << older.what << ", " << cut << " bytes");
      ExpectListsOfBoth(newer, older, cut);
      ASSERT_FALSE(HasFailure()) << Overwritten(newer, older, cut);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Each, Overwriting, testing::Range<std::size_t>(0, 9));

} // namespace
