// The files of earlier days.
#include "symbollist/file/FileHistory.h"

#include <string>
#include <vector>

#include "platform/FileAccess.h"
#include "platform/Log.h"
#include "platform/System.h"
#include "symbollist/UserLists.h"
#include "terminal/StandIn.h"
#include "tests/support/StandInTest.h"
#include "tests/support/TempDir.h"

namespace {

using FileNames = std::vector<std::string>;

int g_today = 0;

int Today() {
  return g_today;
}

// The system's files, of which one path cannot be saved.
class OnePathRefused : public tq::FileAccessWrapper {
public:
  explicit OnePathRefused(const std::string& path)
      : FileAccessWrapper(tq::Files()), path_(path), before_(tq::SetFiles(this)) {}
  ~OnePathRefused() override { tq::SetFiles(before_); }
  OnePathRefused(const OnePathRefused&) = delete;
  OnePathRefused& operator=(const OnePathRefused&) = delete;

  tq::SaveResult SaveWholeFile(const char* path, const void* bytes, std::size_t size) override {
    return path == path_ ? tq::SaveResult::Failed
                         : FileAccessWrapper::SaveWholeFile(path, bytes, size);
  }

private:
  const std::string path_;
  tq::FileAccess* before_;
};

class FileHistoryTest : public StandInTest {
protected:
  // Lines are looked at here, and a log once opened stays for the process.
  static void SetUpTestSuite() { tq::OpenLog(); }
  FileHistoryTest() : lists([](CString&) { return false; }), clock_(tq::SetClock(&Today)) {
    g_today = 20260131;
    lists.SetDirectory(directory.Path().c_str());
    lists.CreateMissingFile();
    lists.Load();
  }
  ~FileHistoryTest() override { tq::SetClock(clock_); }

  void Add(const char* name) { ASSERT_EQ(lists.Add(name, name, "2330.TW", true, false), 1); }
  void AddOn(int day, const char* name) {
    g_today = day;
    Add(name);
  }
  std::string Working() const { return directory.Read("SymbolList.xml"); }
  std::string Of(const char* day) const {
    return directory.Read(std::string("SymbolList_") + day + ".xml");
  }
  std::string Days() const {
    CStringArray days;
    std::string text;
    const int count = lists.GetHistory(days);
    EXPECT_EQ(count, days.GetSize());
    for (int i = 0; i < days.GetSize(); ++i)
      text += (i > 0 ? " " : "") + std::string(days[i].GetString());
    return text;
  }
  static std::size_t LinesAbout(const char* what) {
    std::size_t count = 0;
    for (const auto& line : standin::LogLines())
      count += line.text.find(what) != std::string::npos ? 1u : 0u;
    return count;
  }

