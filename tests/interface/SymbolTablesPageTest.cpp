// The page about look-ups: every cell of its tables is what the library answers.
#include <fstream>
#include <map>
#include <regex>
#include <string>
#include <vector>

#include "tests/interface/SymbolTablesTest.h"

namespace {

using Row = std::vector<std::string>; // its cells

// Relative to the root of the source tree, where tests run.
std::vector<std::string> LinesOfFile(const std::string& path) {
  std::vector<std::string> lines;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);)
    lines.push_back(line);
  return lines;
}

Row CellsOf(const std::string& line) {
  Row cells;
  size_t start = 2;
  for (size_t end = line.find(" |", start); end != std::string::npos;
       end = line.find(" |", start)) {
    cells.push_back(line.substr(start, end - start));
    start = end + 3;
  }
  return cells;
}

// The rows of the page that begin with a number and have that many cells.
std::vector<Row> RowsOf(size_t cells) {
  std::vector<Row> rows;
  for (const std::string& line : LinesOfFile("docs/look-ups.md")) {
    if (line.size() < 3 || line[0] != '|' || line[2] < '0' || line[2] > '9')
      continue;
    if (const Row row = CellsOf(line); row.size() == cells)
      rows.push_back(row);
  }
  return rows;
}

// What stands between the backquotes of a cell.
std::string Quoted(const std::string& cell) {
  return cell.substr(1, cell.size() - 2);
}

std::string Cell(int result, const std::string& value) {
  return (result != 0 ? "" : "no: ") + (value.empty() ? "empty" : "`" + value + "`");
}

class SymbolTablesPage : public SymbolTablesTest {
protected:
  enum Column : size_t {
    kField,
    kName,
    kRead,
    kSays,
    kText,
    kNumber,
    kTextWithout,
    kNumberWithout
  };
  static constexpr size_t kColumns = 8;

  static int FieldOf(const Row& row) { return std::stoi(row[kField]); }
  // Those that make the symbol what it is.
  static bool IsGiven(int field) {
    return field == FieldSymbolId || field == FieldSymbolName || field == FieldExchangeName;
  }

  standin::Instrument& Example() { return Listed("2330", 1); }

  void ServeExample() {
    Example().nameTw = Example().nameCn = "ABC";
    for (const Row& row : RowsOf(kColumns)) {
      if (!IsGiven(FieldOf(row)))
        Example().fields.push_back({FieldOf(row), Quoted(row[kSays])});
      if (FieldOf(row) == FieldExchangeCode)
        Example().exchangeCode = Quoted(row[kSays]);
    }
    Serve();
  }

  std::string TextCell(int field) {
    CString value("before");
    const int result = tables.LookUpSymbolGetString(field, "2330.TW", "", value);
    return Cell(result, std::string(value));
  }
  // By all three operations, which must agree.
  std::string NumberCell(int field) {
    int number = -99;
    long value = -99;
    long attribute = -99;
    const int result = tables.LookUpSymbolGetInt(field, "2330.TW", "", number);
    EXPECT_EQ(tables.LookUpSymbolGetValue(field, "2330.TW", "", value), result) << field;
    EXPECT_EQ(tables.LookUpSymbolGetExAttr(field, "2330.TW", "", attribute), result) << field;
    EXPECT_TRUE(value == number && attribute == number) << field;
    return Cell(result, std::to_string(number));
  }
};

TEST_F(SymbolTablesPage, HasEveryFieldByItsName) {
  std::map<int, std::string> fields;
  const std::regex enumerator(R"(\s*(Field\w+) =\s*(\d+),.*)");
  for (const std::string& line : LinesOfFile("platform/services/tqStockFields.h")) {
    std::smatch found;
    if (std::regex_match(line, found, enumerator))
      fields[std::stoi(found.str(2))] = found.str(1);
  }
  ASSERT_GT(fields.size(), 20u);
  EXPECT_EQ(RowsOf(kColumns).size(), fields.size());
  for (const Row& row : RowsOf(kColumns))
    EXPECT_EQ(Quoted(row[kName]), fields[FieldOf(row)]);
}

TEST_F(SymbolTablesPage, SaysWhatIsAnswered) {
  ServeExample();
  Start();
  for (const Row& row : RowsOf(kColumns)) {
    EXPECT_EQ(TextCell(FieldOf(row)), row[kText]) << row[kName];
    EXPECT_EQ(NumberCell(FieldOf(row)), row[kNumber]) << row[kName];
  }
  EXPECT_EQ(TextCell(999), "no: empty");
  EXPECT_EQ(NumberCell(999), "no: `-1`");
}

TEST_F(SymbolTablesPage, SaysWhatIsAnsweredWithoutTheAttribute) {
  for (const char* operation : {"CStaticKey::GetFieldString", "CStaticKey::GetFieldInt",
                                "CStaticKey::SetUpTrade", "tqStockGetFieldString"})
    standin::FailAlways(operation);
  Start();
  for (const Row& row : RowsOf(kColumns)) {
    EXPECT_EQ(TextCell(FieldOf(row)), row[kTextWithout]) << row[kName];
    EXPECT_EQ(NumberCell(FieldOf(row)), row[kNumberWithout]) << row[kName];
  }
}

TEST_F(SymbolTablesPage, SaysWhenAnAttributeIsRead) {
  ServeExample();
  Start();
  for (standin::FieldValue& given : Example().fields)
    given.value = "7";
  Example().exchangeCode = "7";
  Serve();
  for (const Row& row : RowsOf(kColumns)) {
    const int field = FieldOf(row);
    const bool same = TextCell(field) == row[kText] && NumberCell(field) == row[kNumber];
    EXPECT_EQ(same ? "with the table" : "each time", row[kRead]) << row[kName];
  }
}

TEST_F(SymbolTablesPage, SaysHowPricesAreScaled) {
  const std::vector<Row> rows = RowsOf(3);
  EXPECT_GE(rows.size(), 10u);
  for (const Row& row : rows) {
    Example().decimals = std::stoi(row[0]);
    for (const int field : {FieldReferencePrice, FieldPreviousClose}) {
      Example().fields = {{field, Quoted(row[1])}};
      Serve();
      Start();
      EXPECT_EQ(NumberCell(field), row[2]) << row[1];
      EXPECT_EQ(TextCell(field), row[1]);
    }
  }
}

} // namespace
