// CTQSymbolListMgr: the user's watch lists. The terminal creates one, calls Init, and reads and
// edits lists through it from then on.
//
// Conventions that hold for all of it
//  1. Every call comes from the terminal's user-interface thread and is done when it returns. There
//     are no threads and no locks.
//  2. Results are int, non-zero for success and 0 for failure or not found, unless an operation
//     says otherwise. Nothing throws: without memory for a block that a file or a service makes
//     large an operation fails as its description says, without memory for anything else the
//     process is stopped (trust.md). A null text is taken as an empty one. An output may be
//     the object that an input is; when two outputs are one object, it gets the text of the last
//     one.
//  3. Text is in the process's ANSI code page, Big5 (950) or GB2312 (936). Symbol ids in one string
//     are joined by "," without blanks.
//  4. Lists are addressed by a kind (1: the user's lists, 6: lists from trading accounts, 8: cloud
//     lists; any other kind has none) and either by position from 0 or by identifier. Identifiers
//     are compared ignoring letter case. Kinds, and the other plain numbers of this header, have
//     names in TQSymbolNames.h.
//  5. The manager owns its lists and tables and frees them. What it hands out are copies, which
//     belong to the caller, unless an operation says otherwise. What is released, and by what
//     (delete, VLFree, FreeSymbolInfos), stands in ownership.md; TQSymbolOwned.h does it.
//  6. The user's lists come from the list file, groups from the symbol-data service, cloud lists
//     from the terminal, and lists from trading accounts from the trading-system proxy. A group is
//     addressed by type and id or by a handle, which is good until its type is loaded anew, removed
//     or cleared or the group itself is replaced or removed.
//  7. Bytes that cannot be read back from the list file (halves of double-byte characters, control
//     bytes) are removed from names and id strings, with a line in the log. An apostrophe, "&" and
//     "<" are kept although a file that contains one cannot be loaded: the terminal screens names
//     when the user enters them.
//  8. The working list file is "\SymbolList.xml" in the data directory, its backup
//     "\SymbolList_Backup.xml" beside it. The directory is given without a trailing backslash; with
//     an empty one no file is read or written. A save leaves the old file or the new one, never a
//     part.
//  9. Which operations save, write a line to the log and tell the terminal by TQSCall stands in one
//     table, notifications.md.
// 10. The spelling of some names is the interface's, as its callers have always had it (Symobl,
//     Hodling, Restor, Cloude, Domodal). They are marked, and are not mended.
// 11. Pages that are named here (trust.md) are those of the library's documentation.
//
// In this order: start; what went wrong, and the log; the list file; the list shown first; the
// lists in memory; editing whole lists, and the entries of one; checks; system lists; queries;
// default exchanges and the order of exchanges; lots, and symbols that change; groups; cloud lists;
// lists from trading accounts; lists of other products, extra information; dialogs; switches.
#pragma once

#include <memory>
#include <vector>

#include "groups/GroupSet.h"
#include "platform/framework/CMapStringToString.h"
#include "platform/framework/CPtrArray.h"
#include "platform/framework/CString.h"
#include "platform/framework/CStringArray.h"
#include "platform/framework/CUIntArray.h"
#include "platform/framework/window/WindowTypes.h"
#include "platform/interface/TQSymbolFiles.h"
#include "platform/interface/TQSymbolNames.h"
#include "platform/interface/TQSymbolOptions.h"
#include "platform/interface/TQSymbolProblem.h"
#include "platform/services/TQSProxy.h"
#include "platform/services/VLProxy.h"
#include "platform/services/tqStockFields.h"
#include "symbollist/SymbolList.h"
#include "symbollist/TQSymbolListInfo.h"
#include "tqSymbolApi.h"

class CListID;
class CSymbolTableMgr;
class CWnd;
namespace tq {
struct ManagerState;
}

// What is traded, as the terminal numbers it. Only the differences that the library makes are
// named.
enum JT_DEAL : int {
  JT_DEAL_STOCK = 0,  // stocks, listed or over the counter
  JT_DEAL_FUTURE = 1, // 1, 2, 3 and 6: futures and options
  JT_DEAL_OPTION = 2,
};

// What happened to symbols of an exchange, as the symbol-data service numbers it.
enum ExchSymbolUpdateType : int {
  ExchSymbolsAdded = 0, // cloud lists are told as well
};

class TQSYMBOL_API CTQSymbolListMgr {
public:
  // No lists, default index 0; no file is touched.
  CTQSymbolListMgr() noexcept;
  // Frees everything; saves nothing.
  ~CTQSymbolListMgr();
  CTQSymbolListMgr(const CTQSymbolListMgr&) = delete;
  CTQSymbolListMgr& operator=(const CTQSymbolListMgr&) = delete;

  // Starts the library on a data directory; may be called again on a live manager, which then
  // begins anew.
  //   dataDirectory         where the list file is, without trailing backslash. A missing
  //                         directory is not created; in an existing one a missing list file is
  //                         created, empty.
  //   bCN                   handed to the symbol-data service with every symbol search
  //   initSymbolTables      non-zero: build the symbol tables from the symbol-data service
  //   loadSystemLists       non-zero: system lists are wanted
  //   systemListNames       their names in order, or null; copied
  //   useUserDefExch        non-zero: the default exchanges are the user's own
  //   loadTradingLists      non-zero: lists from trading accounts are wanted. Lists of an earlier
  //                         start stay in any case; with 0 they do not change any more
  // Returns 0 when the tables were asked for and could not be built: then no file was touched and
  // there are no lists. A list file that cannot be read is not a failure: the manager starts
  // without lists. If the system cannot tell whether a list file exists, none is created.
  int Init(const char* dataDirectory, int bCN, int initSymbolTables, int loadSystemLists,
           CStringArray* systemListNames, int useUserDefExch, int loadTradingLists) noexcept;

