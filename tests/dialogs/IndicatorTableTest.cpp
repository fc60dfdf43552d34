// The contents and results of a search for indicators, without a window.
#include "dialogs/IndicatorTable.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace {

using tq::IndicatorTable;
using Rows = std::initializer_list<std::vector<const char*>>;

// Rows as the stock library hands them out.
class InfoRows {
public:
  InfoRows(Rows rows) {
    for (const std::vector<const char*>& row : rows) {
      owned_.push_back(std::make_unique<CStringArray>());
      for (const char* column : row)
        owned_.back()->Add(column);
      pointers.Add(owned_.back().get());
    }
  }
  CPtrArray pointers;

private:
  std::vector<std::unique_ptr<CStringArray>> owned_;
};

IndicatorTable Table(Rows rows) {
  return IndicatorTable(InfoRows(rows).pointers); // the rows are freed when this returns
}

IndicatorTable Sample() {
  return Table({{"Asia", "Prices", "C1", "One", "T1"},
                {"Europe", "Prices", "C2", "Two", "T2"},
                {"Asia", "Trade", "C3", "Three", "T3"},
                {"Europe", "Labour", "C4", "Four", "T4"}});
}

std::string Joined(const CStringArray& texts) {
  std::string all;
  for (const CString& text : texts)
    all += (all.empty() ? "" : "|") + std::string(text);
  return all;
}

using Numbers = std::vector<int>;

// --- Regions and categories ----------------------------------------------------------------------

TEST(IndicatorTable, RegionsStandOnceInTheOrderOfTheTable) {
  EXPECT_EQ(Joined(Sample().Regions()), "Asia|Europe");
}

TEST(IndicatorTable, CategoriesStandOnceInTheOrderOfTheTable) {
  EXPECT_EQ(Joined(Sample().Categories()), "Prices|Trade|Labour");
}

TEST(IndicatorTable, AnEmptyTextIsNoRegionAndNoCategory) {
  const IndicatorTable table = Table({{"", "", "C1", "One"}, {"Asia", "Trade", "C2", "Two"}});
  EXPECT_EQ(Joined(table.Regions()), "Asia");
  EXPECT_EQ(Joined(table.Categories()), "Trade");
}

TEST(IndicatorTable, RegionsThatDifferInLetterCaseAreTwo) {
  EXPECT_EQ(Joined(Table({{"asia"}, {"ASIA"}}).Regions()), "asia|ASIA");
}

// --- Rows of a choice ----------------------------------------------------------------------------

TEST(IndicatorTable, AllOfBothAreAllRows) {
  EXPECT_EQ(Sample().RowsOf(IndicatorTable::kAll, IndicatorTable::kAll), (Numbers{0, 1, 2, 3}));
}

TEST(IndicatorTable, ARegionHasItsRowsInTheirOrder) {
  EXPECT_EQ(Sample().RowsOf(1, IndicatorTable::kAll), (Numbers{0, 2}));
  EXPECT_EQ(Sample().RowsOf(2, IndicatorTable::kAll), (Numbers{1, 3}));
}

TEST(IndicatorTable, ACategoryHasItsRowsOfAllRegions) {
  EXPECT_EQ(Sample().RowsOf(IndicatorTable::kAll, 1), (Numbers{0, 1}));
}

TEST(IndicatorTable, BothTogetherLeaveTheRowsThatHaveBoth) {
  EXPECT_EQ(Sample().RowsOf(1, 1), (Numbers{0}));
}

TEST(IndicatorTable, ACategoryThatTheRegionDoesNotHaveLeavesNoRow) {
  EXPECT_EQ(Sample().RowsOf(2, 2), Numbers{});
}

TEST(IndicatorTable, ARowWithoutRegionOrCategoryIsOnlyInAllOfThem) {
  const IndicatorTable table = Table({{"", "Trade"}, {"Asia", ""}, {"Asia", "Trade"}});
  EXPECT_EQ(table.RowsOf(1, IndicatorTable::kAll), (Numbers{1, 2}));
  EXPECT_EQ(table.RowsOf(IndicatorTable::kAll, 1), (Numbers{0, 2}));
  EXPECT_EQ(table.RowsOf(IndicatorTable::kAll, IndicatorTable::kAll), (Numbers{0, 1, 2}));
}

TEST(IndicatorTable, ANumberThatIsNotThereHasNoRows) {
  EXPECT_EQ(Sample().RowsOf(3, IndicatorTable::kAll), Numbers{});
  EXPECT_EQ(Sample().RowsOf(IndicatorTable::kAll, 4), Numbers{});
  EXPECT_EQ(Sample().RowsOf(-1, IndicatorTable::kAll), Numbers{});
}

TEST(IndicatorTable, AnEmptyTableHasNothing) {
  for (const IndicatorTable& table : {IndicatorTable(), Table({})}) {
    EXPECT_EQ(table.GetRowCount(), 0);
    EXPECT_TRUE(table.Regions().IsEmpty());
    EXPECT_TRUE(table.Categories().IsEmpty());
    EXPECT_EQ(table.RowsOf(IndicatorTable::kAll, IndicatorTable::kAll), Numbers{});
    EXPECT_EQ(table.Find("C1"), -1);
  }
}

// --- What the list shows -------------------------------------------------------------------------

std::string Titles(const IndicatorTable& table, const Numbers& rows) {
  std::string all;
  for (const CString& title : table.Titles(rows))
    all += (all.empty() ? "" : "|") + std::string(title);
  return all;
}

