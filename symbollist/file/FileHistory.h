// Keeps the list file as it was before each day's first save, so that a user can have the lists of
// an earlier day back. Off unless the terminal wants it.
//
// The file of a day is named for the day of that save, "\SymbolList_20260131.xml" beside the list
// file: it holds the lists as they were when that day began. Other files are not touched.
#pragma once

#include <string>
#include <vector>

#include "platform/framework/CString.h"
#include "symbollist/file/KeptFiles.h"

namespace tq {

// Whether a text names a day, eight digits of a year, a month and a day of it.
bool IsDay(const std::string& text);

// The file of a day, which IsDay, beside the list file at `path`.
CString HistoryPath(const CString& path, const std::string& day);

class FileHistory {
public:
  // Of how many days files stay; 0 or less: none is kept from now on, and none deleted.
  void SetDays(int days) { days_ = days; }
  // Whether the next save of the file at `path` is the first one of today, as far as is known
  // without asking the system for more than the day.
  bool IsDue(const CString& path) const;

  // Keeps the file at `path`, unless it holds no list, or its copy of today is there already. Then
  // deletes the oldest files of days beyond the number. `known` is what the file holds, or null:
  // then it is read. What cannot be kept does not hold up the save; the next one tries again.
  // Returns what is to be said of it when the save is done.
  KeptLine Keep(const CString& path, const FileContents* known);

  // The days of which there is a file in that directory, the latest first.
  static std::vector<std::string> DaysIn(const CString& directory);

private:
  bool KeepAs(const CString& copy, const CString& path, const FileContents* known) const;
  void DeleteOldest(const CString& path) const;

  int days_ = 0;
  CString donePath_; // the file that was last kept or need not be, and the day of it
  int doneDay_ = 0;
};

} // namespace tq