  // The same with named options. Besides, returns 0 and changes nothing when the terminal was
  // compiled with headers of a later minor or of another major version than the library's.
  int Init(const TQInitOptions& options) noexcept;

  // The tables that Init built, or null before it. The manager's; gone with the next Init.
  CSymbolTableMgr* GetSymbolTableMgr() const noexcept;

  // --- What went wrong, and the log --------------------------------------------------------------
  // All of it is the process's, whatever the manager.

  // Why the latest operation failed, or what its user should know of it: a code, and a text for the
  // terminal's programmer that begins with the operation's name and names the step, and the path,
  // the list or the service that it failed at. TQProblemNone and an empty text when there was
  // nothing. Every operation below counts but for queries, checks and look-ups, which leave it as
  // it is. An operation may succeed and yet have a problem: a load, which always answers 1, of a
  // file that is damaged; a save that had to copy another program's lists aside first
  // (TQProblemFileShared). While an operation runs, those that the terminal calls from within it
  // have problems of their own.
  static TQProblem GetLastProblem(CString& text) noexcept;
  // 1 when a save would change what the list file holds: the latest change of the user's lists, or
  // of the default index, has not reached the disk, or another program has written other lists
  // there. Without a data directory 1 when there are lists. Writes nothing; makes the text of a
  // save to compare, and reads the file when another program has written it.
  int HasUnsavedChanges() const noexcept;
  // Where the lines of the library's log go, from now on and for the whole process; may be called
  // before the first Init.
  //   directory   where the file is, "tqSymbol_<yyyymmdd>.log", joined by backslashes and without
  //               one at the end; its last level is created when missing. Null or empty: "Log"
  //               beside the library
  //   level       a threshold, no bits: lines of lower levels are dropped; 0: all lines are written
  //   callback    takes each line in the place of the file, with `context`; null: the file
  // Texts are copied. Returns 0 when the file could not be opened: lines are dropped then.
  static int SetLog(const char* directory, int level, TQLogCallback callback,
                    void* context) noexcept;
  // Looks for mistakes from now on, and names each in the log (level 512; without a log on the
  // error stream), with operation and argument: calls on another thread than that of the first
  // call, texts that are not of the code page, handles of groups that are gone, arrays that are
  // released twice, records of services that break their headers' contracts. A call with a handle
  // or an array that is not good does nothing then. The environment variable TQSYMBOL_DEBUG, "log"
  // or "stop", sets it without a call when the first manager is made. Off, a call looks at one
  // variable for it, and that is all.
  static void SetDebugMode(TQDebugMode mode) noexcept;

  // --- The list file -----------------------------------------------------------------------------
  // A save never destroys lists that were not loaded. Unless the file on the disk is exactly what
  // this manager has read whole or written itself (its load may have failed or ended early, Init
  // may have failed at the tables, another program may have written it since), or if it contains
  // what cannot be written back, its bytes are first copied beside it: to "\SymbolList_Kept.xml",
  // then "\SymbolList_Kept1.xml" to "\SymbolList_Kept9.xml", then over the oldest copy; the backup
  // file to "\SymbolList_Backup_Kept.xml" and so on. A line of level 64 in the log says why. A
  // missing file, one without lists, and bytes that have a copy already are not copied. When the
  // copy fails, the save fails.

  // Replaces the lists in memory by those of the working file; after a file that cannot be read
  // there are none. Always 1: look at the lists to see what was loaded. Ids are resolved as they
  // are read; re-entrant calls from the service still see all of the previous lists.
  int LoadSymbolList() noexcept;
  // Writes the working file. A negative default index becomes 0 when there are lists. Returns 0,
  // after message 48026 to the user, when the file could not be written, a copy of it could not be
  // made, or the lists are too large to be loaded again (64 MiB as text) or for the memory; file
  // and lists are then unchanged.
  int SaveSymbolList() noexcept;
  // The same with the backup file.
  int BackupSymbolList() noexcept;
  // (The spelling is the interface's.)
  // As LoadSymbolList, but from the backup file. The working file is not written, unless the backup
  // contains no list: then it is written at once, empty. A missing backup leaves no lists.
  int RestorSymbolList() noexcept;
  // Data directory and name of the backup file, joined with a backslash. TQSystemPath
  // (TQSymbolText.h) makes of it what the system's own functions open.
  CString GetBackSymbolListPath() noexcept;
  // Writes the working file without any list, whatever is in memory. Results as SaveSymbolList.
  int CreateEmptySymbolListFile() noexcept;
  // Writes the lists and the default index to any file, with the results of SaveSymbolList. `path`
  // is a directory joined with one backslash to a plain ASCII file name, as the working file's path
  // is. An empty one does nothing and returns 0.
  int DoSaveSymbolList(const CString& path) noexcept;
  // Reads any list file in the place of the lists in memory, as LoadSymbolList does; always 1. With
  // an empty path the lists are gone and nothing is read. A file without any list makes the working
  // file be written anew at once, empty.
  int DoLoadSymbolList(const CString& path) noexcept;
  // What the latest load of the working file or of the backup came to; a start, and another data
  // directory, forget it. For a damaged file `reason` is where and why in English ("line 3, column
  // 17: an ampersand that is not written as &amp;") and `line` that line, or 0 when it is no one
  // place; otherwise the reason in words, or an empty text when there is nothing to be said.
  TQLoadState GetLoadState(TQListFile file, int& line, CString& reason) const noexcept;
  // Replaces the lists in memory by those that can be recovered from the working file, whatever is
  // wrong with it: characters that do not belong there, an end that is missing, zero bytes, another
  // encoding, two files written over each other. When it gives none, the newest of the copies that
  // were kept of it is taken which does. No id is made up: a symbol whose bytes are damaged is left
  // out, and its list counts as mended. `counts` is filled; the log (level 64) tells of each list
  // that is not whole. Nothing is written; the next save keeps the damaged file first. Returns 0,
  // with the lists in memory as they were, when no list was found.
  int RepairSymbolList(TQRepairCounts& counts) noexcept;
  // Keeps, from now on, the working file as it was before the first save of each day, as
  // "\SymbolList_YYYYMMDD.xml" beside it, YYYYMMDD being the local day of that save, and deletes
  // the oldest of these files beyond `days`. 0, which is the default, or less: keeps none and
  // deletes none. What cannot be kept is told in the log and tried again at the next save, which it
  // does not hold up.
  void SetHistory(int days) noexcept;
  // Replaces `days` by the days that can be restored, "YYYYMMDD", the latest first. Returns their
  // number.
  int GetHistory(CStringArray& days) const noexcept;
  // Loads the file of a day as RestorSymbolList loads the backup. Returns 0 and changes nothing
  // when `day` is none, or there is no such file; else 1.
  int RestoreHistory(const CString& day) noexcept;
  // For use after another program changed the file: LoadSymbolList, then, if Init was told so,
  // LoadSystemList with the names of Init (adds missing system lists) and LoadTSList (adds the list
  // of all holdings if it is missing). Nothing is saved. Returns 1.
  int UpdateTQSymbolList() noexcept;
  // Switches to another data directory: LoadSymbolList there, then, if Init was told to load system
  // lists, LoadSystemList with the names of Init, which adds those that the file lacks. The lists
  // from trading accounts stay as they are; their file is written to the new directory at their
  // next change.
  void ReLoadList(const CString& dataDirectory) noexcept;

