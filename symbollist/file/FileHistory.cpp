#include "symbollist/file/FileHistory.h"

#include <algorithm>
#include <cstdio>
#include <functional>

#include "platform/FileAccess.h"
#include "platform/System.h"

namespace tq {
namespace {

constexpr std::size_t kDayLength = 8;
constexpr char kHistoryPrefix[] = "SymbolList_";
constexpr std::size_t kHistoryPrefixLength = sizeof(kHistoryPrefix) - 1;
constexpr char kHistoryEnd[] = ".xml";

int Number(const std::string& text, std::size_t at, std::size_t length) {
  int number = 0;
  for (std::size_t i = at; i < at + length; ++i)
    number = number * 10 + (text[i] - '0');
  return number;
}

std::string DayText(int day) {
  char text[16];
  std::snprintf(text, sizeof text, "%08d", day);
  return text;
}

CString DirectoryOf(const CString& path) {
  const std::size_t separator = SeparatorOf(path);
  return separator == std::string::npos ? CString() : path.Left(static_cast<int>(separator));
}

// The day of a file's name; empty when it is no file of the history.
std::string DayOf(const std::string& name) {
  if (name.size() != kHistoryPrefixLength + kDayLength + sizeof(kHistoryEnd) - 1 ||
      !name.ends_with(kHistoryEnd))
    return {};
  const std::string day = name.substr(kHistoryPrefixLength, kDayLength);
  return IsDay(day) ? day : std::string();
}

KeptLine NotKept(const CString& path, const CString& copy) {
  KeptLine line;
  line.problem = TQProblemFileNotKept;
  line.text.Format("List file %s of before this day could not be kept as %s", path.GetString(),
                   copy.GetString());
  return line;
}

} // namespace

bool IsDay(const std::string& text) {
  constexpr int months = 12;
  constexpr int days = 31;
  if (text.size() != kDayLength || text.find_first_not_of("0123456789") != std::string::npos)
    return false;
  const int month = Number(text, 4, 2);
  const int day = Number(text, 6, 2);
  return month >= 1 && month <= months && day >= 1 && day <= days;
}

CString HistoryPath(const CString& path, const std::string& day) {
  return DirectoryOf(path) + "\\" + kHistoryPrefix + day.c_str() + kHistoryEnd;
}

bool FileHistory::IsDue(const CString& path) const {
  return days_ > 0 && (donePath_ != path || doneDay_ != CurrentLocalDay());
}

KeptLine FileHistory::Keep(const CString& path, const FileContents* known) {
  const int today = CurrentLocalDay();
  const CString copy = HistoryPath(path, DayText(today));
  FileStamp stamp;
  const FileState state = Files().StateOf(copy, stamp);
  if (state != FileState::File && (state != FileState::Missing || !KeepAs(copy, path, known)))
    return NotKept(path, copy);
  donePath_ = path;
  doneDay_ = today;
  return {};
}

bool FileHistory::KeepAs(const CString& copy, const CString& path,
                         const FileContents* known) const {
  FileContents read;
  if (known == nullptr) {
    const ReadResult result = ReadContents(path, kKeptSizeLimit, read);
    if (result != ReadResult::Ok)
      return result == ReadResult::Missing;
    known = &read;
  }
  const std::string& bytes = known->bytes;
  if (HoldsNoList(bytes))
    return true;
  if (Files().SaveWholeFile(copy, bytes.data(), bytes.size()) != SaveResult::Saved)
    return false;
  DeleteOldest(path);
  return true;
}

std::vector<std::string> FileHistory::DaysIn(const CString& directory) {
  std::vector<std::string> names;
  std::vector<std::string> days;
  Files().ListFiles(directory, kHistoryPrefix, names);
  for (const std::string& name : names) {
    std::string day = DayOf(name);
    if (!day.empty())
      days.push_back(std::move(day));
  }
  std::sort(days.begin(), days.end(), std::greater<>());
  return days;
}

void FileHistory::DeleteOldest(const CString& path) const {
  const std::vector<std::string> days = DaysIn(DirectoryOf(path));
  for (std::size_t i = static_cast<std::size_t>(days_); i < days.size(); ++i)
    Files().RemoveFile(HistoryPath(path, days[i]));
}

} // namespace tq
