// Rows of a list and the tokens that they come from.
#include <cstring>
#include <string>
#include <vector>

#include "symbollist/SymbolList.h"
#include "terminal/StandIn.h"
#include "tests/support/ListRows.h"
#include "tests/support/StandInTest.h"

namespace {

std::string Joined(CIDList& list) {
  CString rows;
  list.JoinRows(rows);
  return rows.GetString();
}

// Records as a faulty service hands them out; released with VLFree as all arrays of a service are.
SymbolInfo* FromService(const std::vector<std::string>& ids) {
  std::vector<SymbolInfo> records(ids.size());
  for (size_t i = 0; i < ids.size(); ++i) {
    records[i] = {};
    std::memcpy(records[i].id, ids[i].data(), std::min(ids[i].size(), sizeof(SymbolInfo::id)));
  }
  standin::AnswerMembers(1, "faulty", records, static_cast<int>(ids.size()));
  SymbolInfo* array = nullptr;
  int count = 0;
  EXPECT_NE(VLGetGroupSymbol(1, "faulty", &array, &count, 1), 0);
  return array;
}

void AddToMarket(const char* code, const char* exchange) {
  standin::Market market = standin::CurrentMarket();
  standin::Instrument added = market.instruments.front();
  for (const standin::Exchange& listed : market.exchanges)
    added.exchId = listed.name == exchange ? listed.id : added.exchId;
  added.code = code;
  market.instruments.push_back(added);
  standin::SetMarket(market);
}

class IDListEntriesTest : public StandInTest {};

// A bare ":" in front of a heading took the heading's row: queries showed ":", and edits of the row
// hit the wrong token.
TEST_F(IDListEntriesTest, ABareColonInFrontOfAHeadingHasNoRow) {
  CIDList list;
  list.Update1(":,Head:,2330.TW");
  EXPECT_EQ(RowsOf(list), ": 2330.TW");
  EXPECT_EQ(Joined(list), "Head:,2330.TW");
  CIDList replaced(list);
  EXPECT_EQ(replaced.ReplaceEntry(0, "Other:"), 1);
  EXPECT_STREQ(replaced.GetIDs(), ":,Other:,2330.TW");
  CIDList swapped(list);
  EXPECT_EQ(swapped.SwapEntries(0, 1), 1);
  EXPECT_STREQ(swapped.GetIDs(), ":,2330.TW,Head:");
  EXPECT_EQ(list.RemoveEntry(0), 1);
  EXPECT_STREQ(list.GetIDs(), ":,2330.TW");
  EXPECT_EQ(RowsOf(list), "2330.TW");
}

// Records without a usable id stopped the process at the next query, or let an edit hit another
// row.
TEST_F(IDListEntriesTest, RecordsWithoutAnIdGetNoRow) {
  const struct {
    std::vector<std::string> ids;
    const char* kept;
  } rows[] = {
      {{""}, ""},
      {{"", "2330.TW"}, "2330.TW"},
      {{"2330.TW", "", "2317.TW", ""}, "2330.TW,2317.TW"},
      {{"2330.TW", "  ", "2317.TW"}, "2330.TW,2317.TW"},
      {{"2330.TW", ",", "A,B", "2317.TW"}, "2330.TW,2317.TW"},
      {{"2330.TW", "\x01", "23\xA4", "2317.TW"}, "2330.TW,2317.TW"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.kept);
    CIDList list;
    EXPECT_EQ(list.Update2(FromService(row.ids), static_cast<int>(row.ids.size())), 1);
    EXPECT_STREQ(list.GetIDs(), row.kept);
    EXPECT_EQ(Joined(list), row.kept);
    EXPECT_EQ(list.GetTokens().GetSize(), list.GetCount());
    if (list.GetCount() == 2) {
      EXPECT_EQ(list.RemoveEntry(1), 1);
      EXPECT_STREQ(list.GetIDs(), "2330.TW");
    }
  }
}

TEST_F(IDListEntriesTest, AnIdThatFillsItsFieldHasNoEndAndIsKeptWhole) {
  CIDList list;
  list.Update2(FromService({"ABCDEFGHIJKLMNOPQ.TW", "2330.TW"}), 2);
  EXPECT_STREQ(list.GetIDs(), "ABCDEFGHIJKLMNOPQ.TW,2330.TW");
  EXPECT_EQ(list.SwapEntries(0, 1), 1);
  EXPECT_STREQ(list.GetIDs(), "2330.TW,ABCDEFGHIJKLMNOPQ.TW");
}

// A symbol whose id the service writes with a small letter never had a row.
TEST_F(IDListEntriesTest, ASymbolThatTheServiceWritesWithSmallLettersHasARow) {
  AddToMarket("PFDa", "NYSE");
  for (const char* written : {"PFDa.NYSE", "PFDA.NYSE", "pfda.nyse"}) {
    SCOPED_TRACE(written);
    CIDList list;
    list.Update1(CString("2330.TW,") + written + ",2317.TW");
    EXPECT_EQ(RowsOf(list), "2330.TW PFDa.NYSE 2317.TW");
    EXPECT_EQ(Joined(list), "2330.TW,PFDa.NYSE,2317.TW");
    EXPECT_EQ(list.InsertEntry(0, "PFDA.NYSE", true), 0);
    EXPECT_EQ(list.RemoveEntry(0), 1);
    EXPECT_STREQ(list.GetIDs(), "PFDa.NYSE,2317.TW");
    EXPECT_EQ(list.RemoveEntry(0), 1);
    EXPECT_STREQ(list.GetIDs(), "2317.TW");
  }
}

// "2330.TW, 2317.TW" was asked for as " 2317.TW": no row until an edit.
TEST_F(IDListEntriesTest, BlanksAroundIdsAreNotAskedForAndStayInTheString) {
  CIDList list;
  list.Update1("2330.TW, 2317.TW ,\t2454.tw");
  ASSERT_FALSE(standin::Calls().empty());
  EXPECT_EQ(standin::Calls().back().arguments, "2330.TW,2317.TW,2454.tw");
  EXPECT_EQ(RowsOf(list), "2330.TW 2317.TW 2454.TW");
  EXPECT_STREQ(list.GetTokens()[1], "2317.TW");
  EXPECT_STREQ(list.GetIDs(), "2330.TW, 2317.TW ,\t2454.tw");
  EXPECT_EQ(list.InsertEntry(0, "2317.TW", true), 0);
  EXPECT_EQ(list.InsertEntry(0, " 2317.tw", true), 0);
}

TEST_F(IDListEntriesTest, ATextOfBlanksIsNoEntry) {
  CIDList list;
  list.Update1("2330.TW, ,2317.TW");
  EXPECT_EQ(list.GetTokens().GetSize(), 2);
  EXPECT_EQ(RowsOf(list), "2330.TW 2317.TW");
  EXPECT_EQ(list.InsertEntry(0, "  ", true), 0);
  EXPECT_EQ(list.ReplaceEntry(0, "\t "), 0);
  EXPECT_STREQ(list.GetIDs(), "2330.TW, ,2317.TW");
}

// A "," behind a lead byte was one entry to the check and two to the splitter.
TEST_F(IDListEntriesTest, ACommaBehindALeadByteSplitsForTheCheckToo) {
  CIDList list;
  list.Update1("2330.TW");
  EXPECT_EQ(list.InsertEntry(0, "A\xA4,B", true), 0);
  EXPECT_EQ(list.ReplaceEntry(0, "A\xA4,B"), 0);
  EXPECT_STREQ(list.GetIDs(), "2330.TW");
  list.Update1("2317.TW\xA4,2330.TW");
  EXPECT_EQ(list.GetTokens().GetSize(), 2);
}

// An id that the service does not know came back in upper case after an edit of another row.
TEST_F(IDListEntriesTest, UnknownIdsStayAsTheyAreWrittenThroughEveryEdit) {
  CIDList list;
  list.Update1("gone.tw,2330.tw, Lost.NYSE ,Head:,2317.TW");
  EXPECT_EQ(list.SwapEntries(0, 2), 1);
  EXPECT_STREQ(list.GetIDs(), "gone.tw,2317.TW, Lost.NYSE ,Head:,2330.TW");
  EXPECT_EQ(list.RemoveEntry(1), 1);
  EXPECT_STREQ(list.GetIDs(), "gone.tw,2317.TW, Lost.NYSE ,2330.TW");
  EXPECT_EQ(list.InsertEntry(0, "2454.tw", false), 1);
  EXPECT_STREQ(list.GetIDs(), "gone.tw,2317.TW,2454.tw, Lost.NYSE ,2330.TW");
  EXPECT_EQ(list.ReplaceEntry(2, "Tail:"), 1);
  EXPECT_STREQ(list.GetIDs(), "gone.tw,2317.TW,2454.TW, Lost.NYSE ,Tail:");
  EXPECT_EQ(list.InsertEntry(0, "GONE.tw", true), 0);
  EXPECT_EQ(RowsOf(list), "2317.TW 2454.TW :");
}

TEST_F(IDListEntriesTest, AnArgumentMayBeTheListsOwnText) {
  CIDList list;
  list.Update1("2330.TW,Head:,2317.TW");
  EXPECT_EQ(list.ReplaceEntry(0, list.GetTokens()[1]), 1);
  EXPECT_STREQ(list.GetIDs(), "Head:,Head:,2317.TW");
  EXPECT_EQ(list.InsertEntry(2, list.GetTokens()[0], false), 1);
  EXPECT_STREQ(list.GetIDs(), "Head:,Head:,2317.TW,Head:");
  EXPECT_EQ(list.Update1(list.GetIDs()), 0);
}

// The service lets the terminal change the very list that is being resolved. The inner records
// leaked, and the rows were those of another string.
class IDListReentryTest : public StandInTest {
protected:
  void WhenAsked(std::function<void()> action) {
    standin::OnCall("VLGetSymbolInfos", std::move(action));
  }
  // What holds after any re-entry: rows and tokens belong to the string.
  void ExpectConsistent() {
    standin::OnCall("VLGetSymbolInfos", {});
    const std::string rows = RowsOf(list);
    CIDList fresh;
    fresh.Update1(list.GetIDs());
    EXPECT_EQ(rows, RowsOf(fresh));
    EXPECT_EQ(Joined(list), Joined(fresh));
    EXPECT_EQ(list.GetTokens().GetSize(), fresh.GetTokens().GetSize());
  }
  CIDList list;
};

TEST_F(IDListReentryTest, AnotherStringIsSetMeanwhile) {
  WhenAsked([this] { list.Update1("2454.TW"); });
  EXPECT_EQ(list.Update1("2330.TW,2317.TW"), 1);
  EXPECT_STREQ(list.GetIDs(), "2454.TW");
  EXPECT_EQ(RowsOf(list), "2454.TW");
  ExpectConsistent();
}

TEST_F(IDListReentryTest, TheSameStringIsResolvedMeanwhile) {
  WhenAsked([this] { list.Update3(); });
  EXPECT_EQ(list.Update1("2330.TW,Head:"), 1);
  EXPECT_EQ(RowsOf(list), "2330.TW :");
  WhenAsked([this] { EXPECT_EQ(list.GetCount(), 2); });
  EXPECT_EQ(list.Update3(), 1);
  ExpectConsistent();
}

TEST_F(IDListReentryTest, TheStringIsEmptiedMeanwhile) {
  WhenAsked([this] { list.Update1(""); });
  EXPECT_EQ(list.Update1("2330.TW"), 1);
  EXPECT_EQ(list.GetCount(), 0);
  EXPECT_EQ(list.GetTokens().GetSize(), 0);
}

TEST_F(IDListReentryTest, EntriesAreEditedMeanwhile) {
  list.Update1("2330.TW,gone.tw,2317.TW");
  WhenAsked([this] { list.RemoveEntry(0); });
  list.InsertEntry(1, "2454.TW", false);
  ExpectConsistent();
  WhenAsked([this] { list.InsertEntry(0, "1101.TW", true); });
  list.ReplaceEntry(0, "2881.TW");
  ExpectConsistent();
  WhenAsked([this] { list.SwapEntries(0, 1); });
  list.Update3();
  ExpectConsistent();
}

TEST_F(IDListReentryTest, RecordsAreAdoptedMeanwhile) {
  WhenAsked([this] { list.Update2(FromService({"2317.TW", "2330.TW"}), 2); });
  list.Update1("2330.TW");
  EXPECT_STREQ(list.GetIDs(), "2317.TW,2330.TW");
  EXPECT_EQ(RowsOf(list), "2317.TW 2330.TW");
  ExpectConsistent();
}

TEST_F(IDListReentryTest, TheOuterQuestionFailsAfterTheInnerOneWasAnswered) {
  standin::FailCall("VLGetSymbolInfos", 2);
  WhenAsked([this] { list.Update3(); });
  EXPECT_EQ(list.Update1("2330.TW"), 1);
  ExpectConsistent();
}

// Each operation of a list that the terminal deletes from within the service returns, and touches
// nothing.
TEST_F(IDListReentryTest, TheListIsDeletedMeanwhile) {
  SymbolInfo record;
  CString text;
  const std::vector<std::function<void(CIDList&)>> operations = {
      [](CIDList& gone) { EXPECT_EQ(gone.GetCount(), 0); },
      [&](CIDList& gone) { EXPECT_FALSE(gone.GetAt(0, &record)); },
      [](CIDList& gone) { EXPECT_EQ(gone.Update1("2317.TW"), 1); },
      [](CIDList& gone) { EXPECT_EQ(gone.Update3(), 1); },
      [](CIDList& gone) { EXPECT_EQ(gone.RemoveEntry(0), 0); },
      [](CIDList& gone) { EXPECT_EQ(gone.SwapEntries(0, 1), 0); },
      [](CIDList& gone) { EXPECT_EQ(gone.ReplaceEntry(0, "2454.TW"), 0); },
      [](CIDList& gone) { EXPECT_EQ(gone.InsertEntry(0, "2454.TW", true), 0); },
      [&](CIDList& gone) { gone.JoinRows(text); },
  };
  for (const auto& operation : operations) {
    auto* gone = new CSymbolList;
    standin::FailCall("VLGetSymbolInfos", 1); // so that the operation has to ask
    gone->Update1("2330.TW,2317.TW,Head:");
    int deleted = 0;
    WhenAsked([&] {
      delete gone;
      ++deleted;
      standin::OnCall("VLGetSymbolInfos", {});
    });
    operation(*gone);
    EXPECT_EQ(deleted, 1);
  }
}

TEST_F(IDListReentryTest, TheListIsDeletedWhileAnInnerQuestionRuns) {
  auto* gone = new CIDList;
  standin::FailCall("VLGetSymbolInfos", 1);
  gone->Update1("2330.TW");
  WhenAsked([&] { delete gone; });
  gone->InsertEntry(0, "2317.TW", true);
}

TEST_F(IDListReentryTest, ACopyIsMadeMeanwhile) {
  std::string copied;
  WhenAsked([&] {
    CIDList copy(list);
    standin::OnCall("VLGetSymbolInfos", {});
    copied = RowsOf(copy);
  });
  list.Update1("2330.TW");
  EXPECT_EQ(copied, "2330.TW");
  EXPECT_EQ(RowsOf(list), "2330.TW");
}

} // namespace