  // --- The list shown first ----------------------------------------------------------------------
  // Stores the index without any check; -1 means none.
  void SetDefaultIndex(int index) noexcept;
  // Writes the stored index to `out`, always. Returns 0 when it is negative or there are no lists,
  // else 1. It may lie beyond the last list: the caller must check the upper bound.
  int GetDefaultListIdx(int& out) noexcept;

  // --- The lists in memory -----------------------------------------------------------------------
  // Destroys the lists of one kind: the user's, those of trading accounts, the cloud lists. No file
  // is touched and the default index stays.
  void ClearSymbolList() noexcept;
  void ClearTSSymbolList() noexcept;
  void ClearCloudSymbolList() noexcept;

  // --- Editing whole lists -----------------------------------------------------------------------
  // Of the user's lists. A refusal returns 0 and changes nothing. Where an operation saves, a save
  // that fails shows its message and the change stays in memory.

  // Adds a list, or gives an existing one other symbols.
  //   id         empty: a new list with a new GUID. Refused when it is longer than 36 bytes or
  //              holds bytes that are no characters, for the list would bear another one
  //   name       for a new list; made unique with AdjustFileName. Empty: refused
  //   symbols    ids joined by ",". Empty: refused
  //   append     non-zero: the last list, 0: the first
  //   overwrite  non-zero: a list with that id under another name gets the symbols too, and keeps
  //              its name; 0: refused
  // Symbols that went over from exchange TW to TE are renamed as ReplaceSymbolListExchID says, in
  // new lists. Then: default index -1 becomes 0, the file is saved, "Add SymbolList" goes to the
  // log, and the terminal gets TQSCall("", -1, 40, ""). Returns 1.
  int AddSymbolList(const CString& id, int unused, const CString& name, const CString& symbols,
                    int append, int overwrite) noexcept;
  // Puts a copy of `source` in as the first list (`append` 0) or the last, moved symbols renamed in
  // both. Identifier and name are not checked, duplicates included, and nothing is saved. Returns 0
  // when `source` is null.
  int AddTQSymbolList(CSymbolList* source, int append) noexcept;
  // Replaces all lists by copies of the CSymbolList pointers in `lists`, which stay the caller's;
  // moved symbols are renamed in both. Brings the default index into the range of the new lists (-1
  // for none). Nothing is saved. Returns 0 when `lists` is null.
  int SetSymbolList(CPtrArray* lists) noexcept;
  // Deletes the first list with that id and saves; no line in the log, and the terminal is not
  // told. When it was the default list and the last one, the default index goes one down, to -1 for
  // the only list. In every other case the number stays, so after deleting a list in front of the
  // default list it means the next list. Returns 0 when there is no such list.
  int DeleteSymbolList(CString id) noexcept;
  // Replaces, in every list's symbol string, each occurrence of the k-th old text by the k-th new
  // one, for all k in turn: plain text, inside of longer ids too. When a list changed: saves, logs
  // "ReplaceID", tells the terminal with TQSCall("", -1, 40, ""), returns 1. Else 0. A null array
  // does nothing; of arrays of different sizes the shorter counts. When the lists would outgrow the
  // list file (64 MiB as text), be it on the way from pair to pair, no list changes: 0 and a line
  // in the log.
  int ReplaceID(CStringArray* oldIds, CStringArray* newIds) noexcept;
  // `name`, or when a list has it, the name with "(1)", "(2)" ... "(100)" behind it; the number is
  // counted up in its place when the name has it already. After "(100)" the candidate is returned
  // though it is taken. Names are kept within 64 bytes.
  CString AdjustFileName(CString name) noexcept;

  // --- Editing the entries of one list -----------------------------------------------------------
  // Entries are the rows of a user list, from 0: ids that the service knows, and headings. Nothing
  // is saved and the terminal is not told. 0 for a list or an entry that is not there, else 1.

  // Takes one entry out.
  int DeleteSymbolList(CString id, int entry) noexcept;
  // Puts `text` behind the entry at `position` (`before` 0) or in front of it; a position before
  // the first entry is the start, one behind the last the end. `heading` non-zero: a heading, ":"
  // is put behind the text, a ":" of its own or not. A symbol that the list holds already is
  // refused, and so are a text that is empty or only blanks and one with a ",". Whether a service
  // knows it is not asked: an id that none knows is kept and has no row.
  int InsertSymbolList(CString id, int position, CString text, int before, int heading) noexcept;
  // Lets two entries change places; 0 when they are one.
  int SwapSymbolList(CString id, int first, int second) noexcept;
  // Puts `text` in the place of an entry: an id, or a heading with its ":". Unlike an insertion it
  // takes a symbol that the list holds already.
  int ReplaceSymbolList(CString id, int entry, CString text) noexcept;

