// The page and the header about combinations: their examples are what the library does.
#include <fstream>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "symboltable/SymbolTableMgr.h"
#include "tests/symbolid/CombinationTest.h"

namespace {

// Relative to the root of the source tree, where tests run.
std::vector<std::string> LinesOfFile(const std::string& path) {
  std::vector<std::string> lines;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);)
    lines.push_back(line);
  return lines;
}

struct Legs {
  CString id1;
  CString id2;
  char side1 = 0;
  char side2 = 0;
};

class OptFutIDPage : public CombinationTest {
protected:
  static std::string Answered(const COptFutID& id, int result) {
    return result != 0 ? "yes" : std::to_string(id.GetErrorCode());
  }

  static std::string Separated(const std::string& typed, char side, int check, Legs& legs) {
    COptFutID id;
    return Answered(
        id, id.SeparateID(typed.c_str(), side, legs.id1, legs.side1, legs.id2, legs.side2, check));
  }

  static std::string Merged(const Legs& legs) {
    COptFutID id;
    CString text;
    char side = 0;
    return Answered(id, id.MergeID(text, side, legs.id1, legs.side1, legs.id2, legs.side2, 1));
  }

  // With a check. Empty when it is refused.
  static std::string Text(const char* id1, char side1, const char* id2, char side2) {
    CString text;
    char side = 0;
    COptFutID().MergeID(text, side, id1, side1, id2, side2, 1);
    return std::string(text);
  }
};

TEST_F(OptFutIDPage, TheChecksDifferAsTheTableSays) {
  const std::regex row(R"(\| `([^`]+)` \| (.) \| (\w+) \| (\w+) \|.*)");
  int rows = 0;
  for (const std::string& line : LinesOfFile("docs/combination-ids.md")) {
    std::smatch cells;
    if (!std::regex_match(line, cells, row))
      continue;
    ++rows;
    const char side = cells.str(2)[0];
    Legs legs;
    EXPECT_EQ(Separated(cells.str(1), side, 1, legs), cells.str(3)) << line;
    ASSERT_EQ(Separated(cells.str(1), side, 0, legs), "yes") << line;
    EXPECT_EQ(Merged(legs), cells.str(4)) << line;
  }
  EXPECT_EQ(rows, 13);
}

// What the operations make of legs that pass the check.
std::set<std::string> DescriptionsOfTwoCalls() {
  CSymbolTableMgr tables;
  EXPECT_EQ(tables.InitAllSymbolTable(), 1);
  CString one;
  CString futures;
  char side = 0;
  COptFutID().MergeID2(one, side, "TXO22000L6", 'S', "TXO21000L6", 'B', 1, &tables);
  COptFutID().MergeFuturID(futures, side, "TXFL6", 'S', "TXFA7", 'B');
  return {std::string(one), std::string(futures)};
}

TEST_F(OptFutIDPage, TheHeadersExamplesPassTheChecks) {
  for (const char* code : {"TXO22000L6", "TXO21000L6"})
    List(code, {{ExtAttrShortName, "V5=TX;V6=1"}});
  std::set<std::string> texts = DescriptionsOfTwoCalls();
  texts.insert(Text("TXO22000L6", 'S', "TXO21000L6", 'B'));
  texts.insert(Text("TXO21000L6", 'B', "TXO21000X6", 'S'));
  texts.insert(Text("TXO21000L6", 'S', "TXO21000A7", 'B'));
  const std::regex quoted("\"(TX[^\"]*)\"");
  int examples = 0;
  for (const std::string& line : LinesOfFile("symbolid/OptFutID.h")) {
    std::smatch found;
    if (!std::regex_search(line, found, quoted) ||
        std::regex_match(found.str(1), std::regex("\\w+")))
      continue; // a code by itself is no combination
    ++examples;
    Legs legs;
    EXPECT_TRUE(texts.contains(found.str(1)) || Separated(found.str(1), 'B', 1, legs) == "yes")
        << line;
  }
  EXPECT_EQ(examples, 10);
}

} // namespace
