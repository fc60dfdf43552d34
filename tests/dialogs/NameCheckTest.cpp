// Names that a list can bear, and what the user is told of the others.
#include "dialogs/editors/NameCheck.h"

#include <gtest/gtest.h>

#include "platform/LibraryString.h"
#include "tests/support/StandInTest.h"

namespace {

using tq::NameCheck;

class NameCheckTest : public StandInTest {
protected:
  static CString Ansi(const std::string& utf8) { return standin::ToAnsi(utf8).c_str(); }
  // The string-table entries, or texts, that were shown; "-" for none.
  static std::string Shown() {
    std::string shown;
    for (const standin::Message& message : standin::Messages())
      shown += message.id != 0 ? std::to_string(message.id) : standin::FromAnsi(message.text);
    return shown.empty() ? "-" : shown;
  }
  static std::string Mark() {
    return standin::FromAnsi(tq::LibraryString(tq::kStringSystemList).GetString());
  }
};

TEST_F(NameCheckTest, ANameOfBlanksIsNone) {
  EXPECT_FALSE(NameCheck(CWnd(), " \t").IsGiven());
  EXPECT_EQ(Shown(), "48001");
}

TEST_F(NameCheckTest, ANameThatIsTakenIsRefused) {
  const auto isTaken = [](const CString& name) { return name == "A"; };
  EXPECT_TRUE(NameCheck(CWnd(), "a").IsFree(isTaken));
  EXPECT_EQ(Shown(), "-");
  EXPECT_FALSE(NameCheck(CWnd(), "A").IsFree(isTaken));
  EXPECT_EQ(Shown(), "48011");
}

TEST_F(NameCheckTest, TheTerminalJudgesNamesOfFilesAndSaysSoItself) {
  const CString good = "good";
  EXPECT_TRUE(NameCheck(CWnd(), good).IsFileName());
  const CString bad = "a/b";
  EXPECT_FALSE(NameCheck(CWnd(), bad).IsFileName());
  EXPECT_EQ(standin::Messages().size(), 1u);
  EXPECT_EQ(standin::Calls().back().arguments, "a/b,1");
}

TEST_F(NameCheckTest, TheMarkOfASystemListIsRefusedWhereverItStands) {
  for (const std::string& name : {Mark(), "a" + Mark(), "中" + Mark() + "文", Mark() + "z"}) {
    const CString text = Ansi(name);
    EXPECT_FALSE(NameCheck(CWnd(), text).IsUnreserved()) << name;
  }
  EXPECT_EQ(standin::Messages().size(), 4u);
  EXPECT_EQ(standin::Messages()[0].id, 0u);
  EXPECT_EQ(standin::Messages()[0].type, 0u);
  EXPECT_EQ(standin::FromAnsi(standin::Messages()[0].text).rfind(Mark() + " 此字串", 0), 0u);
}

TEST_F(NameCheckTest, ANameWithoutTheWholeMarkIsFine) {
  for (const char* name : {"系統", "(系統", "系统)", "( 系統)", "(sys)"}) {
    const CString text = Ansi(name);
    EXPECT_TRUE(NameCheck(CWnd(), text).IsUnreserved()) << name;
  }
  EXPECT_EQ(Shown(), "-");
}

// Symptom: a list file with such a name loses every list at the next load.
TEST_F(NameCheckTest, WhatTheListFileCannotCarryIsRefused) {
  for (const char* name : {"it's", "a&b", "<a", "half \xA4", "\x01"}) {
    const CString text = name;
    EXPECT_FALSE(NameCheck(CWnd(), text).CanBeLoaded()) << name;
    EXPECT_EQ(standin::Messages().back().id, 48203u);
  }
  const CString text = Ansi("許功蓋 \"x\" > y");
  EXPECT_TRUE(NameCheck(CWnd(), text).CanBeLoaded());
}

TEST_F(NameCheckTest, ASilentCheckShowsNothing) {
  const CString names[] = {"", "A", "a/b", Ansi(Mark()), "it's"};
  const auto silent = NameCheck::Voice::Silent;
  EXPECT_FALSE(NameCheck(CWnd(), names[0], silent).IsGiven());
  EXPECT_FALSE(NameCheck(CWnd(), names[1], silent).IsFree([](const CString&) { return true; }));
  EXPECT_FALSE(NameCheck(CWnd(), names[2], silent).IsFileName());
  EXPECT_FALSE(NameCheck(CWnd(), names[3], silent).IsUnreserved());
  EXPECT_FALSE(NameCheck(CWnd(), names[4], silent).CanBeLoaded());
  EXPECT_EQ(Shown(), "-");
}

} // namespace