  // --- Checks ------------------------------------------------------------------------------------
  // Identifiers and names are compared ignoring letter case, unless said.

  // Whether a list of the kind bears the name, the one at `skip` left out when `skipOne` is
  // non-zero.
  int CheckNameExist(const CString& name, int skipOne, int skip, int kind) noexcept;
  // Bit 0: a list of the kind has the id. Bit 1: the first one that has it bears the name.
  int CheckIDandName(const CString& id, const CString& name, int kind) noexcept;
  // 1 when a list of the kind has the id.
  int CheckSymbolListExist(const CString& id, int kind) noexcept;
  // 1 when a list of the kind has the id and exactly that name (letter case counts).
  int CheckListAndNameExist(const CString& id, const CString& name, int kind) noexcept;
  // Whether a dialog's working copy (CSymbolList pointers) or its default index differs from the
  // user's lists: in their number, a name (letter case counts) or a symbol string. A null copy
  // differs.
  bool IsModifyList(CPtrArray* lists, int defaultIndex) noexcept;
  // The same against the cloud lists, without an index.
  bool IsModifyCountList(CPtrArray* lists) noexcept;
  // Why a list with that id cannot be added to a kind (201 counts as 8): bit 0 a list has the id,
  // bit 1 it is longer than 36 bytes, bit 2 it holds what the list file cannot carry: an
  // apostrophe, "&", "<", bytes that are no characters. 0 when it can; the empty id can, a GUID
  // takes its place.
  int CheckValidSymbolList(const CString& id, int kind) noexcept;
  // What a name has against being a list's, as bits of TQTextFault: empty (1), cut at 64 bytes (2),
  // an apostrophe, "&" or "<", with which the list file does not load again (4), bytes that are
  // left out (8). 0: it is kept as it is. Whether another list has it is CheckNameExist's matter.
  static int CheckListName(const CString& name) noexcept;
  // The same for ids joined by ","; 2: an id of more than 19 bytes, which has no row; 16: an empty
  // entry. Whether a service knows them is not asked.
  static int CheckSymbolIds(const CString& symbols) noexcept;
  // Takes the first field off a parameter string: `before` gets the text up to `separator`, `text`
  // keeps what is behind it. Without a separator all of it is taken. An empty text changes nothing.
  static void CutStringAndGetParamBefore(CString& text, char separator, CString& before) noexcept;

  // --- System lists ------------------------------------------------------------------------------
  // Six of the user's lists, known by their ids "ZUSYSLIST1" to "ZUSYSLIST6", are the terminal's.

  // Adds those of the six that are missing, empty, at the end; named by entry i of `names` where
  // there is one, else by the library's own names. Lists that are there keep name and symbols.
  // Nothing is saved. Returns 1.
  int LoadSystemList(CStringArray* names) noexcept;
  // The system mark of the first list of the kind with that id: 1 or 0.
  int IsSystemList(const char* id, int kind) noexcept;
  // Gives the user list with that id these symbols and, unless empty, this name. `nameChanged`
  // becomes 1 when the name is another one now, else 0. Without such a list returns 0 and sets
  // nothing. Not saved.
  int UpdateSystemList(const CString& id, const CString& name, const CString& symbols,
                       int& nameChanged) noexcept;
  // The same by the list's number, 0 to 5, which must have a name from Init. `mode` non-zero
  // replaces its symbols; 0 fills the list only while it is empty. Returns 1 when the symbols were
  // set. Not saved.
  int UpdateSystemList(int index, const CString& symbols, int mode) noexcept;
  // The first form for each (id, symbols) pair, with the names of the second map (null: none); then
  // saves and tells the terminal with TQSCall("", -1, 4, "ListNameChange") when a name changed,
  // else with an empty reason. Returns 0 and does nothing when the first map is null.
  int UpdateSystemList(CMapStringToString* symbols, CMapStringToString* names) noexcept;

  // --- Queries -----------------------------------------------------------------------------------
  // A kind without lists has a count of 0 and no list. Outputs of a query that finds nothing stay
  // as they were, unless said.

