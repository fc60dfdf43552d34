// No list is lost, whichever call of the file system fails during a start, a load or an edit.
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <map>
#include <string>

#include "tests/interface/EditTest.h"
#include "tests/platform/posix/FailingCalls.h"

namespace {

using tqtest::Fault;
using tqtest::Faults;

class FailingManager : public EditTest {
protected:
  static constexpr int kErrors[] = {EIO, EACCES};

  void WriteLists() { WriteWorking(File()); }
  static std::string File() {
    return "<?xml version='1.0' encoding='big5' ?>\n<Result>\n<SymbolList DefaultIdx='0'>\n"
           "\t<List ID='kept1' Name='kept1' Value='2330.TW' Flag='0'/>\n"
           "\t<List ID='kept2' Name='kept2' Value='2317.TW' Flag='0'/>\n"
           "</SymbolList>\n</Result>";
  }
  int Start() { return StartWithoutTables(); }
  int Add(const char* name) { return manager.AddSymbolList(name, 0, name, "1101.TW", 1, 0); }

  // Runs prepare() and, with each call that attacked() makes failing in turn, attacked(), then
  // check().
  template <typename Prepare, typename Attacked, typename Check>
  void ForEachFault(const Prepare& prepare, const Attacked& attacked, const Check& check) {
    prepare();
    std::map<std::string, int> calls;
    {
      const Faults counting({});
      attacked();
      calls = counting.Made();
    }
    EXPECT_GT(calls.size(), 1U);
    for (const auto& [call, count] : calls) {
      for (int turn = 1; turn <= count; ++turn) {
        for (const int error : kErrors) {
          SCOPED_TRACE(testing::Message() << call << " " << turn << " fails with " << error);
          prepare();
          {
            const Faults faults({Fault{call, turn, error}});
            attacked();
          }
          check();
        }
      }
    }
  }

  // Whether the list is in the working file or in one of the copies beside it.
  bool IsOnDisk(const std::string& name) {
    for (const std::string& file : directory.Names()) {
      if (file.find(".xml") != std::string::npos && file.find(".tmp") == std::string::npos &&
          directory.Read(file).find("Name='" + name + "'") != std::string::npos)
        return true;
    }
    return false;
  }
  void ExpectNothingLost() {
    EXPECT_TRUE(IsOnDisk("kept1"));
    EXPECT_TRUE(IsOnDisk("kept2"));
  }
  void ExpectAWholeFile() {
    const std::string file = ReadWorking();
    EXPECT_TRUE(file.ends_with("</Result>")) << file;
  }
};

TEST_F(FailingManager, AStartThatFailsAnywhereCostsNoListAtTheNextEdit) {
  ForEachFault([&] { WriteLists(); }, [&] { Start(); },
               [&] {
                 Add("new");
                 ExpectAWholeFile();
                 ExpectNothingLost();
               });
}

TEST_F(FailingManager, ALoadThatFailsAnywhereCostsNoListAtTheNextEdit) {
  ForEachFault(
      [&] {
        WriteLists();
        Start();
      },
      [&] { manager.LoadSymbolList(); },
      [&] {
        Add("new");
        ExpectAWholeFile();
        ExpectNothingLost();
      });
}

TEST_F(FailingManager, AnEditThatFailsToSaveAnywhereIsSavedByTheNext) {
  ForEachFault(
      [&] {
        WriteLists();
        Start();
      },
      [&] { Add("first"); },
      [&] {
        ExpectAWholeFile();
        ExpectNothingLost();
        Add("second");
        for (const char* name : {"kept1", "kept2", "first", "second"})
          EXPECT_NE(ReadWorking().find(std::string("Name='") + name), std::string::npos) << name;
      });
}

// A file that another program has written meanwhile is copied aside first; each call of that may
// fail.
TEST_F(FailingManager, ACopyThatFailsAnywhereCostsNoList) {
  ForEachFault(
      [&] {
        for (const std::string& name : directory.Names())
          std::remove(directory.Native(name).c_str());
        Start();
        WriteLists();
      },
      [&] { Add("first"); },
      [&] {
        ExpectAWholeFile();
        ExpectNothingLost();
        Add("second");
        ExpectNothingLost();
        EXPECT_TRUE(IsOnDisk("second"));
      });
}

TEST_F(FailingManager, ABackupThatFailsAnywhereLeavesTheOldOneOrTheNew) {
  ForEachFault(
      [&] {
        WriteLists();
        Start();
        WriteBackup(File());
      },
      [&] { manager.BackupSymbolList(); },
      [&] {
        EXPECT_TRUE(ReadBackup().ends_with("</Result>"));
        EXPECT_NE(ReadBackup().find("kept2"), std::string::npos);
        ExpectAWholeFile();
      });
}

TEST_F(FailingManager, AnImportThatFailsAnywhereLosesNeitherListsNorTheFile) {
  const std::string import = "<HaldeUserList><L><IDs>1101.TW</IDs></L></HaldeUserList>";
  ForEachFault(
      [&] {
        WriteLists();
        std::remove(directory.Native("Added_OldOTVList.xml").c_str());
        Start();
        directory.Write("OldOTVList.xml", import);
      },
      [&] { manager.LoadOtherProductList(); },
      [&] {
        ExpectAWholeFile();
        ExpectNothingLost();
        const std::string both =
            directory.Read("OldOTVList.xml") + directory.Read("Added_OldOTVList.xml");
        EXPECT_NE(both.find(import), std::string::npos);
      });
}

} // namespace
