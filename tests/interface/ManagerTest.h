// A manager on a directory of its own and the stand-in's small market.
#pragma once

#include <string>

#include "manager/TQSymbolListMgr.h"
#include "platform/services/tqCommon.h"
#include "tests/support/StandInTest.h"
#include "tests/support/TempDir.h"

class ManagerTest : public StandInTest {
protected:
  int StartWithoutTables() {
    return manager.Init(directory.Path().c_str(), 0, 0, 0, nullptr, 0, 0);
  }
  int StartWithTables() { return manager.Init(directory.Path().c_str(), 0, 1, 0, nullptr, 0, 0); }

  void WriteWorking(const std::string& bytes) { directory.Write("SymbolList.xml", bytes); }
  void WriteBackup(const std::string& bytes) { directory.Write("SymbolList_Backup.xml", bytes); }
  std::string ReadWorking() { return directory.Read("SymbolList.xml"); }
  std::string ReadBackup() { return directory.Read("SymbolList_Backup.xml"); }

  TempDir directory;
  CTQSymbolListMgr manager;
};