  // Number of lists of a kind; both are one.
  int GetSymbolListCount(int kind) noexcept;
  int GetTQSymbolListCount(int kind) noexcept;
  // Appends a new copy of every list of the kind to `out`, in order. The caller deletes them. 0 for
  // another kind than 1, 6 and 8.
  int GetSymbolList(CPtrArray& out, int kind) noexcept;
  // Sets `*out` to the first list of the kind with that id, or null. Not a copy: the list stays the
  // manager's, changing it changes what is saved next, and it is good until lists are loaded,
  // cleared or removed.
  int GetSymbolList(CString id, CSymbolList** out, int kind) noexcept;
  // Identifier and name of the list at `index`.
  int GetTQSymbolListInfo(int index, TQSymbolListInfo* out, int kind) noexcept;
  // Identifier, name and symbol string of the list at `index`.
  int GetSymbolListInfo(int index, CString& id, CString& name, CString& symbols, int kind) noexcept;
  // Name of the list with that id, emptied when there is none; both are one.
  int GetSymbolListName(const CString& id, CString& name, int kind) noexcept;
  int GetTQSymbolListName(const char* id, CString& name, int kind) noexcept;
  // The symbol string of a list as it is stored, unknown ids and headings included, and its tokens
  // (`tokens` may be null). Kind 0 is the user's default list, whatever the id. Outputs are emptied
  // when there is none.
  int GetSymbolListIDs(int kind, const CString& id, CString& symbols,
                       CStringArray* tokens) noexcept;
  // (The spelling is the interface's.)
  // The rows of a list joined by ",": what the service knows, and the headings. `out` is emptied
  // when there is no such list.
  int GetSymoblIDList(const CString& id, CString& out, int kind) noexcept;
  // Number of rows of a list; 0 when there is no such list.
  int GetTQSymbolCount(const char* id, int kind) noexcept;
  // The record of one row. The id of a heading's is ":", and nothing else is in it: the texts of
  // headings are those of GetSymoblIDList, whose pieces are the rows in their order.
  int GetTQSymbolInfo(const char* id, int entry, SymbolInfo* out, int kind) noexcept;
  // All symbols of an exchange, as VLGetSymbolInfos2 hands them out (`subId` -1: the whole
  // exchange); the caller releases the array with VLFree.
  int GetSymbolInfos(int exchId, int subId, SymbolInfo** list, int* count) noexcept;
  // A copy of the buffer of all symbols, which the caller releases with FreeSymbolInfos. 0, outputs
  // untouched, when there is none, or no memory for a copy.
  int GetAllSymbolInfos(SymbolInfo** out, int* count) noexcept;
  // The buffer of all symbols itself: nothing is copied. It stays as it is for as long as somebody
  // holds it, whatever the manager does meanwhile. Null, `*count` 0, when there is none.
  std::shared_ptr<const SymbolInfo[]> ShareAllSymbolInfos(int* count) noexcept;
  // Releases what GetAllSymbolInfos handed out; null is allowed. A host with the C runtime that
  // this library uses may delete it with delete[] as well. In any other host that would corrupt the
  // heap.
  static void FreeSymbolInfos(SymbolInfo* infos) noexcept;
  // The record of one symbol. With an exchange suffix it is looked up as it is; a bare code on the
  // default exchanges in order, the first hit wins. The exchanges' names are taken from
  // `exchanges`, or without any (null, or a count of 0) from what the service listed when the
  // default exchanges were set up; a default exchange that is not there is passed over.
  int GetSymbolInfo(const char* symbol, ExchInfo* exchanges, int exchangeCount,
                    SymbolInfo* out) noexcept;
  // The attribute records of the symbols named (joined by ","), as VLGetBaseAttrs hands them out;
  // the caller releases the array with VLFree.
  int GetBaseAttrs(const char* symbols, BaseAttr** list, int* count) noexcept;
  // Finds the symbol that a typed text means, with the service's search: the only result, or of
  // several the first whose exchange code, id or bare code is the text (letter case ignored).
  // Copies its record into `*info` and returns 1; 0, `*info` untouched, when there is none.
  int IsValidSymbol(const CString& text, SymbolInfo* info) noexcept;

  // --- Default exchanges and the order of exchanges ----------------------------------------------
  // Default exchanges are the ids in order of preference on which bare codes are looked for: those
  // of the login information, or with the user's own switched on (or the login information out of
  // reach) those of UpdateDefaultExch. No default exchanges is legal: bare codes then never
  // resolve.

  // Reads them anew, with the exchange records that go with them. 0 when the service's exchange
  // list could not be read.
  int InitDefaultExchange() noexcept;
  // Replaces `ids` by what InitDefaultExchange would read; `useUser` non-zero: the user's own. The
  // text is not used. Always 1. The two below are its sources: the login information (0 when it
  // cannot be read, `ids` then untouched), and the user's own.
  int LoadDefaultExchange(CUIntArray& ids, int useUser, const char* unused) noexcept;
  static int DoLoadDefaultExchange(CUIntArray& ids) noexcept;
  int DoLoadUserDefaultExchange(CUIntArray& ids) noexcept;
  void ClearDefaultExchangeData() noexcept;
  // The id at `index`. An index out of range stops the program: see GetDefaultExchangeCount.
  int GetDefaultExchange(int index) noexcept;
  int GetDefaultExchangeCount() noexcept;
  int IsDefaultExchange(int exchId) noexcept;
  // Whether the login information now has other default exchanges than those in use, or another
  // order.
  int IsDefaultExchangeChange() noexcept;
  // Takes changed default exchanges over: reads them, sorts all symbols anew, tells the symbol
  // tables. `force` 0: only when IsDefaultExchangeChange says so; otherwise only a missing buffer
  // of all symbols is built.
  void ReLoadDefaultExch(int force) noexcept;
  // Stores the user's own default exchanges and reloads. Returns 1.
  int UpdateDefaultExch(CUIntArray& ids) noexcept;
  // Whether the user's own are used. Takes effect with the next reload.
  void SetUseUserDefExch(int use) noexcept;
  int IsUseUserDefExch() const noexcept;
  // Stores a copy of the order in which dialogs show exchanges; 1 when it is not empty.
  // GetDefExchOrder copies it out. CheckExchOrder accepts any order, changes nothing and returns 1.
  int LoadDefExchOrder(CUIntArray& order) noexcept;
  void GetDefExchOrder(CUIntArray& order) noexcept;
  static int CheckExchOrder(CUIntArray& order) noexcept;
  // Builds the buffer of all symbols, exchange by exchange, those that are no default ones towards
  // the end: from the first place on, such a one is put behind the last, and the next place is
  // looked at; what slid into the place just left is passed over. When the service fails a buffer
  // that is there stays as it is.
  void SortAllSymbolByExch() noexcept;
  // 1 when there is no buffer of all symbols, or an empty one.
  int CheckAllSymbolByExch() noexcept;

  // --- Lots, and symbols that change -------------------------------------------------------------

