// Lists back from damaged files, and from the files of earlier days.
#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/Encoding.h"
#include "platform/FileAccess.h"
#include "platform/Log.h"
#include "platform/diagnostics/Operation.h"
#include "recovery/ListRecovery.h"
#include "symbollist/UserLists.h"
#include "symbollist/file/KeptCopies.h"
#include "symbollist/file/ListFile.h"

namespace tq {
namespace {

// A repair tells of each damaged list, up to this number.
constexpr std::size_t kMostLines = 32;

RecoveryOptions OptionsOfRepair() {
  const unsigned codePage = AnsiCodePage();
  RecoveryOptions options;
  options.assumed = codePage == kCodePageGbk ? TextEncoding::Gbk : TextEncoding::Big5;
  constexpr unsigned utf8 = 65001;
  options.encoding = codePage == utf8 ? TextEncoding::Utf8 : options.assumed;
  return options;
}

void Count(const RecoveredList& list, TQRepairCounts& counts) {
  if (list.fate == ListFate::Whole)
    ++counts.whole;
  else if (list.fate == ListFate::Repaired)
    ++counts.mended;
  else
    ++counts.lost;
}

CString LineOf(const RecoveredList& list) {
  const char* fate = list.fate == ListFate::Lost ? "lost" : "mended";
  CString line;
  line.Format("List '%s' at line %d is %s", list.name.c_str(), static_cast<int>(list.line), fate);
  for (const Finding& finding : list.findings)
    line += (": " + std::string(WordsOf(finding.fault))).c_str();
  return line;
}

struct Recovered {
  std::vector<RecoveredList> lists; // none of them lost
  int defaultIndex = -1;
  bool sound = false; // nothing is wrong with the file
  TQRepairCounts counts;
  std::vector<CString> lines; // for the log
};

Recovered Recover(const std::string& bytes) {
  Recovered recovered;
  ListRecovery recovery(bytes, OptionsOfRepair());
  RecoveredList list;
  while (recovery.Next(list)) {
    Count(list, recovered.counts);
    if (list.fate != ListFate::Whole && recovered.lines.size() < kMostLines)
      recovered.lines.push_back(LineOf(list));
    if (list.fate != ListFate::Lost)
      recovered.lists.push_back(std::move(list));
  }
  recovered.defaultIndex = recovery.DefaultList();
  recovered.sound = recovery.IsSound();
  return recovered;
}

// The copies that are kept of a file, the newest first.
std::vector<CString> CopiesOf(const CString& path) {
  std::vector<std::pair<std::uint64_t, CString>> copies;
  for (int number = 0; number < kKeptCopies; ++number) {
    FileStamp stamp;
    const CString copy = KeptCopyPath(path, number);
    if (Files().StateOf(copy, stamp) == FileState::File)
      copies.emplace_back(stamp.modified, copy);
  }
  std::stable_sort(copies.begin(), copies.end(),
                   [](const auto& one, const auto& other) { return one.first > other.first; });
  std::vector<CString> paths;
  paths.reserve(copies.size());
  for (auto& copy : copies)
    paths.push_back(std::move(copy.second));
  return paths;
}

} // namespace

int UserLists::Repair(TQRepairCounts& counts) {
  counts = {};
  const CString path = PathOf(kListFileName);
  if (path.IsEmpty())
    return NoteNoFile();
  if (TakeRecovered(path, counts))
    return 1;
  for (const CString& copy : CopiesOf(path)) {
    if (TakeRecovered(copy, counts))
      return 1;
  }
  return NoteProblem(TQProblemFileMissing, "neither %s nor a copy of it gives a list",
                     path.GetString());
}

bool UserLists::TakeRecovered(const CString& path, TQRepairCounts& counts) {
  FileContents contents;
  if (ReadContents(path, kKeptSizeLimit, contents) != ReadResult::Ok)
    return false;
  const Recovered recovered = Recover(contents.bytes);
  if (recovered.lists.empty())
    return false;
  counts = recovered.counts;
  const CString working = PathOf(kListFileName);
  if (recovered.sound && path == working) // and so within the limits of a load
    return LoadRead(path, ReadResult::Ok, std::move(contents)) != 0;
  keptFiles_.BeginLoad();
  ListVector lists;
  for (const RecoveredList& from : recovered.lists) {
    auto list = std::make_unique<CSymbolList>();
    list->SetID(from.id.c_str());
    list->SetName(from.name.c_str());
    list->Update1(from.symbols.c_str());
    RenameMovedIn(*list, rename_);
    lists.push_back(std::move(list));
  }
  lists_.Replace(std::move(lists));
  defaultIndex_ = recovered.defaultIndex;
  // Not as a load that was whole: the next save must keep what the file holds besides.
  keptFiles_.EndLoad(working, LoadOutcome::Damaged, {});
  for (const CString& line : recovered.lines)
    LogLine(kLogChange, "%s", line.GetString());
  LogLine(kLogChange, "List file %s is repaired: %d lists whole, %d mended, %d lost",
          path.GetString(), counts.whole, counts.mended, counts.lost);
  return true;
}

int UserLists::GetHistory(CStringArray& days) const {
  days.RemoveAll();
  if (!directory_.IsEmpty())
    for (const std::string& day : FileHistory::DaysIn(directory_))
      days.Add(day.c_str());
  return static_cast<int>(days.GetSize());
}

int UserLists::RestoreHistory(const CString& day) {
  const std::string text(day.GetString(), static_cast<std::size_t>(day.GetLength()));
  if (!IsDay(text))
    return NoteProblem(TQProblemRange, "'%s' is no day", text.c_str());
  const CString path = PathOf(kListFileName);
  if (path.IsEmpty())
    return NoteNoFile();
  const CString file = HistoryPath(path, text);
  FileStamp stamp;
  if (Files().StateOf(file, stamp) != FileState::File)
    return NoteProblem(TQProblemFileMissing, "there is no file %s", file.GetString());
  return LoadFrom(file);
}

} // namespace tq