// Symptom: two rows of the same name looked the same.
TEST(IndicatorTable, NamesThatStandTwiceInWhatIsShownCarryTheirRegion) {
  const IndicatorTable table =
      Table({{"R1", "C", "A", "N"}, {"R2", "C", "B", "N"}, {"R2", "C", "C", "M"}});
  EXPECT_EQ(Titles(table, {0, 1, 2}), "N(R1)|N(R2)|M");
  EXPECT_EQ(Titles(table, {2, 1}), "M|N");
  EXPECT_EQ(Titles(table, {}), "");
}

TEST(IndicatorTable, ARowWithoutARegionKeepsItsNameAlone) {
  const IndicatorTable table = Table({{"R1", "", "A", "N"}, {"", "", "B", "N"}});
  EXPECT_EQ(Titles(table, {0, 1}), "N(R1)|N");
}

TEST(IndicatorTable, NamesThatDifferInLetterCaseAreTwo) {
  EXPECT_EQ(Titles(Table({{"R1", "", "A", "n"}, {"R2", "", "B", "N"}}), {0, 1}), "n|N");
}

TEST(IndicatorTable, ACodeInPlaceOfANameCountsAsOne) {
  const IndicatorTable table = Table({{"R1", "", "A"}, {"R2", "", "B", "A"}});
  EXPECT_EQ(Titles(table, {0, 1}), "A(R1)|A(R2)");
}

TEST(IndicatorTable, ARowsRegionIsItsNumber) {
  const IndicatorTable table = Table({{"R1"}, {"R2"}, {""}, {}, {"R1"}});
  EXPECT_EQ(table.RegionOf(0), 1);
  EXPECT_EQ(table.RegionOf(1), 2);
  EXPECT_EQ(table.RegionOf(2), IndicatorTable::kAll);
  EXPECT_EQ(table.RegionOf(3), IndicatorTable::kAll);
  EXPECT_EQ(table.RegionOf(4), 1);
}

// --- The texts of a row, by the number of its columns --------------------------------------------

struct RowTexts {
  std::vector<const char*> columns;
  const char *title, *name, *code, *market;
};

class IndicatorRow : public testing::TestWithParam<RowTexts> {};

TEST_P(IndicatorRow, GivesItsTexts) {
  const IndicatorTable table = Table({GetParam().columns});
  ASSERT_EQ(table.GetRowCount(), 1);
  EXPECT_EQ(Titles(table, {0}), GetParam().title);
  EXPECT_STREQ(table.Texts(0).name, GetParam().name);
  EXPECT_STREQ(table.Texts(0).code, GetParam().code);
  EXPECT_STREQ(table.Texts(0).market, GetParam().market);
}

std::string ColumnCount(const testing::TestParamInfo<RowTexts>& info) {
  return "Of" + std::to_string(info.param.columns.size()) + "Columns" +
         (info.param.columns.size() > 3 && *info.param.columns[3] == '\0' ? "NameEmpty" : "");
}

INSTANTIATE_TEST_SUITE_P(
    Texts, IndicatorRow,
    testing::Values(RowTexts{{}, "", "Undefined", "", ""}, RowTexts{{"R"}, "", "Undefined", "", ""},
                    RowTexts{{"R", "C"}, "", "Undefined", "", ""},
                    RowTexts{{"R", "C", "ID"}, "ID", "Undefined", "ID", ""},
                    RowTexts{{"R", "C", "ID", "Name"}, "Name", "Name", "ID", ""},
                    RowTexts{{"R", "C", "ID", ""}, "ID", "", "ID", ""},
                    RowTexts{{"R", "C", "ID", "Name", "T"}, "Name", "Name", "ID", "T"},
                    RowTexts{{"R", "C", "ID", "Name", "T", "more"}, "Name", "Name", "ID", "T"}),
    ColumnCount);

TEST(IndicatorTable, ARowThatIsNotThereHasNoColumns) {
  CPtrArray rows;
  rows.Add(nullptr);
  const IndicatorTable table(rows);
  ASSERT_EQ(table.GetRowCount(), 1);
  EXPECT_STREQ(table.Texts(0).name, "Undefined");
}

// --- The row that a text means -------------------------------------------------------------------

TEST(IndicatorTable, FindsARowByItsCode) {
  EXPECT_EQ(Sample().Find("C3"), 2);
}

TEST(IndicatorTable, FindsARowByItsName) {
  EXPECT_EQ(Sample().Find("Two"), 1);
}

TEST(IndicatorTable, LetterCaseOfCodeAndNameIsIgnored) {
  EXPECT_EQ(Sample().Find("c4"), 3);
  EXPECT_EQ(Sample().Find("FOUR"), 3);
}

TEST(IndicatorTable, OfSeveralTheFirstIsFound) {
  const IndicatorTable table = Table({{"", "", "A", "N"}, {"", "", "B", "M"}, {"", "", "B", "N"}});
  EXPECT_EQ(table.Find("B"), 1);
  EXPECT_EQ(table.Find("N"), 0);
}

TEST(IndicatorTable, ACodeComesBeforeANameFurtherUp) {
  EXPECT_EQ(Table({{"", "", "A", "B"}, {"", "", "B", "N"}}).Find("B"), 1);
}

TEST(IndicatorTable, APartOfANameFindsNothing) {
  EXPECT_EQ(Sample().Find("Thr"), -1);
}

TEST(IndicatorTable, AnEmptyTextFindsNothingThoughRowsHaveEmptyColumns) {
  const IndicatorTable table = Table({{}, {"", "", "", ""}});
  EXPECT_EQ(table.Find(""), -1);
  EXPECT_EQ(table.Find(nullptr), -1);
}

TEST(IndicatorTable, UndefinedIsNoName) {
  EXPECT_EQ(Table({{"R", "C", "ID"}}).Find("Undefined"), -1);
}

} // namespace
