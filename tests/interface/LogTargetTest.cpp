// Where the lines of the log go.
#include <cstdio>
#include <string>
#include <vector>

#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

struct Lines {
  std::vector<std::string> texts;
  std::vector<int> levels;
  CTQSymbolListMgr* called = nullptr; // an operation of it, at each line
};

void Take(void* context, int level, const char* text) {
  auto* const lines = static_cast<Lines*>(context);
  lines->levels.push_back(level);
  lines->texts.emplace_back(text);
  if (lines->called != nullptr)
    lines->called->GetSymbolListCount(1);
}

class LogTargetTest : public EditTest {
protected:
  ~LogTargetTest() override { CTQSymbolListMgr::SetLog(nullptr, 0, nullptr, nullptr); }

  int Hear(int level = 0) { return CTQSymbolListMgr::SetLog(nullptr, level, Take, &lines_); }

  Lines lines_;
};

TEST_F(LogTargetTest, ACallbackTakesEachLineInThePlaceOfTheFile) {
  StartWith({});
  ASSERT_EQ(Hear(), 1);
  const size_t before = standin::LogLines().size();
  ASSERT_EQ(manager.AddSymbolList("a", 0, "A", "2330.TW", 1, 0), 1);
  ASSERT_EQ(lines_.texts.size(), 1u);
  EXPECT_EQ(lines_.texts[0], "Add SymbolList");
  EXPECT_EQ(lines_.levels[0], 64);
  EXPECT_EQ(standin::LogLines().size(), before);
  EXPECT_EQ(standin::LoggersAlive(), 0);
}

TEST_F(LogTargetTest, TextsAreHandedOverAsTheyAre) {
  StartWith({});
  ASSERT_EQ(Hear(), 1);
  const std::string name = standin::ToAnsi("許功蓋%s%n");
  manager.SetCloudeList("c", name.c_str(), "2330.TW");
  ASSERT_FALSE(lines_.texts.empty());
  EXPECT_EQ(lines_.texts[0],
            "CTQSymbolListMgr::SetCloudeList ListName=" + name + ", Symbols=2330.TW");
}

TEST_F(LogTargetTest, LinesOfLowerLevelsAreDropped) {
  StartWith({});
  ASSERT_EQ(Hear(65), 1);
  ASSERT_EQ(manager.AddSymbolList("a", 0, "A", "2330.TW", 1, 0), 1);
  EXPECT_TRUE(lines_.texts.empty());
  ASSERT_EQ(Hear(64), 1);
  ASSERT_EQ(manager.AddSymbolList("b", 0, "B", "2330.TW", 1, 0), 1);
  EXPECT_EQ(lines_.texts.size(), 1u);
}

TEST_F(LogTargetTest, ALevelHoldsForTheFileToo) {
  StartWith({});
  ASSERT_EQ(CTQSymbolListMgr::SetLog(nullptr, 256, nullptr, nullptr), 1);
  const size_t before = standin::LogLines().size();
  ASSERT_EQ(manager.AddSymbolList("a", 0, "A", "2330.TW", 1, 0), 1);
  EXPECT_EQ(standin::LogLines().size(), before);
}

TEST_F(LogTargetTest, TheFileGoesWhereTheTerminalSays) {
  StartWith({});
  const std::string logs = directory.Joined("Logs");
  ASSERT_EQ(CTQSymbolListMgr::SetLog(logs.c_str(), 0, nullptr, nullptr), 1);
  EXPECT_EQ(standin::LogStorage(), logs + "|tqSymbol|TQ");
  ASSERT_EQ(manager.AddSymbolList("a", 0, "A", "2330.TW", 1, 0), 1);
  EXPECT_TRUE(directory.Exists("Logs"));
  EXPECT_EQ(standin::LogLines().back().text, "Add SymbolList");
}

TEST_F(LogTargetTest, ADirectoryThatCannotBeMadeIsToldAndLinesAreDropped) {
  StartWith({});
  standin::FailCall("TQLog::storage", 1);
  EXPECT_EQ(CTQSymbolListMgr::SetLog("nowhere\\at\\all", 0, nullptr, nullptr), 0);
  EXPECT_EQ(manager.AddSymbolList("a", 0, "A", "2330.TW", 1, 0), 1);
}

TEST_F(LogTargetTest, TheDefaultComesBack) {
  StartWith({});
  ASSERT_EQ(Hear(), 1);
  ASSERT_EQ(CTQSymbolListMgr::SetLog("", 0, nullptr, nullptr), 1);
  ASSERT_EQ(manager.AddSymbolList("a", 0, "A", "2330.TW", 1, 0), 1);
  EXPECT_TRUE(lines_.texts.empty());
  EXPECT_EQ(standin::LogLines().back().text, "Add SymbolList");
  const std::string place = standin::LogStorage();
  EXPECT_NE(place.find("\\Log|tqSymbol|TQ"), std::string::npos) << place;
}

// The logging library lets the terminal handle a message while it writes or opens.
TEST_F(LogTargetTest, TheTerminalMayChooseAnotherTargetFromWithinTheLogger) {
  StartWith({});
  for (const char* service : {"TQLog::write", "TQLog::storage"}) {
    standin::OnCall(service, [this] { Hear(); });
    CTQSymbolListMgr::SetLog(nullptr, 0, nullptr, nullptr);
    manager.AddSymbolList("", 0, "A", "2330.TW", 1, 0);
    standin::OnCall(service, {});
    EXPECT_EQ(standin::LoggersAlive(), 0) << service;
    lines_.texts.clear();
    manager.AddSymbolList("", 0, "A", "2330.TW", 1, 0);
    EXPECT_EQ(lines_.texts.size(), 1u) << service;
  }
}

TEST_F(LogTargetTest, TheTerminalMayChooseAnotherFileFromWithinTheLogger) {
  StartWith({});
  ASSERT_EQ(CTQSymbolListMgr::SetLog(nullptr, 0, nullptr, nullptr), 1);
  const std::string logs = directory.Joined("Logs");
  standin::OnCall("TQLog::write",
                  [&] { CTQSymbolListMgr::SetLog(logs.c_str(), 0, nullptr, nullptr); });
  manager.AddSymbolList("a", 0, "A", "2330.TW", 1, 0);
  standin::OnCall("TQLog::write", {});
  EXPECT_EQ(standin::LogStorage(), logs + "|tqSymbol|TQ");
  EXPECT_EQ(standin::LoggersAlive(), 1);
}

TEST_F(LogTargetTest, TheCallbackMayCallTheLibrary) {
  StartWith({"a/A/2330.TW"});
  lines_.called = &manager;
  ASSERT_EQ(Hear(), 1);
  EXPECT_EQ(manager.AddSymbolList("b", 0, "B", "2330.TW", 1, 0), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 2);
}

} // namespace