  TempDir directory;
  tq::UserLists lists;

private:
  tq::ClockSource clock_;
};

TEST_F(FileHistoryTest, IsOffUntilItIsAskedFor) {
  Add("a");
  AddOn(20260201, "b");
  EXPECT_EQ(directory.Names(), FileNames{"SymbolList.xml"});
  EXPECT_EQ(Days(), "");
}

TEST_F(FileHistoryTest, TheFirstSaveOfADayKeepsTheFileOfBefore) {
  Add("a");
  const std::string first = Working();
  lists.SetHistory(7);
  AddOn(20260201, "b");
  EXPECT_EQ(Of("20260201"), first);
  Add("c");
  EXPECT_EQ(Of("20260201"), first) << "only the first save of the day counts";
  const std::string second = Working();
  AddOn(20260202, "d");
  EXPECT_EQ(Of("20260202"), second);
  EXPECT_EQ(Days(), "20260202 20260201");
  EXPECT_EQ(LinesAbout("could not be kept"), 0u);
}

TEST_F(FileHistoryTest, ADayThatAnEarlierStartKeptStaysAsItIs) {
  Add("a");
  lists.SetHistory(7);
  directory.Write("SymbolList_20260131.xml", "of the morning");
  Add("b");
  EXPECT_EQ(Of("20260131"), "of the morning");
}

TEST_F(FileHistoryTest, AFileWithoutListsIsNotKept) {
  lists.SetHistory(7);
  Add("a");
  Add("b");
  EXPECT_EQ(Days(), "") << "the day began without lists";
}

TEST_F(FileHistoryTest, AFileThatWasNeverReadIsKeptToo) {
  lists.SetHistory(7);
  directory.Write("SymbolList.xml", "damaged");
  Add("a");
  EXPECT_EQ(Of("20260131"), "damaged");
  EXPECT_EQ(directory.Read("SymbolList_Kept.xml"), "damaged");
}

TEST_F(FileHistoryTest, TheLastDaysStayAndTheOldestGo) {
  Add("a");
  lists.SetHistory(3);
  for (int day = 20260201; day <= 20260206; ++day)
    AddOn(day, std::to_string(day).c_str());
  EXPECT_EQ(Days(), "20260206 20260205 20260204");
  lists.SetHistory(1);
  AddOn(20260207, "z");
  EXPECT_EQ(Days(), "20260207");
}

TEST_F(FileHistoryTest, OtherFilesStay) {
  const FileNames others = {"SymbolList_2026013.xml",   "SymbolList_20261301.xml",
                            "SymbolList_20260100.xml",  "SymbolList_20260101.xml.bak",
                            "SymbolList_Kept.xml",      "XSymbolList_20250101.xml",
                            "SymbolList_20250101-2.xml"};
  for (const std::string& name : others)
    directory.Write(name, "theirs");
  directory.MakeDirectory("SymbolList_20250101.xml");
  Add("a");
  lists.SetHistory(1);
  AddOn(20260201, "b");
  AddOn(20260202, "c");
  EXPECT_EQ(Days(), "20260202");
  for (const std::string& name : others)
    EXPECT_EQ(directory.Read(name), "theirs") << name;
  EXPECT_TRUE(directory.Exists("SymbolList_20250101.xml"));
}

TEST_F(FileHistoryTest, TurnedOffItKeepsAndDeletesNothing) {
  Add("a");
  lists.SetHistory(2);
  AddOn(20260201, "b");
  lists.SetHistory(0);
  AddOn(20260202, "c");
  lists.SetHistory(-1);
  AddOn(20260203, "d");
  EXPECT_EQ(Days(), "20260201");
}

TEST_F(FileHistoryTest, WhatCannotBeKeptDoesNotHoldUpTheSave) {
  Add("a");
  const std::string before = Working();
  lists.SetHistory(7);
  {
    const OnePathRefused files(directory.Joined("SymbolList_20260131.xml"));
    Add("b");
    EXPECT_NE(Working().find("'b'"), std::string::npos);
    EXPECT_EQ(Days(), "");
    EXPECT_EQ(LinesAbout("could not be kept as"), 1u);
  }
  const std::string second = Working();
  Add("c");
  EXPECT_EQ(Of("20260131"), second) << "the next save tries again";
  EXPECT_TRUE(standin::Messages().empty());
}

TEST_F(FileHistoryTest, ADirectoryInThePlaceOfTheFileIsReportedAndLeft) {
  Add("a");
  lists.SetHistory(7);
  directory.MakeDirectory("SymbolList_20260131.xml");
  Add("b");
  EXPECT_EQ(LinesAbout("could not be kept as"), 1u);
  EXPECT_NE(Working().find("'b'"), std::string::npos);
}

TEST_F(FileHistoryTest, TheBackupAndOtherPathsHaveNoHistory) {
  Add("a");
  lists.SetHistory(7);
  g_today = 20260201;
  EXPECT_EQ(lists.Backup(), 1);
  EXPECT_EQ(lists.SaveTo(directory.Joined("Other.xml").c_str()), 1);
  EXPECT_EQ(lists.SaveTo(directory.Joined("Other.xml").c_str()), 1);
  EXPECT_EQ(Days(), "");
}

TEST_F(FileHistoryTest, ADayIsRestoredAsTheBackupIs) {
  Add("a");
  lists.SetHistory(7);
  AddOn(20260201, "b");
  const std::string now = Working();
  EXPECT_EQ(lists.RestoreHistory("20260201"), 1);
  ASSERT_EQ(lists.Lists().GetSize(), 1);
  EXPECT_STREQ(lists.Lists().At(0)->GetName(), "a");
  EXPECT_EQ(Working(), now) << "nothing is written";
  EXPECT_EQ(lists.ReportOf(TQListFileWorking).state, TQLoadEmpty) << "of the start";
}

TEST_F(FileHistoryTest, ADayThatIsNotThereChangesNothing) {
  Add("a");
  for (const char* day : {"20260130", "", "2026013", "yesterday", "20261301", "../../../x"}) {
    EXPECT_EQ(lists.RestoreHistory(day), 0) << day;
    EXPECT_EQ(lists.Lists().GetSize(), 1) << day;
  }
}

TEST_F(FileHistoryTest, AnotherDirectoryHasAHistoryOfItsOwn) {
  Add("a");
  lists.SetHistory(7);
  AddOn(20260201, "b");
  TempDir other;
  other.Write("SymbolList.xml", Working());
  lists.SetDirectory(other.Path().c_str());
  lists.Load();
  EXPECT_EQ(Days(), "");
  Add("c");
  EXPECT_TRUE(other.Exists("SymbolList_20260201.xml"));
}

} // namespace
