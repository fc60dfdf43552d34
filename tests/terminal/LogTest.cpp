// The stand-in TQLog.
#include "platform/services/TQLog.h"

#include <memory>

#include "tests/support/StandInTest.h"
#include "tests/support/TempDir.h"

namespace {

class Log : public StandInTest {
protected:
  int Open(const std::string& directory, bool daily = false) {
    return logger->storage(directory.c_str(), "base", "TQ", daily, true);
  }

  const TempDir temp; // outlives the logger, which keeps its file open
  std::unique_ptr<TQLog> logger = std::make_unique<TQLog>();
};

TEST_F(Log, WritesLinesToAFileOfADirectoryThatItCreates) {
  ASSERT_NE(Open(temp.Joined("Log")), 0);
  EXPECT_TRUE(TempDir::IsDirectory(temp.Native("Log")));
  EXPECT_NE((*logger)(64).write("Add %s, %d", "SymbolList", 7), 0);
  EXPECT_NE((*logger)(256).write("100%%"), 0);
  logger.reset();
  const std::string text = temp.Read("Log/base.log");
  const std::size_t end = text.find('\n');
  ASSERT_NE(end, std::string::npos);
  EXPECT_EQ(text.substr(0, 3), "TQ ");
  EXPECT_EQ(text.substr(11, end - 11), " [64] Add SymbolList, 7");
  EXPECT_EQ(text.substr(text.size() - 12), " [256] 100%\n");
}

TEST_F(Log, KeepsItsLinesForTheTest) {
  ASSERT_NE(Open(temp.Path()), 0);
  const std::string longText(5000, 'x');
  (*logger)(64).write("%s", longText.c_str());
  ASSERT_EQ(standin::LogLines().size(), 1u);
  EXPECT_EQ(standin::LogLines()[0].level, 64);
  EXPECT_EQ(standin::LogLines()[0].text, longText);
  EXPECT_EQ(standin::LogStorage(), temp.Path() + "|base|TQ");
}

TEST_F(Log, AppendsToWhatIsThere) {
  temp.Write("base.log", "before\n");
  ASSERT_NE(Open(temp.Path()), 0);
  (*logger)(1).write("after");
  logger.reset();
  EXPECT_EQ(temp.Read("base.log").substr(0, 10), "before\nTQ ");
}

TEST_F(Log, ADailyLogCarriesTheDayInItsName) {
  ASSERT_NE(Open(temp.Path(), true), 0);
  ASSERT_EQ(temp.Names().size(), 1u);
  const std::string name = temp.Names()[0];
  ASSERT_EQ(name.size(), std::string("base_20261231.log").size());
  EXPECT_EQ(name.substr(0, 7), "base_20");
  EXPECT_EQ(name.substr(13), ".log");
}

TEST_F(Log, GoesToADirectoryThatEndsInADoubleByteBackslash) {
  const TempDir odd("許功蓋");
  ASSERT_NE(Open(odd.Path()), 0);
  EXPECT_TRUE(odd.Exists("base.log"));
  ASSERT_NE(Open(odd.Joined("Log")), 0);
  EXPECT_TRUE(TempDir::IsDirectory(odd.Native("Log")));
  logger.reset();
}

TEST_F(Log, DropsLinesWithoutAStorage) {
  EXPECT_EQ((*logger)(64).write("lost"), 0);
  EXPECT_EQ(Open(temp.Native("no") + "/such/directory"), 0);
  EXPECT_EQ((*logger)(64).write("lost"), 0);
  EXPECT_EQ(logger->storage(nullptr, "base", "TQ", false, false), 0);
  EXPECT_TRUE(standin::LogLines().empty());
}

TEST_F(Log, CanBeMadeToFail) {
  standin::FailCall("TQLog::storage", 1);
  EXPECT_EQ(Open(temp.Path()), 0);
  ASSERT_NE(Open(temp.Path()), 0);
  standin::FailCall("TQLog::write", 1);
  EXPECT_EQ((*logger)(64).write("lost"), 0);
  EXPECT_NE((*logger)(64).write("kept"), 0);
  ASSERT_EQ(standin::LogLines().size(), 1u);
}

TEST_F(Log, LoggersAreCountedWhileTheyLive) {
  const int before = standin::LoggersAlive();
  {
    const TQLog another;
    EXPECT_EQ(standin::LoggersAlive(), before + 1);
  }
  EXPECT_EQ(standin::LoggersAlive(), before);
}

} // namespace
