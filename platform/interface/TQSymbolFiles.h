// What a terminal asks of the files of the user's lists: what their loads came to, and what a
// repair brought back.
#pragma once

// The files that CTQSymbolListMgr::GetLoadState knows of.
enum TQListFile : int {
  TQListFileWorking = 0, // "\SymbolList.xml"
  TQListFileBackup = 1,  // "\SymbolList_Backup.xml"
};

// What the latest load of a list file came to. Do not change the numbers.
enum TQLoadState : int {
  TQLoadNever = 0,      // not loaded since the last start, or there is no such file to be named
  TQLoadWhole = 1,      // all of its lists were loaded
  TQLoadEmpty = 2,      // a list file without any list
  TQLoadMissing = 3,    // there was no such file
  TQLoadDamaged = 4,    // no list file, or a broken one: lists of it were not loaded
  TQLoadUnreadable = 5, // the system did not let it be read, or it was too large
};

// How many lists a repair found.
struct TQRepairCounts {
  int whole = 0;  // as they were stored
  int mended = 0; // in memory too, but a name, an identifier or symbols were damaged
  int lost = 0;   // could not be brought back
};
