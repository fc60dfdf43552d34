// A manager whose lists and cloud lists have working copies to be committed, and the effects as
// text.
#pragma once

#include "dialogs/EditCommits.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "platform/FileAccess.h"
#include "tests/interface/EditTest.h"
#include "tests/support/GroupMarket.h"

inline constexpr int kUserLists = 1;
inline constexpr int kCloudLists = 8;
inline constexpr char kChanged[] = " \xA7\xF3\xB0\xCA SymbolList!!";

// Counts saves, notes how many notifications came before each, and fails on request.
class NotedSaves : public tq::FileAccessWrapper {
public:
  NotedSaves() : FileAccessWrapper(tq::Files()), before_(tq::SetFiles(this)) {}
  ~NotedSaves() override { tq::SetFiles(before_); }
  tq::SaveResult SaveWholeFile(const char* path, const void* bytes, std::size_t size) override {
    ++saves;
    notifiedAtSave = standin::Notifications().size();
    return fail ? tq::SaveResult::Failed : FileAccessWrapper::SaveWholeFile(path, bytes, size);
  }

  int saves = 0;
  std::size_t notifiedAtSave = 0;
  bool fail = false;

private:
  tq::FileAccess* before_;
};

class EditCommits : public EditTest {
protected:
  EditCommits() { standin::SetMarket(GroupMarket()); }

  void Start() {
    StartWith({"A/one/2330.TW", "B/two/2317.TW", "C/three/1101.TW,2454.TW"});
    Mark();
  }
  void StartCloud() {
    StartWith({"A/mine/2330.TW"});
    manager.AddCloudSymbolList("VORNG0101", "one", "2330.TW", 0);
    manager.AddCloudSymbolList("PICK", "two", "2317.TW", 0);
    Mark();
  }
  void Mark() {
    told_ = standin::Notifications().size();
    logged_ = standin::LogLines().size();
    files.saves = 0;
  }

  // All effects since Mark: "saves 1; told 40:ListCntChange; log <line>". Leaves out lines of other
  // levels and lines about groups.
  std::string Happened() {
    std::string text = "saves " + std::to_string(files.saves);
    for (std::size_t i = told_; i < standin::Notifications().size(); ++i)
      text += "; told " + std::to_string(standin::Notifications()[i].code) + ":" +
              standin::Notifications()[i].reason;
    for (std::size_t i = logged_; i < standin::LogLines().size(); ++i) {
      const standin::LogLine& line = standin::LogLines()[i];
      if (line.level == 64 && line.text.rfind("Do", 0) == 0)
        text += "; log " + line.text;
    }
    return text;
  }
  static void Rename(tq::WorkingCopy& copy, int index, const char* name) {
    copy.At(index).SetName(name);
  }
  static void Remove(tq::WorkingCopy& copy, int index) {
    copy.All().erase(copy.All().begin() + index);
  }
  std::string CloudShape() {
    std::string shape;
    for (int i = 0; i < manager.GetSymbolListCount(kCloudLists); ++i) {
      CString id;
      CString name;
      CString symbols;
      manager.GetSymbolListInfo(i, id, name, symbols, kCloudLists);
      shape += (i > 0 ? "|" : "") + std::string(id) + "/" + std::string(name) + "/" +
               std::string(symbols);
    }
    return shape;
  }

  NotedSaves files;

private:
  std::size_t told_ = 0;
  std::size_t logged_ = 0;
};

inline const std::string kOne = "saves 1; told 40:";
