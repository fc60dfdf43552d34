// The user's lists and their file: loading, saving, backup.
#include "symbollist/UserLists.h"

#include <string>
#include <utility>

#include "idlist/StorableText.h"
#include "platform/FileAccess.h"
#include "platform/LibraryString.h"
#include "platform/Module.h"
#include "platform/Text.h"
#include "platform/diagnostics/Operation.h"
#include "platform/services/tqCommon.h"
#include "platform/xml/XmlText.h"
#include "symbollist/file/ListFile.h"

namespace tq {
namespace {

constexpr unsigned kButtonOk = 0;

TQProblem ProblemOf(LoadOutcome outcome) {
  switch (outcome) {
  case LoadOutcome::Missing:
    return TQProblemFileMissing;
  case LoadOutcome::TooLarge:
    return TQProblemFileTooLarge;
  case LoadOutcome::Unreadable:
    return TQProblemFileUnreadable;
  case LoadOutcome::Damaged:
    return TQProblemFileDamaged;
  case LoadOutcome::NoListFile:
    return TQProblemFileForeign;
  case LoadOutcome::EndedEarly:
    return TQProblemFileCutShort;
  case LoadOutcome::Whole:
  case LoadOutcome::Empty:
  case LoadOutcome::NotTried:
    break;
  }
  return TQProblemNone;
}

// Why a file gave no lists, or not all of them.
void NoteOutcome(LoadOutcome outcome, const CString& path, const LoadReport& report) {
  const TQProblem problem = ProblemOf(outcome);
  if (problem == TQProblemNone)
    return;
  const bool placed = report.line > 0;
  NoteProblem(problem, "%s %s%s%s", path.GetString(), WordsOf(outcome), placed ? "; " : "",
              placed ? report.reason.GetString() : "");
}

// What a save returns, after the message for one that failed.
int Report(SaveResult result) {
  if (result == SaveResult::Saved)
    return 1;
  tqShowDllMessage(OwnModule(), kMessageSaveFailed, kButtonOk);
  return 0;
}

} // namespace

CString UserLists::PathOf(const char* name) const {
  return directory_.IsEmpty() ? CString() : directory_ + name;
}

void UserLists::SetDirectory(const CString& directory) {
  if (directory_ != directory)
    for (LoadReport& report : reports_)
      report = {};
  directory_ = directory;
}

void UserLists::Reset() {
  Clear();
  keptFiles_.ForgetAll();
  for (LoadReport& report : reports_)
    report = {};
}

void UserLists::CreateMissingFile() {
  if (!directory_.IsEmpty() && !Files().DirectoryExists(directory_))
    NoteProblem(TQProblemFileMissing, "there is no directory %s", directory_.GetString());
  // Only where the system says that there is none: an error of a drive must not cost the user's
  // lists.
  FileStamp stamp;
  if (Files().DirectoryExists(directory_) &&
      Files().StateOf(PathOf(kListFileName), stamp) == FileState::Missing)
    SaveEmpty();
}

int UserLists::Load() {
  return LoadFrom(PathOf(kListFileName));
}

int UserLists::Save() {
  return SaveTo(PathOf(kListFileName));
}

int UserLists::Backup() {
  return SaveTo(PathOf(kBackupFileName));
}

int UserLists::Restore() {
  return LoadFrom(PathOf(kBackupFileName));
}

int UserLists::SaveEmpty() {
  const CString path = PathOf(kListFileName);
  if (path.IsEmpty())
    return NoteNoFile();
  return Report(Store(path, ListFileText({}, defaultIndex_)));
}

// What the history has to say is logged last, as in KeptFiles::Save. That asks for the file's state
// anew: keeping it for the history takes time, in which another program may write it.
SaveResult UserLists::Store(const CString& path, std::string bytes) {
  KeptLine line;
  if (history_.IsDue(path) && path == PathOf(kListFileName))
    line = history_.Keep(path, keptFiles_.Known(path));
  const SaveResult result = keptFiles_.Save(path, std::move(bytes));
  Say(line);
  return result;
}

SaveResult UserLists::SaveText(const CString& path) {
  std::string text;
  switch (MakeListFileText(lists_.All(), SavedIndex(), text)) {
  case TextResult::Made:
    return Store(path, std::move(text));
  case TextResult::TooMuch:
    NoteProblem(TQProblemTooMuch, "%s is not written: the lists are more than a list file holds",
                path.GetString());
    break;
  case TextResult::NoMemory:
    NoteProblem(TQProblemMemory, "%s is not written: there is no memory for its text",
                path.GetString());
    break;
  }
  return SaveResult::NotOpened;
}

int UserLists::SaveTo(const CString& path) {
  if (path.IsEmpty())
    return NoteNoFile();
  const SaveResult result = SaveText(path);
  // Looked at again, for a save may log, and the terminal work on the lists from there.
  if (result != SaveResult::NotOpened && defaultIndex_ < 0 && !lists_.IsEmpty())
    defaultIndex_ = 0;
  if (result == SaveResult::Saved)
    NoteUnloadable();
  return Report(result);
}

int UserLists::LoadFrom(const CString& path) {
  if (path.IsEmpty()) {
    Reset();
    NoteNoFile();
    return 1;
  }
  FileContents contents;
  const ReadResult read = ReadContents(path, kXmlSizeLimit, contents);
  return LoadRead(path, read, std::move(contents));
}

int UserLists::LoadRead(const CString& path, ReadResult read, FileContents contents) {
  keptFiles_.BeginLoad();
  ListVector lists;
  int defaultIndex = defaultIndex_;
  CXMLDOMParser parser;
  const auto finish = [this](CSymbolList& list) { RenameMovedIn(list, rename_); };
  parser.ReadLists(read, std::move(contents), finish, lists, defaultIndex);
  // Only now: while the ids are resolved the service may let the terminal save, or load again, and
  // it must find the whole of the lists of before, not a part of these. A file that could not be
  // read leaves none.
  lists_.Replace(std::move(lists));
  defaultIndex_ = defaultIndex;
  const LoadOutcome outcome = parser.Outcome();
  FileContents loaded = parser.TakeContents();
  const LoadReport report = tq::ReportOf(outcome, loaded.bytes);
  NoteLoad(path, report);
  const bool saved = keptFiles_.EndLoad(path, outcome, std::move(loaded));
  NoteOutcome(outcome, path, report);
  if (outcome == LoadOutcome::Empty)
    Save(); // anew at once, to the working file whichever file it was
  // What was saved meanwhile were the lists of before, or none at a start. A copy of it is kept.
  else if (saved && outcome == LoadOutcome::Whole)
    SaveTo(path);
  return 1;
}

void UserLists::NoteLoad(const CString& path, const LoadReport& report) {
  if (path == PathOf(kListFileName))
    reports_[TQListFileWorking] = report;
  else if (path == PathOf(kBackupFileName))
    reports_[TQListFileBackup] = report;
}

// Such a list is saved all the same, as it always was; who set it is told before the next start is.
void UserLists::NoteUnloadable() const {
  for (const auto& list : lists_.All()) {
    if (!HoldsUnloadable(ViewOf(list->GetID())) && !HoldsUnloadable(ViewOf(list->GetName())) &&
        !HoldsUnloadable(ViewOf(list->GetIDs())))
      continue;
    CString text;
    text.Format("the list '%s' has an apostrophe, & or <: its file does not load again",
                list->GetName().GetString());
    if (IsDebugging())
      ReportMistake(TQProblemFileUnloadable, text);
    else
      NoteProblem(TQProblemFileUnloadable, "%s", text.GetString());
    return;
  }
}

bool UserLists::HasUnsavedChanges() const {
  const CString path = PathOf(kListFileName);
  std::string text;
  if (path.IsEmpty())
    return !lists_.IsEmpty();
  if (MakeListFileText(lists_.All(), SavedIndex(), text) != TextResult::Made)
    return true;
  if (const FileContents* const known = keptFiles_.Known(path))
    return !HoldsSameLists(known->bytes, text);
  FileContents stored;
  return ReadContents(path, kXmlSizeLimit, stored) != ReadResult::Ok ||
         !HoldsSameLists(stored.bytes, text);
}

void UserLists::LoadWithSystemLists() {
  Load();
  if (systemListsWanted_)
    AddSystemLists(&systemListNames_);
}

} // namespace tq
