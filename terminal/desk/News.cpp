#include "terminal/desk/News.h"

#include <ctime>
#include <utility>

#include "terminal/desk/Resources.h"

namespace desk {
namespace {

// The codes of TQSCall.
constexpr long kNamesChanged = 4;      // or symbols were added
constexpr long kUserListsChanged = 40; // or those of trading accounts
constexpr long kCloudListsChanged = 41;

bool IsAboutLists(long code) {
  return code == kNamesChanged || code == kUserListsChanged || code == kCloudListsChanged;
}

CString Now() {
  char text[16] = "";
  const std::time_t now = std::time(nullptr);
  if (const std::tm* const local = std::localtime(&now))
    std::strftime(text, sizeof text, "%H:%M:%S", local);
  return CString(text);
}

CString NameOf(News::Kind kind) {
  switch (kind) {
  case News::Kind::Told:
    return Text(Word::Told);
  case News::Kind::Logged:
    return Text(Word::Logged);
  case News::Kind::Shown:
    return Text(Word::Shown);
  default:
    return Text(Word::Noted);
  }
}

// A message may have several lines, a row has one.
CString OneLine(CString text) {
  text.Replace('\n', ' ');
  return text;
}

CString Decimal(long number) {
  CString text;
  if (number != 0)
    text.Format("%ld", number);
  return text;
}

} // namespace

void News::Add(Kind kind, long number, const CString& text) {
  if (LineCount() == kMostLines)
    lines_.pop_front();
  lines_.push_back({Now(), kind, number, OneLine(text)});
  if (kind == Kind::Told && IsAboutLists(number))
    change_.lists = true;
  if (kind == Kind::Told && number == kCloudListsChanged)
    change_.cloudLists = true;
  Post();
}

void News::ListsChanged() {
  change_.lists = true;
  Post();
}

void News::Wake(const CWnd& window) {
  window_ = window;
  posted_ = false;
  Post();
}

void News::Post() {
  if (!posted_)
    posted_ = window_.Post(kMessage);
}

News::Change News::TakeChange() {
  posted_ = false;
  return std::exchange(change_, {});
}

CString News::Cell(int row, int column) const {
  if (row < 0 || row >= LineCount())
    return CString();
  const Line& line = lines_[static_cast<size_t>(row)];
  switch (column) {
  case Time:
    return line.time;
  case What:
    return NameOf(line.kind);
  case Number:
    return Decimal(line.number);
  default:
    return line.text;
  }
}

} // namespace desk
