#include "soak/Files.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "soak/RawFiles.h"
#include "symbollist/file/KeptCopies.h"

namespace soak {
namespace {

constexpr std::string_view kListFiles[] = {"\\SymbolList.xml", "\\SymbolList_Backup.xml",
                                           "\\Third.xml"};

bool IsListFile(const std::string& path) {
  return std::any_of(std::begin(kListFiles), std::end(kListFiles),
                     [&](std::string_view name) { return path.ends_with(name); });
}

// "\SymbolList_20260131.xml".
bool IsOfHistory(std::string_view path) {
  constexpr std::string_view kStart = "\\SymbolList_";
  constexpr std::string_view kEnd = ".xml";
  constexpr std::size_t kDay = 8;
  const std::string_view name = path.substr(std::min(path.rfind('\\'), path.size()));
  return name.size() == kStart.size() + kDay + kEnd.size() && name.starts_with(kStart) &&
         name.find_first_not_of("0123456789", kStart.size()) == kStart.size() + kDay;
}

// The list file of which the path is a kept copy, or its file of a day; empty when it is neither.
std::string OriginalOf(const std::string& path) {
  const std::string directory = path.substr(0, path.rfind('\\'));
  if (IsOfHistory(path))
    return directory + std::string(kListFiles[0]);
  for (const std::string_view name : kListFiles) {
    std::string original = directory + std::string(name);
    for (int number = 0; number < tq::kKeptCopies; ++number)
      if (path == tq::KeptCopyPath(original.c_str(), number).GetString())
        return original;
  }
  return "";
}

} // namespace

Files::File& Files::At(const std::string& path) {
  const auto found = files_.find(path);
  if (found != files_.end())
    return found->second;
  File& file = files_[path];
  file.seen = unread_;
  ReadRaw(path, file.bytes);
  return file;
}

void Files::ForgetAll() {
  unread_ = Seen::No;
  for (auto& [path, file] : files_)
    file.seen = Seen::No;
}

int Files::TakeWrites() {
  return std::exchange(writes_, 0);
}

const std::string& Files::BytesOf(const std::string& path) {
  return At(path).bytes;
}

void Files::Loaded(const std::string& path, const Lists& now, bool undisturbed) {
  if (path.empty())
    return ForgetAll();
  File& file = At(path);
  if (file.bytes == FileOf(now)) {
    file.seen = Seen::Yes;
    return;
  }
  const auto held = ListsIn(file.bytes);
  const auto sameId = [](const List& one, const List& other) { return one.id == other.id; };
  if (!held || held->empty() || held->size() > now.lists.size() ||
      !std::equal(held->begin(), held->end(), now.lists.begin(), sameId))
    return ForgetAll();
  if (std::equal(held->begin(), held->end(), now.lists.begin()))
    file.seen = Seen::Yes;
  else
    file.seen = undisturbed ? Seen::No : Seen::Unsure; // what moved does not come back as it was
}

void Files::LoadedSomething() {
  unread_ = Seen::Unsure;
  for (auto& [path, file] : files_)
    file.seen = Seen::Unsure;
}

void Files::Intruded(const std::string& path, const std::string& bytes) {
  At(path) = {bytes, Seen::No};
}

bool Files::IsKept(const std::string& path, const std::string& bytes) const {
  std::string copy;
  for (int number = 0; number < tq::kKeptCopies; ++number)
    if (ReadRaw(tq::KeptCopyPath(path.c_str(), number).GetString(), copy) && copy == bytes)
      return true;
  return false;
}

// What is saved are the lists in memory; or none, to a file that has none.
void Files::CheckText(const std::string& path, const std::string& bytes) {
  const std::string expected = FileOf(inMemory_());
  if (bytes != expected && !IsEmptyFile(bytes))
    tell_(path + " is saved with other lists than those in memory: " + bytes + "\ninstead of " +
          expected);
}

void Files::CheckCopy(const std::string& path, const std::string& bytes) {
  std::string original;
  ReadRaw(path, original);
  if (bytes != original)
    tell_("the copy that is kept of " + path + " is another file");
}

void Files::BeforeSave(const std::string& path, const std::string& bytes) {
  if (const std::string original = OriginalOf(path); !original.empty())
    return CheckCopy(original, bytes);
  if (!IsListFile(path))
    return;
  ++writes_;
  CheckText(path, bytes);
  const File& file = At(path);
  if (file.seen == Seen::No && !loading_ && HoldsList(file.bytes) && file.bytes != bytes &&
      !IsKept(path, file.bytes))
    tell_(path + " is written over, and nobody has its lists: " + file.bytes);
}

void Files::AfterSave(const std::string& path, const std::string& bytes, bool saved) {
  if (saved)
    At(path) = {bytes, Seen::Yes};
}

void Files::AfterRename(const std::string& from, const std::string& to) {
  At(to) = {At(from).bytes, Seen::No};
  files_.erase(from);
}

// But for the oldest days nothing is ever deleted.
void Files::AfterRemoval(const std::string& path) {
  if (!IsOfHistory(path))
    tell_(path + " is deleted");
  files_.erase(path);
}

} // namespace soak
