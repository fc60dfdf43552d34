// CTQSymbolListMgr: the user's watch lists. The terminal creates one, calls Init, and reads and edits
// lists through it from then on.
//
// Conventions that hold for all of it
//  1. Every call comes from the terminal's user-interface thread and is done when it returns. There are
//     no threads and no locks.
//  2. Results are int, non-zero for success and 0 for failure or not found, unless an operation says
//     otherwise. Nothing throws. A null text is taken as an empty one.
//  3. Text is in the process's ANSI code page, Big5 (950) or GB2312 (936). Symbol ids in one string are
//     joined by "," without blanks.
//  4. Lists are addressed by a kind (1: the user's lists, 6: lists from trading accounts, 8: cloud
//     lists; any other kind has none) and either by position from 0 or by identifier. Identifiers are
//     compared ignoring letter case.
//  5. The manager owns its lists and tables and frees them. What it hands out are copies, which belong
//     to the caller, unless an operation says otherwise.
//  6. The working list file is "\SymbolList.xml" in the data directory, its backup
//     "\SymbolList_Backup.xml" beside it. The directory is given without a trailing backslash; with an
//     empty one no file is read or written. A save leaves the old file or the new one, never a part.
#pragma once

#include "platform/framework/CPtrArray.h"
#include "platform/framework/CString.h"
#include "platform/framework/CStringArray.h"
#include "platform/services/VLProxy.h"
#include "symbollist/SymbolList.h"
#include "symbollist/TQSymbolListInfo.h"
#include "tqSymbolApi.h"

class CSymbolTableMgr;

class TQSYMBOL_API CTQSymbolListMgr {
public:
  // No lists, default index 0; no file is touched.
  CTQSymbolListMgr();
  // Frees everything; saves nothing.
  ~CTQSymbolListMgr();
  CTQSymbolListMgr(const CTQSymbolListMgr&) = delete;
  CTQSymbolListMgr& operator=(const CTQSymbolListMgr&) = delete;

  // Starts the library on a data directory; may be called again on a live manager, which then begins
  // anew.
  //   dataDirectory         where the list file is, without trailing backslash. A missing directory is
  //                         not created; in an existing one a missing list file is created, empty.
  //   bCN                   handed to the symbol-data service with every symbol search
  //   initSymbolTables      non-zero: build the symbol tables from the symbol-data service
  //   loadSystemLists       non-zero: system lists are wanted
  //   systemListNames       their names, or null; not kept
  //   useUserDefExch        non-zero: the default exchanges are the user's own
  //   loadTradingLists      non-zero: lists from trading accounts are wanted
  // Returns 0 when the tables were asked for and could not be built: then no file was touched and there
  // are no lists. A list file that cannot be read is no failure: the manager starts without lists.
  int Init(const char* dataDirectory, int bCN, int initSymbolTables, int loadSystemLists,
           CStringArray* systemListNames, int useUserDefExch, int loadTradingLists);

  // The tables that Init built, or null before it. The manager's; gone with the next Init.
  CSymbolTableMgr* GetSymbolTableMgr() const { return symbolTables_; }

  // --- The list file -----------------------------------------------------------------------------
  // Reads the working file. The lists in memory are destroyed first, so a file that cannot be read
  // leaves none. Always 1: judge a load by the lists that it made. Ids are resolved as they are read.
  int LoadSymbolList();
  // Writes the working file. A negative default index becomes 0 when there are lists. Returns 0, after
  // message 48026 to the user, when the file could not be written; file and lists are then unchanged.
  int SaveSymbolList();
  // The same with the backup file.
  int BackupSymbolList();
  // Reads the backup file as LoadSymbolList reads the working file, which is not rewritten (unless the
  // backup holds no list: then the working file is at once). A missing backup empties the manager.
  int RestorSymbolList();
  // Data directory and name of the backup file.
  CString GetBackSymbolListPath();
  // Writes the working file without any list, whatever is in memory. Results as SaveSymbolList.
  int CreateEmptySymbolListFile();
  // LoadSymbolList as a terminal asks for it after somebody else changed the file. Returns 1.
  int UpdateTQSymbolList();
  // Goes over to another data directory and loads its lists.
  void ReLoadList(const CString& dataDirectory);

  // --- The list shown first ----------------------------------------------------------------------
  // Stores the index without any check; -1 means none.
  void SetDefaultIndex(int index);
  // Writes the stored index to `out`, always. Returns 0 when it is negative or there are no lists, else
  // 1. An index beyond the last list counts as valid: callers bound it.
  int GetDefaultListIdx(int& out);

  // --- The lists in memory -----------------------------------------------------------------------
  // Destroys the lists of one kind: the user's, those of trading accounts, the cloud lists. No file is
  // touched and the default index stays.
  void ClearSymbolList();
  void ClearTSSymbolList();
  void ClearCloudSymbolList();
  // Puts a copy of `source` in as the first of the user's lists (`append` 0) or the last. The name is
  // not checked, duplicates included, and nothing is saved. Returns 0 when `source` is null.
  int AddTQSymbolList(CSymbolList* source, int append);

  // Number of lists of a kind.
  int GetSymbolListCount(int kind);
  // Fills `*out` with identifier and name of the list at `index`; 0 when there is none.
  int GetTQSymbolListInfo(int index, TQSymbolListInfo* out, int kind);
  // Sets `*out` to the first list of that kind with that identifier, or null. Not a copy: the list stays
  // the manager's and is good until lists are loaded, cleared or removed.
  int GetSymbolList(CString id, CSymbolList** out, int kind);

  // --- Switches ----------------------------------------------------------------------------------
  int GetbCN() const { return bCN_; }
  void SetbCN(int bCN) { bCN_ = bCN; }

private:
  friend class CXMLDOMParser;

  CPtrArray* ListsOf(int kind);
  void AdoptSymbolList(CSymbolList* list, int append);
  CString FilePath(const char* name) const;
  int DoSaveSymbolList(const CString& path);
  int DoLoadSymbolList(const CString& path);
  int BuildSymbolTables();

  CSymbolTableMgr* symbolTables_; // owned
  CPtrArray lists_;               // owned CSymbolList*, in display order
  CPtrArray tradingLists_;        // the same, kind 6
  CPtrArray cloudLists_;          // the same, kind 8
  int defaultIndex_;
  CString dataDirectory_;
  int systemListsWanted_;
  int tradingListsWanted_;
  int useUserDefExch_;
  int bCN_;
};