  // Units in one board lot of a symbol (field 176): of stocks on exchange TW, or else TE, of
  // futures and options on TF, of any other kind on the exchange that the id names or that it is
  // found on. 1000 when it is not known or `tables` is null.
  static int GetTradeLotSize(const CString& id, CSymbolTableMgr* tables, JT_DEAL kind) noexcept;
  // Symbols of an exchange changed: `count` packed records of 19 bytes (see SymbolTableMgr.h), of
  // which the first 10 count. Every user and trading list that holds one of them asks the service
  // again, with ExchSymbolsAdded the cloud lists too. The exchange is not used. Returns 1. The
  // symbol tables are told by AddSymbols, UpdateSymbols and RemoveSymbols of GetSymbolTableMgr(),
  // not by this.
  int UpdateExchSymbolChange(int count, const char* symbols, short exch,
                             ExchSymbolUpdateType type) noexcept;
  // Renames the symbols of an id string, or of a list, that went over from one exchange to another:
  // those that the old exchange's table lacks and the new one's has, when the old one's was loaded
  // with symbols and still has some. Returns 1 when something changed. Without symbol tables
  // nothing does.
  int ReplaceSymbolListExchID(CString& ids, const CString& oldExchange,
                              const CString& newExchange) noexcept;
  int ReplaceSymbolListExchID(CSymbolList* list, const CString& oldExchange,
                              const CString& newExchange) noexcept;

  // --- Groups ------------------------------------------------------------------------------------
  // Read-mostly lists that the symbol-data service publishes: a tree for each group type, top-level
  // groups with their sub-groups and, where the service has them, those below, of which only the
  // records are handed out. Operations that take an id and answer with members or a name look among
  // the sub-groups of the top-level groups; for a top-level group itself take its handle
  // (GetGroupHandle) and the forms with a handle. Types 1 to 21, 101 and 201 (the cloud groups) are
  // loaded by Init; 1 to 200 may be added and removed. Members of a group are fetched when they are
  // first asked for. Ids are compared ignoring the case of ASCII letters, unless said. A type is
  // loaded when it has an entry in the map of types. From within a call of the service the terminal
  // may call any of it: a load ends as if that had been done before.

  // Loads all types anew. Returns 1; a type that the service fails for is empty.
  int LoadGroupList() noexcept;
  // Loads one type, 1 to 201, anew or for the first time. 0 for any other.
  int LoadGroupList(int type) noexcept;
  // Adds a type, 1 to 200, whether or not it is there. 0 for any other.
  int AddNewGroup(int type) noexcept;
  // LoadGroupList(type) or, with `reload` false, AddNewGroup(type).
  int AddGroupList(int type, bool reload) noexcept;
  // Loads one type anew if it is 1 to 200, and all types for any other value, 201 included. Both
  // are one; the text is not used.
  int UpdateGroup(int type, const char* unused) noexcept;
  int UpdateGroupType(int type) noexcept;
  // Removes a type, 1 to 200, and frees its groups. 0 when there was none. Load all types anew
  // behind it: until then each type that stands behind the removed one answers with the groups of
  // the type next to it, and the last one as if it had none.
  int RemoveGroupList(int type) noexcept;
  void ClearGroupList() noexcept;
  // Position of a type among the loaded ones, or -1.
  int GetGroupIdx(int type) noexcept;
  // Number of sub-groups of the handle's group; without a handle of the type's top-level groups. 0
  // when the type is not loaded.
  int GetGroupCount(int type, void* handle) noexcept;
  // The same with the id of a top-level group in place of the handle. Null: the top-level groups;
  // the empty text is no group's id.
  int GetGroupCounts(int type, const char* id) noexcept;
  // The record of one of them.
  int GetGroupInfo(int type, void* handle, int index, GroupInfo* out) noexcept;
  int GetGroupInfos(int type, const char* id, int index, GroupInfo* out) noexcept;
  // Sets `*handle` to the first group of the type with that id, or null: each top-level group, then
  // its sub-groups. `afterComma` non-zero: only the text behind the id's first comma counts.
  int GetGroupHandle(int type, const char* id, void** handle, int afterComma) noexcept;
  // The group's member ids joined by ",". `ids` is emptied first.
  int GetGroupListIDs(void* handle, CString& ids) noexcept;
  // The group's name, empty without a group. The type is not used.
  int GetGroupName(int type, void* handle, CString& name) noexcept;
  // The name of the first sub-group of the type with exactly that id: letter case counts, and
  // top-level groups are never found. `name` is emptied when there is none.
  int GetGroupName(int type, const char* id, CString& name, int afterComma) noexcept;
  // Number of members, and the record of one: of the first sub-group of the type with that id
  // (top-level groups are never found), or of the handle's group.
  int GetGroupSymbolCount(int type, const char* id) noexcept;
  int GetGroupSymbolCount(void* handle) noexcept;
  int GetGroupSymbolInfo(int type, const char* id, int index, SymbolInfo* out) noexcept;
  int GetGroupSymbolInfo(void* handle, int index, SymbolInfo* out) noexcept;
  // (The spelling is the interface's.)
  // 1 when the text stands anywhere in the member ids of a group of type 2, 7 or 8, inside of a
  // longer id too. The text behind the group id's first comma counts.
  int FindSymoblInGroupList(int type, const CString& groupId, const CString& symbol) noexcept;

  // Groups that the terminal pushes in, without asking the service. Each loaded type takes the sets
  // of its type; a set's group is the first top-level one with its id. Returns 1 when something
  // changed.

  // Puts new groups in the place of those that have a set's id. Only when no set has one are all
  // sets added, at the end.
  int AddGroup(const std::vector<CGroupSet>& sets) noexcept;
  // Puts new groups in the place of those that have a set's id; other sets are passed over.
  int UpdateGroup(const std::vector<CGroupSet>& sets) noexcept;
  int UpdateGroupName(const std::vector<CGroupSet>& sets) noexcept;
  int RemoveGroup(const std::vector<CGroupSet>& sets) noexcept;
  // The same with the sub-groups of the sets' groups. AddSubGroup first does what UpdateSubGroup
  // does. Unless the last set whose group is there replaced something then, each set whose ids are
  // all new to its group has its sub-groups added at the group's end.
  int AddSubGroup(const std::vector<CGroupSet>& sets) noexcept;
  int UpdateSubGroup(const std::vector<CGroupSet>& sets) noexcept;
  int UpdateSubGroupName(const std::vector<CGroupSet>& sets) noexcept;
  int RemoveSubGroup(const std::vector<CGroupSet>& sets) noexcept;

