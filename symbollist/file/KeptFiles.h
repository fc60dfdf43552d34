// Keeps track of which list files on the disk may be overwritten, so that no save destroys lists
// that were never loaded. A file that was read whole, or that this process wrote, may be
// overwritten. Any other (its load failed or ended early, or another program has written it since)
// is copied beside itself first.
//
// Other files that the library writes and never reads are treated the same way, by what their owner
// says of them.
//
// Single-threaded. Paths are compared byte by byte; a file known by two spellings of its path only
// costs an unnecessary copy.
#pragma once

#include <string>
#include <vector>

#include "platform/FileAccess.h"
#include "platform/framework/CString.h"
#include "platform/interface/TQSymbolProblem.h"

namespace tq {

// The largest file that is copied, in bytes; far larger than any list file that is ever loaded.
inline constexpr std::size_t kKeptSizeLimit = std::size_t{1} << 30;

// How the load of a list file ended.
enum class LoadOutcome {
  Whole,      // all of its lists are in memory
  Empty,      // a list file without any list
  Missing,    // there is no such file
  TooLarge,   // beyond the largest size that is read
  Unreadable, // the system does not let it be read
  Damaged,    // not a well-formed document
  NoListFile, // another document
  EndedEarly, // a list of it was bad; it and what stands behind it are not in memory
  NotTried,   // not loaded since the last start
};

// A file as it was when it was read or written.
struct FileContents {
  std::string bytes;
  FileStamp stamp;     // empty when the file was written while it was read
  bool returns = true; // whether saving and loading again gives the same lists
};

// Reads a whole file with its stamp. Results as FileAccess::ReadWholeFile.
ReadResult ReadContents(const CString& path, std::size_t limit, FileContents& contents);

// What is said of a file that had to be copied, or could not be.
struct KeptLine {
  CString text; // empty: nothing is said
  TQProblem problem = TQProblemNone;
};

// Writes the line into the log, where there is one, and notes the problem.
void Say(const KeptLine& line);

// Whether overwriting a file of these bytes loses no list: it is empty, or a list file without any.
bool HoldsNoList(const std::string& bytes);

class KeptFiles {
public:
  // Whether a file of these bytes may be overwritten although it was never read.
  using Worthless = bool (*)(const std::string& bytes);

  explicit KeptFiles(Worthless worthless = &HoldsNoList) : worthless_(worthless) {}

  // Forgets all files: the lists in memory come from none of them.
  void ForgetAll();
  // A load begins. Until it ends no file counts as known, since the terminal may save from within
  // the symbol-data service.
  void BeginLoad() { ++loads_; }
  // The load ended. After Whole the file becomes known and the others stay as they are; after Empty
  // this file alone is known, and after any other outcome none. Returns whether the terminal saved
  // into the file during the load, so that it no longer holds what was read.
  bool EndLoad(const CString& path, LoadOutcome outcome, FileContents contents);

  // Saves `bytes`, the manager's lists, which makes the file known. Results as
  // FileAccess::SaveWholeFile; NotOpened also when MayWrite says no.
  SaveResult Save(const CString& path, std::string bytes);

  // What the file holds, while it is known and unchanged; else null. Good until the next load or
  // save.
  const FileContents* Known(const CString& path) const;

  // Whether the file may be overwritten: it is missing, worthless, or known and unchanged.
  // Otherwise it is copied first (KeptCopies.h), with a line in the log that says why. False, also
  // with a line, when the copy fails. A known and unchanged file costs one system call.
  bool MayWrite(const CString& path);

private:
  struct File {
    CString path;
    bool known = false;
    FileContents contents;
    LoadOutcome outcome = LoadOutcome::NotTried;
    bool savedInLoad = false;
    int lastCopy = -1;
  };

  void NoteSaved(const CString& path, std::string bytes);
  bool Knows(const File& file) const { return file.known && loads_ == 0; }
  File& FileAt(const CString& path);
  // As MayWrite, but leaves the line to the caller, who logs it last: logging may let the terminal
  // save, load or start anew.
  bool MayWrite(const CString& path, KeptLine& line);
  bool Keep(File& file, FileContents now, KeptLine& line);

  Worthless worthless_;
  std::vector<File> files_; // seldom more than two
  int loads_ = 0;           // in progress
};

} // namespace tq
