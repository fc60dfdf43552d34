// The user's watch lists: the lists in memory, which of them is shown first, and the list file.
//
// Operations are those of CTQSymbolListMgr with the same effects on the file, the log and the
// terminal; manager/TQSymbolListMgr.h says for each what it takes and returns. The symbol-data
// service, the log and TQSCall may let the terminal call any of them from within another one.
#pragma once

#include <memory>
#include <utility>

#include "platform/diagnostics/Operation.h"
#include "platform/framework/CMapStringToString.h"
#include "platform/framework/CPtrArray.h"
#include "platform/framework/CString.h"
#include "platform/framework/CStringArray.h"
#include "platform/interface/TQSymbolFiles.h"
#include "symbollist/OwnedLists.h"
#include "symbollist/SymbolChanges.h"
#include "symbollist/file/FileHistory.h"
#include "symbollist/file/KeptFiles.h"
#include "symbollist/file/LoadReport.h"

namespace tq {

// That there is no list with that identifier. Returns 0.
inline int NoteNoList(const CString& id) {
  return NoteProblem(TQProblemNoList, "there is no list '%s'", id.GetString());
}

// That there is no data directory, or an empty path. Returns 0.
inline int NoteNoFile() {
  return NoteProblem(TQProblemNoFile, "there is no data directory, or the path is empty");
}

class UserLists {
public:
  // No lists, default index 0, no data directory, system lists not wanted.
  explicit UserLists(RenameMoved rename) : rename_(std::move(rename)) {}

  const OwnedLists& Lists() const { return lists_; }
  CSymbolList* Find(const char* id) const { return lists_.Find(id); }
  // The list shown first, as an index that nothing holds within the lists; negative for none.
  int DefaultIndex() const { return defaultIndex_; }
  void SetDefaultIndex(int index) { defaultIndex_ = index; }
  bool HasDefault() const { return defaultIndex_ >= 0 && !lists_.IsEmpty(); }
  void Clear() { lists_.Destroy(); }

  // --- The list file -----------------------------------------------------------------------------

  const CString& Directory() const { return directory_; }
  // What earlier loads came to is forgotten with another directory.
  void SetDirectory(const CString& directory);
  // Joined as it stands: the directory carries no trailing backslash. Empty without a directory,
  // for the bare name would be a file in the root of the drive.
  CString PathOf(const char* name) const;

  // Begins anew: no lists, and no file of which they could be.
  void Reset();
  // Writes an empty list file where the directory has none.
  void CreateMissingFile();
  int Load();
  // Whether a save would change what the list file holds.
  bool HasUnsavedChanges() const;
  int Save();
  int Backup();
  int Restore();
  int SaveEmpty();
  int SaveTo(const CString& path);
  int LoadFrom(const CString& path);
  // What the latest load of a file came to.
  const LoadReport& ReportOf(TQListFile file) const { return reports_[file]; }
  int Repair(TQRepairCounts& counts);

  void SetHistory(int days) { history_.SetDays(days); }
  // The days that can be restored, the latest first.
  int GetHistory(CStringArray& days) const;
  int RestoreHistory(const CString& day);

  // Load, then the system lists that the file lacks, where Init was told so.
  void LoadWithSystemLists();

  // --- Whole lists -------------------------------------------------------------------------------

  int Add(const CString& id, const CString& name, const CString& symbols, bool append,
          bool overwrite);
  // Puts a new list in, which is not saved. Where the terminal added one of that id while the
  // symbols were resolved, that one gets the symbols.
  void Put(const CString& id, const CString& name, const CString& symbols, bool append);
  void PutCopy(CSymbolList& source, bool append);
  void Replace(const CPtrArray& lists);
  int Delete(const CString& id);
  int ReplaceIds(const CStringArray& oldIds, const CStringArray& newIds);
  // A name that no list has, as AdjustFileName finds it.
  CString FreeName(const CString& name) const;
  // After lists were added: without a default list the first one is it.
  void EnsureDefault() { defaultIndex_ = defaultIndex_ == -1 ? 0 : defaultIndex_; }

  int DeleteEntry(const CString& id, int entry);
  int SwapEntries(const CString& id, int first, int second);
  int ReplaceEntry(const CString& id, int entry, const CString& text);
  // Puts a text into a list as an entry of its own.
  int InsertEntry(const CString& id, int position, const CString& text, bool before, bool heading);

  // --- System lists ------------------------------------------------------------------------------

  // Whether loading another file adds them.
  void WantSystemLists(bool wanted) { systemListsWanted_ = wanted; }
  // Takes their names over and adds the lists that are missing. `names` may be null: then the names
  // stay.
  void StartSystemLists(const CStringArray* names);
  void AddSystemLists(const CStringArray* names);
  int UpdateSystemList(const CString& id, const CString& name, const CString& symbols,
                       int& nameChanged);
  int UpdateSystemList(int index, const CString& symbols, bool replace);
  void UpdateSystemLists(const CMapStringToString& symbols, const CMapStringToString* names);

private:
  // The index that a save writes.
  int SavedIndex() const { return defaultIndex_ < 0 && !lists_.IsEmpty() ? 0 : defaultIndex_; }
  SaveResult SaveText(const CString& path);
  // Writes a file, which is kept for the history first when it is the working file's turn.
  SaveResult Store(const CString& path, std::string bytes);
  // Loads what was read of a file, as ReadContents gives it.
  int LoadRead(const CString& path, ReadResult read, FileContents contents);
  void NoteLoad(const CString& path, const LoadReport& report);
  // Takes over what a repair recovers from a file. False when that is no list: nothing changes.
  bool TakeRecovered(const CString& path, TQRepairCounts& counts);
  void NoteUnloadable() const;
  void Insert(std::unique_ptr<CSymbolList> list, bool append);
  bool AddNew(const CString& id, const CString& name, const CString& symbols, bool append);

  RenameMoved rename_;
  OwnedLists lists_;
  int defaultIndex_ = 0;
  CString directory_;
  KeptFiles keptFiles_;
  FileHistory history_;
  LoadReport reports_[2]; // of the working file and of the backup, by TQListFile
  bool systemListsWanted_ = false;
  CStringArray systemListNames_;
};

} // namespace tq