  // --- Cloud lists -------------------------------------------------------------------------------
  // The user's lists on the broker's server, which the terminal pushes in. The manager keeps them
  // twice: as lists of kind 8, and in the cloud map, from which groups of type 201 take names and
  // members when they are loaded. Symbols are ids joined by ",".

  // (The spelling is the interface's.)
  // Puts a list into the map and, with the same symbols, into the lists of kind 8. Of one that is
  // there already the terminal is told as by UpdateCloudSymbolList below.
  void SetCloudeList(const CString& id, const CString& name, const CString& symbols) noexcept;
  // Puts a list into the map alone.
  void UpdateCloudSymbolList(const CString& id, const CString& name,
                             const CString& symbols) noexcept;
  // Gives the list of kind 8 with that id these symbols and tells the terminal with
  // TQSCall("", -1, 41, ""); adds one when there is none. The type is not used.
  void UpdateCloudSymbolList(const CString& id, int type, const CString& name,
                             const CString& symbols, int allowEmpty) noexcept;
  // Adds a list of kind 8 (empty id: a new GUID). The symbols are not checked. 0, with nothing
  // added, for an empty name, for empty symbols unless `allowEmpty`, and for an id that
  // CheckValidSymbolList refuses.
  int AddCloudSymbolList(const CString& id, const CString& name, const CString& symbols,
                         int allowEmpty) noexcept;
  // Replaces the lists of kind 8 by copies of the CSymbolList pointers in `lists`, which stay the
  // caller's; moved symbols are renamed in both. The number is not used. 0 when `lists` is null.
  int SetCloudSymbolList(CPtrArray* lists, int unused) noexcept;
  // (The spelling is the interface's.)
  // The map as text: <Cloud>, a List element for each list, </Cloud>.
  CString GetCloudeList() noexcept;
  // Gives a cloud group without sub-groups name and members of the list of its id in the map.
  void UpdateCloudGroup(void* handle) noexcept;
  // (The spelling is the interface's.)
  // Loads the cloud groups anew and tells the terminal with TQSCall("", -1, 4, "ListNameChange").
  void RefreshCloudeSymbol() noexcept;

  // --- Lists from trading accounts ---------------------------------------------------------------
  // What the user holds, as lists of kind 6: one for each account, one for each trading system, and
  // "ALLMYSTOCKLISTS" for all accounts of the trading system that was updated last. The table
  // behind them is written to "\TSList.xml" in the data directory after every change. All of it
  // does nothing, and asks the service nothing, unless the last Init was told to load trading
  // lists; that goes for removing and clearing lists too. Table and lists outlive another Init,
  // which names the directory of the file anew. From within a call of the proxy, or of TQSCall, the
  // terminal may call any of it.

  // Adds "ALLMYSTOCKLISTS", empty, when it is missing. Returns 1 when it was added.
  int LoadTSList() noexcept;
  // A login is complete: reads the trading system anew, rebuilds its lists, tells the terminal with
  // TQSCall("", -1, 4, "TSSymbolList"). One of the table that is not available any more, or not
  // listed, loses its account lists, and all holdings become empty; an unknown one changes no list.
  void UpdateTSLogin(CString tsId) noexcept;
  // (The spelling is the interface's.)
  // An account's holdings changed: the same for this account and "ALLMYSTOCKLISTS". What the
  // service cannot tell stays as it was; an account that is not in the table has no list.
  void UpDataTSAccHodling(CString tsId, CString accountId, TqsAccType type) noexcept;
  // Replaces all lists of kind 6 by one for each trading system of the table.
  void BuildTSListToSymbolList() noexcept;
  // Adds a list with those of the symbols that the service knows (empty id: a new GUID). A name
  // that a list of the kind has gets "-" and entry 48028 behind it, up to five times. 0, with
  // nothing added, for an empty name, for empty symbols unless `allowEmpty`, for an id that
  // CheckValidSymbolList refuses, and for a name that is taken all the same. The kind (1 or 6) is
  // only what is checked.
  int AddTSSymbolList(const CString& id, int kind, const CString& name, const CString& symbols,
                      int allowEmpty) noexcept;
  // Gives the list of kind 6 with that id these symbols, not the name, and tells the terminal with
  // TQSCall("", -1, 40, "TSSymbolList"); adds one when there is none. Returns 1 when done.
  int UpdateTSSymbolList(const CString& id, int kind, const CString& name, const CString& symbols,
                         int allowEmpty) noexcept;
  // Deletes the first list of kind 6 with that id.
  int DeleteTSSymbolList(CString id) noexcept;
  // (The spelling of the first is the interface's.)
  // Holdings joined by ",": of an account; of the first account of that id and type; of all
  // accounts of a type, each symbol once (1, and empty, when there is none of the type). 0,
  // `symbols` untouched, when the table has no such trading system or account.
  int GetTSAccHodling(const CString& tsId, const CString& accountId, CString& symbols) noexcept;
  int GetTSSymbolLists(const CString& tsId, TqsAccType type, const CString& accountId,
                       CString& symbols) noexcept;
  int GetTSSymbolLists(const CString& tsId, TqsAccType type, CString& symbols) noexcept;

  // --- Lists of other products, extra information ------------------------------------------------
  // Adds the lists of an older product's file (import-file.md) behind the user's lists,
  // numbered by their places in the file, and saves once. Each list is logged and told as by
  // AddSymbolList. `product` 0 to 2 chooses ids and names. 0 when the file could not be read.
  int DoLoadOtherProductList(CString& path, int product) noexcept;
  // Imports "\OldOTVList.xml" of the data directory as product 1, once: the file is then renamed to
  // "\Added_OldOTVList.xml". Another file that is put there later is imported too, whatever it
  // holds. Returns 1 when it was imported.
  int LoadOtherProductList() noexcept;
  // Texts by which the terminal switches on what a broker's edition does differently in the
  // dialogs; each is kept once. Empty ones are ignored.
  void AddExtraTQInfo(const CString& info) noexcept;
  void RemoveExtraTQInfo(const CString& info) noexcept;
  const std::vector<CString>& GetExtraTQInfo() const noexcept;

