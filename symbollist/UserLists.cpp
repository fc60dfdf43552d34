// The user's lists and their file: loading, saving, backup.
#include "symbollist/UserLists.h"

#include <string>
#include <utility>

#include "platform/FileAccess.h"
#include "platform/LibraryString.h"
#include "platform/Module.h"
#include "platform/services/tqCommon.h"
#include "symbollist/ListFile.h"

namespace tq {
namespace {

constexpr unsigned kButtonOk = 0;

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

void UserLists::Reset() {
  Clear();
  keptFiles_.ForgetAll();
}

void UserLists::CreateMissingFile() {
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
    return 0;
  return Report(keptFiles_.Save(path, ListFileText({}, defaultIndex_)));
}

int UserLists::SaveTo(const CString& path) {
  if (path.IsEmpty())
    return 0;
  const int index = defaultIndex_ < 0 && !lists_.IsEmpty() ? 0 : defaultIndex_;
  std::string text;
  const SaveResult result = MakeListFileText(lists_.All(), index, text)
                                ? keptFiles_.Save(path, std::move(text))
                                : SaveResult::NotOpened;
  // Looked at again, for a save may log, and the terminal work on the lists from there.
  if (result != SaveResult::NotOpened && defaultIndex_ < 0 && !lists_.IsEmpty())
    defaultIndex_ = 0;
  return Report(result);
}

int UserLists::LoadFrom(const CString& path) {
  if (path.IsEmpty()) {
    Reset();
    return 1;
  }
  keptFiles_.BeginLoad();
  ListVector lists;
  int defaultIndex = defaultIndex_;
  CXMLDOMParser parser;
  const auto finish = [this](CSymbolList& list) { RenameMovedIn(list, rename_); };
  parser.ReadLists(path, finish, lists, defaultIndex);
  // Only now: while the ids are resolved the service may let the terminal save, or load again, and
  // it must find the whole of the lists of before, not a part of these. A file that could not be
  // read leaves none.
  lists_.Replace(std::move(lists));
  defaultIndex_ = defaultIndex;
  const LoadOutcome outcome = parser.Outcome();
  const bool saved = keptFiles_.EndLoad(path, outcome, parser.TakeContents());
  if (outcome == LoadOutcome::Empty)
    Save(); // anew at once, to the working file whichever file it was
  // What was saved meanwhile were the lists of before, or none at a start. A copy of it is kept.
  else if (saved && outcome == LoadOutcome::Whole)
    SaveTo(path);
  return 1;
}

void UserLists::LoadWithSystemLists() {
  Load();
  if (systemListsWanted_)
    AddSystemLists(&systemListNames_);
}

} // namespace tq
