// What the manager knows of the list files on the disk, so that no save writes over lists that
// nobody has seen. A file that was read whole, or that the manager wrote itself, may be written
// over; any other (its load failed or ended early, the start failed before it, another program
// wrote it since) is copied beside itself first.
//
// One thread. Paths are compared byte by byte; another spelling of one file's path only costs a
// copy.
#pragma once

#include <string>
#include <vector>

#include "platform/FileAccess.h"
#include "platform/framework/CString.h"

namespace tq {

// The largest file that is copied, in bytes. Far more than any list file has, and than is ever read
// as one.
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
  NotTried,   // never loaded, or the manager has begun anew since
};

// A file as it was when it was read or written.
struct FileContents {
  std::string bytes;
  FileStamp stamp; // an empty one when somebody wrote the file meanwhile
  bool returns =
      true; // what was read from it is what comes back once it has been saved and read again
};

// Reads a whole file with its stamp. Results as FileAccess::ReadWholeFile.
ReadResult ReadContents(const CString& path, std::size_t limit, FileContents& contents);

class KeptFiles {
public:
  // No file is known: the lists in memory come from none.
  void ForgetAll();
  // The load of a file begins, which empties the lists in memory: until it ends no file counts as
  // known, for the symbol-data service may let the terminal save meanwhile.
  void BeginLoad() { ++loads_; }
  // It ended. After Whole that file is known, and the others stay as they are; after Empty that
  // file alone is, after any other outcome none. Returns whether the terminal saved into the file
  // since the load began: what it holds then is not what was read.
  bool EndLoad(const CString& path, LoadOutcome outcome, FileContents contents);

  // Saves `bytes`, the manager's lists, which makes the file known. Results as
  // FileAccess::SaveWholeFile; NotOpened also when MayWrite says no.
  SaveResult Save(const CString& path, std::string bytes);

  // Whether the file may be written over: it is missing, holds no list, or is known as it is now;
  // else its bytes are kept in a copy (KeptCopies.h) first, with a line in the log that says why.
  // False, with a line, when that cannot be done. For a known file that nobody has written since,
  // this is one question to the system.
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
  // The same as MayWrite, with the line to be logged: by the caller, when all is done, since the
  // terminal may save, load or start anew while it is written.
  bool MayWrite(const CString& path, CString& line);
  bool Keep(File& file, FileContents now, CString& line);

  std::vector<File> files_; // seldom more than two
  int loads_ = 0;           // that have begun and not ended
};

} // namespace tq
