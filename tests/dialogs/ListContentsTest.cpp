// What a content editor does to a list: its rows, and the unknown ids between them.
#include "dialogs/ListContents.h"

#include <random>

#include "idlist/RecordIndex.h"
#include "platform/Text.h"
#include "platform/services/VLProxy.h"
#include "platform/services/tqCommon.h"
#include "symbollist/SymbolList.h"
#include "terminal/StandIn.h"
#include "tests/support/StandInTest.h"

namespace {

class ListContentsTest : public StandInTest {
protected:
  static tq::ListContents Of(const char* ids) {
    CSymbolList list;
    list.Update1(ids);
    return tq::ListContents(list);
  }
  // The records of symbols, as the service has them.
  static std::vector<SymbolInfo> Records(const char* ids) {
    SymbolInfo* found = nullptr;
    int count = 0;
    EXPECT_NE(VLGetSymbolInfos(ids, &found, &count), 0);
    std::vector<SymbolInfo> records(found, found + count);
    VLFree(found);
    return records;
  }
  static std::string Rows(const tq::ListContents& contents) {
    std::string rows;
    for (int row = 0; row < contents.RowCount(); ++row)
      rows += (row > 0 ? "|" : "") + standin::FromAnsi(contents.RowText(row).GetString());
    return rows;
  }
  static std::string Ids(const tq::ListContents& contents) {
    return std::string(tq::ViewOf(contents.Ids()));
  }
};

TEST_F(ListContentsTest, RowsAreSymbolsWithTheirNamesAndHeadings) {
  const tq::ListContents contents = Of("1101.TW,Chips:,GONE.TW,6488.TE");
  const std::string name = IsTraditionChinese() != 0 ? "環球晶" : "环球晶";
  EXPECT_EQ(Rows(contents), "1101.TW 台泥|Chips|6488.TE " + name);
  EXPECT_FALSE(contents.IsHeading(0));
  EXPECT_TRUE(contents.IsHeading(1));
  EXPECT_STREQ(contents.TextAt(1), "Chips:");
  EXPECT_STREQ(contents.TextAt(2), "6488.TE");
}

TEST_F(ListContentsTest, AnUntouchedListKeepsItsString) {
  for (const char* const ids : {"", ",,", " 2330.tw ,,GONE.TW, :x,A:b:,", "2330.TW,2330.TW", ":"}) {
    tq::ListContents contents = Of(ids);
    EXPECT_EQ(Ids(contents), ids);
    EXPECT_EQ(contents.Insert(0, {}), 0);
    contents.Remove({});
    EXPECT_FALSE(contents.Move({}, true));
    EXPECT_EQ(Ids(contents), ids);
  }
}

TEST_F(ListContentsTest, UnknownIdsStayWhereTheyAreAndAsTheyAreWritten) {
  tq::ListContents contents = Of("gone.tw,1101.TW,x y,2317.TW,last.TW");
  contents.Insert(1, Records("2330.TW"));
  EXPECT_EQ(Ids(contents), "gone.tw,1101.TW,x y,2330.TW,2317.TW,last.TW");
  contents.Insert(contents.RowCount(), Records("2454.TW"));
  EXPECT_EQ(Ids(contents), "gone.tw,1101.TW,x y,2330.TW,2317.TW,last.TW,2454.TW");
  EXPECT_TRUE(contents.Move(std::vector{0}, false));
  EXPECT_EQ(Ids(contents), "gone.tw,2330.TW,x y,1101.TW,2317.TW,last.TW,2454.TW");
  contents.Remove(std::vector{0, 1, 2, 3});
  EXPECT_EQ(Ids(contents), "gone.tw,x y,last.TW");
  EXPECT_EQ(contents.RowCount(), 0);
}

TEST_F(ListContentsTest, NoSymbolIsAddedTwice) {
  tq::ListContents contents = Of("2330.tw,7777.TX");
  EXPECT_EQ(contents.Insert(0, Records("2330.TW")), 0);
  EXPECT_EQ(contents.Insert(0, Records("1101.TW,2330.TW,1101.TW")), 1);
  EXPECT_EQ(Ids(contents), "1101.TW,2330.TW,7777.TX");
  EXPECT_TRUE(contents.Holds("7777.tx"));
  EXPECT_TRUE(contents.Holds("1101.TW"));
  contents.Remove(std::vector{0});
  EXPECT_FALSE(contents.Holds("1101.TW"));
  EXPECT_EQ(contents.Insert(9, Records("1101.TW")), 1);
  EXPECT_EQ(Ids(contents), "2330.TW,7777.TX,1101.TW");
}

TEST_F(ListContentsTest, ASymbolThatTheFileHadTwiceIsHeldUntilBothAreGone) {
  tq::ListContents contents = Of("2330.TW,1101.TW,2330.TW");
  contents.Remove(std::vector{2});
  EXPECT_TRUE(contents.Holds("2330.TW"));
  contents.Remove(std::vector{0});
  EXPECT_FALSE(contents.Holds("2330.TW"));
}

TEST_F(ListContentsTest, ARecordThatNamesNoSymbolIsNotAdded) {
  std::vector<SymbolInfo> records = Records("2330.TW,1101.TW,2317.TW");
  std::strcpy(records[0].id, "");
  std::strcpy(records[1].id, "a,b");
  std::strcpy(records[2].id, "A:");
  tq::ListContents contents = Of("");
  EXPECT_EQ(contents.Insert(0, records), 0);
}

TEST_F(ListContentsTest, HeadingsMayRepeatAndChange) {
  tq::ListContents contents = Of("A:,2330.TW");
  contents.InsertHeading(2, tq::HeadingEntry("A"));
  contents.SetHeading(0, tq::HeadingEntry(" B C"));
  EXPECT_EQ(Ids(contents), " B C:,2330.TW,A:");
  EXPECT_EQ(Rows(contents).substr(0, 5), " B C|");
}

TEST_F(ListContentsTest, AHeadingIsOneTokenThatTheFileCanHold) {
  EXPECT_STREQ(tq::HeadingEntry("Chips"), "Chips:");
  for (const char* const text : {"", " ", "a,b", "\x81", "a\x01"})
    EXPECT_STREQ(tq::HeadingEntry(text), "") << text;
}

TEST_F(ListContentsTest, RowsMoveTogetherOrNotAtAll) {
  tq::ListContents contents = Of("A:,B:,C:,D:,E:");
  EXPECT_TRUE(contents.Move(std::vector{1, 2, 4}, true));
  EXPECT_EQ(Ids(contents), "B:,C:,A:,E:,D:");
  EXPECT_FALSE(contents.Move(std::vector{0, 3}, true));
  EXPECT_TRUE(contents.Move(std::vector{0, 1, 3}, false));
  EXPECT_EQ(Ids(contents), "A:,B:,C:,D:,E:");
  EXPECT_FALSE(contents.Move(std::vector{3, 4}, false));
  EXPECT_EQ(Ids(contents), "A:,B:,C:,D:,E:");
}

TEST_F(ListContentsTest, SymbolsAreSortedUnderTheirHeadings) {
  tq::ListContents contents = Of("2454.TW,gone.TW,1101.TW,B:,6488.TE,2330.TW,A:");
  contents.Sort();
  EXPECT_EQ(Ids(contents), "1101.TW,gone.TW,2454.TW,B:,2330.TW,6488.TE,A:");
  tq::ListContents sorted = Of("1101.tw,,2454.TW");
  sorted.Sort();
  EXPECT_EQ(Ids(sorted), "1101.tw,,2454.TW");
}

TEST_F(ListContentsTest, RowsOfSeveralSymbolsAreFound) {
  const tq::ListContents contents = Of("2454.TW,GONE.TW,1101.TW,2330.TW:,2330.TW");
  const std::vector<CString> wanted = {"2330.tw", "gone.TW", "2454.TW"};
  EXPECT_EQ(contents.RowsOf(wanted), (std::vector<int>{0, 3}));
}

// Random edits beside the plainest model: rows as texts, in which unknown ids are marked.
TEST_F(ListContentsTest, RandomEditsAgreeWithAPlainModel) {
  const std::vector<SymbolInfo> symbols =
      Records("2330.TW,1101.TW,2317.TW,2454.TW,6488.TE,7777.TW");
  tq::ListContents contents = Of("gone.TW,1101.TW,none.TE,A:");
  std::vector<std::string> model = {"?gone.TW", "1101.TW", "?none.TE", "A:"};
  std::mt19937 random(20261122);
  const auto places = [&model] {
    std::vector<std::size_t> rows;
    for (std::size_t i = 0; i < model.size(); ++i) {
      if (model[i].front() != '?')
        rows.push_back(i);
    }
    return rows;
  };
  for (int step = 0; step < 20000; ++step) {
    const std::vector<std::size_t> rows = places();
    ASSERT_EQ(contents.RowCount(), static_cast<int>(rows.size()));
    const std::size_t row = random() % (rows.size() + 1);
    const auto place = row < rows.size() ? rows[row] : model.size();
    const int at = static_cast<int>(row);
    switch (random() % 5) {
    case 0: {
      const SymbolInfo& symbol = symbols[random() % symbols.size()];
      const bool there = std::find(model.begin(), model.end(), symbol.id) != model.end();
      EXPECT_EQ(contents.Insert(at, {&symbol, 1}), there ? 0 : 1);
      if (!there)
        model.insert(model.begin() + static_cast<std::ptrdiff_t>(place), symbol.id);
      break;
    }
    case 1:
      if (rows.size() < 12) {
        contents.InsertHeading(at, "H:");
        model.insert(model.begin() + static_cast<std::ptrdiff_t>(place), "H:");
      }
      break;
    case 2:
      if (row < rows.size()) {
        contents.Remove(std::vector{at});
        model.erase(model.begin() + static_cast<std::ptrdiff_t>(place));
      }
      break;
    case 3:
      if (row < rows.size()) {
        EXPECT_EQ(contents.Move(std::vector{at}, true), row > 0);
        if (row > 0)
          std::swap(model[place], model[rows[row - 1]]);
      }
      break;
    default:
      if (row < rows.size()) {
        EXPECT_EQ(contents.Move(std::vector{at}, false), row + 1 < rows.size());
        if (row + 1 < rows.size())
          std::swap(model[place], model[rows[row + 1]]);
      }
    }
    std::string ids;
    for (const std::string& entry : model)
      ids += (ids.empty() ? "" : ",") + entry.substr(entry.front() == '?' ? 1 : 0);
    ASSERT_EQ(Ids(contents), ids) << step;
  }
}

} // namespace
