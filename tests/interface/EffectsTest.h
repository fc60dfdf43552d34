// What an operation writes, logs and tells, as one text.
#pragma once

#include <string>
#include <vector>

#include "platform/framework/CMapStringToString.h"
#include "terminal/StandIn.h"
#include "tests/interface/GroupsTest.h"

// The initial state: user lists a and b, the six system lists, a cloud list PICK that is also a
// group of type 201, and the trading system T1 with account 9801, logged in.
class Effects : public GroupsTest {
protected:
  Effects() {
    standin::Market market = GroupMarket();
    market.tradingSystems = {
        {"T1", "甲證券", "甲证券", true, {{1, "9801", "9801-*", "2330.TW,2317.TW"}}}};
    standin::SetMarket(market);
    WriteWorking(Document("<List ID='a' Name='A' Value='2330.TW,2317.TW'/>"
                          "<List ID='b' Name='B' Value='2454.TW'/>"));
    CStringArray names;
    names.Add("S1");
    EXPECT_EQ(manager.Init(directory.Path().c_str(), 0, 1, 1, &names, 0, 1), 1);
    manager.UpdateTSLogin("T1");
    manager.SetCloudeList("PICK", "P", "2330.TW");
    for (const char* file : kFiles)
      directory.Write(file, Marked(file));
    told_ = standin::Notifications().size();
    logged_ = standin::LogLines().size();
  }

  // Files, lines and notifications since the start: "SymbolList.xml
  // 64 Add SymbolList
  // 40 ".
  std::string Seen() const {
    std::string files;
    for (const char* file : kFiles) {
      if (directory.Read(file) != Marked(file))
        files += (files.empty() ? "" : ", ") + std::string(file);
    }
    std::string lines;
    for (size_t i = logged_; i < standin::LogLines().size(); ++i) {
      const standin::LogLine& line = standin::LogLines()[i];
      if (TellsOfMark(line.text))
        continue;
      lines += (lines.empty() ? "" : ", ") + std::to_string(line.level) + " " +
               standin::FromAnsi(line.text);
    }
    std::string told;
    for (size_t i = told_; i < standin::Notifications().size(); ++i) {
      const standin::Notification& note = standin::Notifications()[i];
      EXPECT_EQ(note.target, "");
      EXPECT_EQ(note.reserved, -1);
      told += (told.empty() ? "" : ", ") + std::to_string(note.code) + " '" + note.reason + "'";
    }
    return files + " | " + lines + " | " + told;
  }

  static std::string Document(const std::string& lists) {
    return "<Result><SymbolList DefaultIdx='0'>" + lists + "</SymbolList></Result>";
  }
  static CSymbolList List(const char* id) {
    CSymbolList list;
    list.SetID(id);
    list.SetName(id);
    list.Update1("2330.TW");
    return list;
  }

private:
  static constexpr const char* kFiles[] = {"SymbolList.xml", "SymbolList_Backup.xml", "TSList.xml"};

  // A document that the library reads but would write differently.
  static std::string Marked(const std::string& file) {
    return Document("<List ID='" + file + "' Name='N' Value='2330.TW'/>") + "\n";
  }

  // The file now counts as written by another program, so a save keeps a copy first. The line about
  // the copy is not the operation's own.
  static bool TellsOfMark(const std::string& line) {
    return line.starts_with("List file ") && line.find(" is kept as ") != std::string::npos;
  }

  size_t told_ = 0;
  size_t logged_ = 0;
};

// What there is to see of an operation without effects.
inline constexpr char kNothing[] = " |  | ";
