// The table of operations must contain every exported operation of the manager and reach every
// service.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "tests/operations/Operations.h"
#include "tests/operations/Subject.h"

namespace operations {
namespace {

using Names = std::set<std::string>;

// Relative to the root of the source tree, where tests run.
std::vector<std::string> LinesOf(const std::string& path) {
  std::vector<std::string> lines;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    if (!line.empty() && line.back() == '\r')
      line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

std::string NameBefore(const std::string& text, char end) {
  const std::string name = text.substr(0, text.find(end));
  return name.substr(name.find_last_of(" *&:~") + 1);
}

// The exported signatures of a class, without the class.
std::vector<std::string> ExportsOf(const std::string& name) {
  std::vector<std::string> signatures;
  for (const std::string& line : LinesOf("tests/exports/tqSymbol.linux.txt"))
    if (line.starts_with(name + "::") && line.find('(') != std::string::npos)
      signatures.push_back(line.substr(name.size() + 2));
  return signatures;
}

// Members that a header declares behind "protected:".
Names HiddenIn(const std::string& header) {
  Names names;
  bool hidden = false;
  for (const std::string& line : LinesOf(header)) {
    hidden = hidden || line == "protected:" || line == "private:";
    if (hidden && line.find('(') != std::string::npos)
      names.insert(NameBefore(line, '('));
  }
  return names;
}

Names SignaturesInTable() {
  Names signatures;
  for (const Operation& operation : All())
    signatures.insert(operation.signature);
  return signatures;
}

void ExpectAllInTable(const std::string& name, const std::string& prefix,
                      const std::string& header) {
  const std::vector<std::string> exported = ExportsOf(name);
  ASSERT_GT(exported.size(), 20u);
  const Names hidden = HiddenIn(header);
  const Names known = SignaturesInTable();
  for (const std::string& signature : exported)
    EXPECT_TRUE(known.contains(prefix + signature) || hidden.contains(NameBefore(signature, '(')) ||
                NameBefore(signature, '(') == name)
        << prefix + signature << " is not in the table of operations";
}

TEST(OperationsTable, HasEveryExportedOperationOfTheManager) {
  ExpectAllInTable("CTQSymbolListMgr", "", "manager/TQSymbolListMgr.h");
}

TEST(OperationsTable, HasEveryExportedOperationOfTheSymbolTables) {
  ExpectAllInTable("CSymbolTableMgr", "CSymbolTableMgr::", "symboltable/SymbolTableMgr.h");
}

TEST(OperationsTable, HasEveryExportedOperationOfNoClass) {
  const Names known = SignaturesInTable();
  int count = 0;
  for (const std::string& line : LinesOf("tests/exports/tqSymbol.linux.txt")) {
    const std::string name = line.substr(0, line.find('('));
    if (name.find_first_of(" :") != name.npos)
      continue;
    EXPECT_TRUE(known.contains(line)) << line << " is not in the table of operations";
    ++count;
  }
  EXPECT_GE(count, 4);
}

TEST(OperationsTable, HasNothingTwice) {
  EXPECT_EQ(SignaturesInTable().size(), All().size());
}

// Left out: constructors, destructors and the choice of a log level, which a terminal never waits
// for; the language and the terminal's controls, which are only settings; and opening the log,
// which happens once (see OpeningTheLog).
bool CanBeWatched(const std::string& service) {
  return service.find("Log::TQLog") == service.npos && service.find('~') == service.npos &&
         service.find("operator()") == service.npos && !service.starts_with("typeinfo ") &&
         service.find("::C") == service.npos && !service.starts_with("CCharEdit::") &&
         !service.starts_with("CTQToolTip::") && service != "IsTraditionChinese" &&
         !service.starts_with("TQLog::storage");
}

Names CalledServices() {
  Names called;
  for (const Operation& operation : All()) {
    for (const bool refuse : {false, true}) {
      Subject subject;
      subject.Disk().Refuse(refuse);
      standin::OnEachCall([&](std::string_view service) { called.emplace(service); });
      operation.run(subject.Manager(), Arguments());
      standin::OnEachCall({});
    }
  }
  return called;
}

TEST(OperationsTable, ReachesEveryServiceThatTheLibraryNeeds) {
  PrepareServices();
  const Names called = CalledServices();
  const std::vector<std::string> needed = LinesOf("tests/exports/needs.linux.txt");
  ASSERT_GT(needed.size(), 20u);
  for (const std::string& line : needed) {
    const std::string service = line.substr(0, line.find('('));
    EXPECT_TRUE(called.contains(service) || !CanBeWatched(line)) << service << " is never called";
  }
  standin::Reset();
}

} // namespace
} // namespace operations
