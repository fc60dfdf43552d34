#include "symbollist/file/KeptFiles.h"

#include <algorithm>
#include <utility>

#include "platform/Log.h"
#include "platform/diagnostics/Operation.h"
#include "platform/xml/XmlDocument.h"
#include "symbollist/file/KeptCopies.h"
#include "symbollist/file/LoadReport.h"

namespace tq {
namespace {

// Files of other paths, which a terminal may save to, are remembered up to this number.
constexpr std::size_t kMostFiles = 8;

bool IsStamped(const FileStamp& stamp) {
  return stamp != FileStamp();
}

void NoteSave(SaveResult result, const CString& path) {
  if (result == SaveResult::NotOpened)
    NoteProblem(TQProblemFileNotWritten, "%s cannot be opened for writing", path.GetString());
  else if (result == SaveResult::Failed)
    NoteProblem(TQProblemFileNotWritten, "%s could not be written; it is as it was",
                path.GetString());
}

} // namespace

void Say(const KeptLine& line) {
  if (line.text.IsEmpty())
    return;
  NoteProblem(line.problem, "%s", line.text.GetString());
  LogLine(kLogChange, "%s", line.text.GetString());
}

bool HoldsNoList(const std::string& bytes) {
  if (bytes.empty())
    return true;
  XmlDocument document;
  return document.Load(bytes.data(), bytes.size()) &&
         !document.SelectSingle("/Result/SymbolList").IsNull() &&
         document.SelectSingle("/Result/SymbolList/List").IsNull();
}

ReadResult ReadContents(const CString& path, std::size_t limit, FileContents& contents) {
  contents = {};
  FileStamp after;
  Files().StateOf(path, contents.stamp);
  const ReadResult result = Files().ReadWholeFile(path, limit, contents.bytes);
  Files().StateOf(path, after);
  if (after != contents.stamp || after.size != contents.bytes.size())
    contents.stamp = {};
  return result;
}

void KeptFiles::ForgetAll() {
  for (File& file : files_) {
    file.known = false;
    file.outcome = LoadOutcome::NotTried;
    file.contents = {};
  }
}

KeptFiles::File& KeptFiles::FileAt(const CString& path) {
  const auto found = std::find_if(files_.begin(), files_.end(),
                                  [&](const File& file) { return file.path == path; });
  if (found != files_.end())
    return *found;
  if (files_.size() == kMostFiles)
    files_.erase(files_.begin());
  files_.emplace_back().path = path;
  return files_.back();
}

bool KeptFiles::EndLoad(const CString& path, LoadOutcome outcome, FileContents contents) {
  --loads_;
  if (outcome != LoadOutcome::Whole)
    ForgetAll();
  File& file = FileAt(path);
  file.outcome = outcome;
  file.known = outcome == LoadOutcome::Whole || outcome == LoadOutcome::Empty;
  file.contents = file.known ? std::move(contents) : FileContents();
  const bool saved = std::exchange(file.savedInLoad, false);
  // What was saved into another file meanwhile is no matter of that file's next load.
  if (loads_ == 0)
    for (File& other : files_)
      other.savedInLoad = false;
  return saved;
}

// Logs only after the save: logging may let the terminal save newer lists, which these older bytes
// must not overwrite.
SaveResult KeptFiles::Save(const CString& path, std::string bytes) {
  KeptLine line;
  SaveResult result = SaveResult::NotOpened;
  const bool may = MayWrite(path, line);
  if (may)
    result = Files().SaveWholeFile(path, bytes.data(), bytes.size());
  if (result == SaveResult::Saved)
    NoteSaved(path, std::move(bytes));
  Say(line);
  if (may)
    NoteSave(result, path);
  return result;
}

void KeptFiles::NoteSaved(const CString& path, std::string bytes) {
  File& file = FileAt(path);
  file.outcome = LoadOutcome::Whole;
  file.savedInLoad = loads_ > 0;
  file.known = true;
  file.contents = {};
  Files().StateOf(path, file.contents.stamp);
  // A different size means that another program has written the file in between.
  if (file.contents.stamp.size != bytes.size())
    file.contents.stamp = {};
  file.contents.bytes = std::move(bytes);
}

const FileContents* KeptFiles::Known(const CString& path) const {
  FileStamp stamp;
  Files().StateOf(path, stamp);
  for (const File& file : files_)
    if (file.path == path && Knows(file) && stamp == file.contents.stamp && IsStamped(stamp))
      return &file.contents;
  return nullptr;
}

bool KeptFiles::MayWrite(const CString& path) {
  KeptLine line;
  const bool may = MayWrite(path, line);
  Say(line);
  return may;
}

bool KeptFiles::MayWrite(const CString& path, KeptLine& line) {
  FileStamp stamp;
  const FileState state = Files().StateOf(path, stamp);
  if (state == FileState::Missing || state == FileState::Other)
    return true;
  File& file = FileAt(path);
  if (Knows(file) && file.contents.returns && stamp == file.contents.stamp && IsStamped(stamp))
    return true;
  FileContents now;
  const ReadResult result = ReadContents(path, kKeptSizeLimit, now);
  if (result == ReadResult::Missing)
    return true;
  if (result != ReadResult::Ok) {
    line.problem = TQProblemFileNotKept;
    line.text.Format("List file %s is not saved: what it holds cannot be read and kept",
                     path.GetString());
    return false;
  }
  const bool same = Knows(file) && now.bytes == file.contents.bytes;
  if (same && file.contents.returns) {
    file.contents.stamp = now.stamp;
    return true;
  }
  return worthless_(now.bytes) || Keep(file, std::move(now), line);
}

// `now` is the file's present contents. Once copied, the file counts as known.
bool KeptFiles::Keep(File& file, FileContents now, KeptLine& line) {
  const bool same = file.known && now.bytes == file.contents.bytes;
  const char* why = WhyUnknown(file.outcome);
  line.problem = TQProblemFileKept;
  if (Knows(file) && same) {
    why = "it holds what cannot be written back";
  } else if (Knows(file)) {
    why = "another program has written it";
    line.problem = TQProblemFileShared;
  }
  const KeepResult result = KeepCopy(file.path, now.bytes, file.lastCopy);
  if (result == KeepResult::Failed) {
    line.problem = TQProblemFileNotKept;
    line.text.Format("List file %s is not saved: what it holds cannot be kept beside it",
                     file.path.GetString());
    return false;
  }
  if (result == KeepResult::Kept)
    line.text.Format("List file %s is kept as %s: %s", file.path.GetString(),
                     KeptCopyPath(file.path, file.lastCopy).GetString(), why);
  file.known = true;
  file.contents = std::move(now);
  return true;
}

} // namespace tq