  // --- Dialogs -----------------------------------------------------------------------------------
  // Each runs one modal dialog on the parent (null: none) and returns its end code: 1 when the user
  // has chosen, 2 when the dialog was cancelled, -1 when it could not be created. Outputs are
  // written when the user has chosen, and otherwise stay as they were. The text `input` is a code
  // or a name: its row is selected when the dialog opens, in its own region.

  // The searches in the stock library's tables of economic indicators, international commodities
  // (of the table `type`; `input2` and `input3` count when the inputs before them mean no row) and
  // international futures. `name` becomes "Undefined" for a row that has none; `market` is the one
  // that trades the future.
  static int DoSearchFinIndi(WindowHandle parent, const CString& input, CString& name,
                             CString& code) noexcept;
  static int DoSearchCommIndi(WindowHandle parent, const CString& input, CString& name,
                              CString& code, const CString& input2, const CString& input3,
                              InfoType type) noexcept;
  static int DoSearchOptionIndi(WindowHandle parent, const CString& input, CString& name,
                                CString& code, CString& market) noexcept;

  // The editors of lists. `manager` has the lists, `tables` (may be null: then nothing that is
  // typed is found) the symbols that are typed; the parent is copied. They work on copies, which
  // are stored when the dialog has closed; the terminal is told then (notifications.md). Those
  // but the one for a single symbol are one family: while one of them is open, another one is
  // refused with -1, unless it is opened from within. Without a manager -1, or false.

  // The user's lists: new ones, contents, names, order, the default one. Stored whatever the end
  // code, for the dialog has no Cancel.
  static int DoSymbolListUI(CTQSymbolListMgr* manager, CSymbolTableMgr* tables,
                            WindowHandle parent) noexcept;
  // The cloud lists, as far as they have all that.
  int DoCloudSymbolListUI(CTQSymbolListMgr* manager, CSymbolTableMgr* tables,
                          WindowHandle parent) noexcept;
  // The name and the symbols of one list, the manager's own or a copy of the caller's. True when
  // the user was done: a list of the manager's with the same identifier is replaced and saved then
  // if it differs, without a word to the terminal; so a pointer to the manager's own is not valid
  // any more. A copy of the caller's is what the user made of it. `mode` 0: a new list, which gets
  // an identifier and is nobody's but the caller's; else one to be edited. The option is not used.
  static bool DoGroupListUI(CTQSymbolListMgr* manager, CSymbolTableMgr* tables, CSymbolList* list,
                            int mode, CWnd* parent, int option) noexcept;
  // The same for a cloud list.
  bool DoCloudGroupListUI(CTQSymbolListMgr* manager, CSymbolTableMgr* tables, CSymbolList* list,
                          int mode, CWnd* parent, int option) noexcept;
  // Adds one symbol, by its full id, to lists of the user's choice.
  static int DoGroupSymbolAdd(CTQSymbolListMgr* manager, CSymbolTableMgr* tables, CWnd* parent,
                              const char* symbol) noexcept;
  // Adds symbols, full ids joined by ",", to one list of the user's choice. The list with the
  // identifier `listId` is selected at first; where there is none, the default list. What a list
  // has already is not added again, and the user is told. The terminal is told of every run.
  static int DoSymbolAddUI(CTQSymbolListMgr* manager, CSymbolTableMgr* tables, WindowHandle parent,
                           const CString& symbols, const CString& listId) noexcept;
  // The choice of a list. `*kind` and `text` are what was chosen before, and with 1 what is chosen
  // now; else they stay.
  //   kind  1 a user list, 6 one of holdings, 8 a cloud list: `text` is its identifier
  //         2, 3, 7, 8 a group of type 1, 3, 101, 201: `text` is "group,sub-group", their names
  //         4 all symbols: `text` is what the dialog calls them
  // A null `kind` has nothing chosen before and is told nothing, nor is `text`. The option is not
  // used; `holdings` offers the groups of type 3. User lists that are changed on the way are stored
  // with OK, cloud lists at once.
  static int DoSelectUI(CTQSymbolListMgr* manager, CSymbolTableMgr* tables, WindowHandle parent,
                        int* kind, CString& text, int option, bool holdings) noexcept;
  // The search for one symbol. `input`, a code or a name, is searched as the dialog opens; empty
  // opens it idle. One that means a single symbol is answered without the user, unless `forceList`
  // is set. With 1 the record of the symbol is copied into `*result`; null is allowed.
  //   `place` (null: none): the two parts of its id, GetGroupID and GetSubGroupID, are the group
  //   with which the search opens; where there is no such group, all. Afterwards, cancelled or not,
  //   it is the group with which the search ended: type 2, "," for all. It stays as it is with -1.
  //   Without it the search opens with the group of the last search in the process.
  static int DoSearchUI(CTQSymbolListMgr* manager, CSymbolTableMgr* tables, WindowHandle parent,
                        const CString& input, SymbolInfo* result, int forceList,
                        CListID* place) noexcept;
  // 1 exactly while the list selection is open, else 0.
  static int m_bDoModal;
  // (The spelling is the interface's.)
  // Ends the dialog that runs in that window with an end code of the caller's. Only while
  // m_bDoModal is set, and never an editor of lists or contents: it must not be closed over its
  // user's head. 0 when nothing was ended, else 1.
  static int EndDomodal(WindowHandle dialog, int result) noexcept;

  // --- Switches ----------------------------------------------------------------------------------
  int GetbCN() const noexcept;
  void SetbCN(int bCN) noexcept;

protected:
  // Whether the text is one of the six system ids, letter case as it stands.
  int IsSameSysSymbolListGUID(const CString& id) const noexcept;

private:
  const std::unique_ptr<tq::ManagerState> state_;
};
