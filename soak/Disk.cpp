#include "soak/Disk.h"

#include <array>
#include <chrono>
#include <string_view>
#include <thread>

#include "soak/RawFiles.h"
#include "tests/platform/HookedSteps.h"

namespace soak {
namespace {

using tqtest::Fate;
using tqtest::Step;

struct Trouble {
  Step step;
  Fate fate;
  Count count;
};

constexpr std::array kTroubles = {
    Trouble{Step::OpenTarget, Fate::Fail, Count::DiskFaults},
    Trouble{Step::OpenTemporary, Fate::Fail, Count::DiskFaults},
    Trouble{Step::WriteTemporary, Fate::Fail, Count::FullDisks},
    Trouble{Step::WriteTemporary, Fate::Short, Count::FullDisks},
    Trouble{Step::FlushTemporary, Fate::Fail, Count::DiskFaults},
    Trouble{Step::ReplaceTarget, Fate::Fail, Count::DiskFaults},
};

// Then the file is written in place, which no kill may come into.
constexpr std::array kRefusals = {
    Trouble{Step::OpenTemporary, Fate::Refuse, Count::DiskFaults},
    Trouble{Step::ReplaceTarget, Fate::Refuse, Count::DiskFaults},
};

// What a killed process has written survives in the system's cache: flushing costs time only.
bool IsFlush(Step step) {
  return step == Step::FlushTemporary || step == Step::FlushDirectory;
}

// As no save may be: a kill on the way leaves a part of the bytes, and none of the old ones. It
// takes its time, so that the kills of a short run come into it.
tq::SaveResult SaveCarelessly(const char* path, const std::string& bytes) {
  WriteRaw(path, bytes.substr(0, bytes.size() / 2));
  std::this_thread::sleep_for(std::chrono::milliseconds(2));
  WriteRaw(path, bytes);
  return tq::SaveResult::Saved;
}

} // namespace

Disk::Disk(Ledger& ledger, Random& random, DiskWatch& watch, bool careless)
    : FileAccessWrapper(tq::SystemFiles()), ledger_(ledger), random_(random), watch_(watch),
      careless_(careless), before_(tq::SetFiles(this)) {}

Disk::~Disk() {
  tq::SetFiles(before_);
}

bool Disk::ReadingFails() {
  if (!random_.OnceIn(trouble_.reading))
    return false;
  ledger_.Add(Count::DiskFaults);
  ++troubles_;
  return true;
}

tq::ReadResult Disk::ReadWholeFile(const char* path, std::size_t limit, std::string& bytes) {
  if (ReadingFails()) {
    bytes.clear();
    return random_.OnceIn(4) ? tq::ReadResult::TooLarge : tq::ReadResult::Failed;
  }
  ledger_.Add(Count::Loads);
  return FileAccessWrapper::ReadWholeFile(path, limit, bytes);
}

tq::FileState Disk::StateOf(const char* path, tq::FileStamp& stamp) {
  if (!ReadingFails())
    return FileAccessWrapper::StateOf(path, stamp);
  stamp = {};
  return tq::FileState::Unknown;
}

bool Disk::FileExists(const char* path) {
  return !ReadingFails() && FileAccessWrapper::FileExists(path);
}

bool Disk::RenameFile(const char* from, const char* to) {
  FileNote* const old = ledger_.NoteOf(from);
  FileNote* const now = ledger_.NoteOf(to);
  if (ReadingFails() || old == nullptr || now == nullptr)
    return false;
  old->wanted = kNoFile;
  now->wanted = old->settled.load();
  old->isBeingWritten = now->isBeingWritten = true;
  const bool renamed = FileAccessWrapper::RenameFile(from, to);
  for (FileNote* const note : {old, now}) {
    if (renamed)
      note->settled = note->wanted.load();
    note->isBeingWritten = false;
  }
  if (renamed)
    watch_.AfterRename(from, to);
  return renamed;
}

bool Disk::RemoveFile(const char* path) {
  FileNote* const note = ledger_.NoteOf(path);
  if (ReadingFails() || note == nullptr)
    return false;
  note->wanted = kNoFile;
  note->isBeingWritten = true;
  const bool removed = FileAccessWrapper::RemoveFile(path);
  if (removed)
    note->settled = kNoFile;
  note->isBeingWritten = false;
  if (removed)
    watch_.AfterRemoval(path);
  return removed;
}

bool Disk::ListFiles(const char* directory, const char* prefix, std::vector<std::string>& names) {
  names.clear();
  return !ReadingFails() && FileAccessWrapper::ListFiles(directory, prefix, names);
}

tq::SaveResult Disk::SaveWholeFile(const char* path, const void* bytes, std::size_t size) {
  const std::string text(static_cast<const char*>(bytes), size);
  FileNote* const note = ledger_.NoteOf(path);
  if (note == nullptr)
    return tq::SaveResult::NotOpened;
  watch_.BeforeSave(path, text);
  note->wanted = PrintOf(text);
  note->isBeingWritten = true;
  const tq::SaveResult result = Save(path, text);
  const bool saved = result == tq::SaveResult::Saved;
  if (saved)
    note->settled = note->wanted.load();
  CheckRefused(path, *note);
  note->isBeingWritten = false;
  ledger_.Add(saved ? Count::Saves : Count::RefusedSaves);
  watch_.AfterSave(path, text, saved);
  return result;
}

void Disk::CheckRefused(const std::string& path, const FileNote& note) {
  std::string now;
  const Print print = ReadRaw(path, now) ? PrintOf(now) : kNoFile;
  if (print != note.settled)
    ledger_.NoteLoss(path + " is not as it was before a save that failed, or as one that did not");
}

tq::SaveResult Disk::Save(const char* path, const std::string& bytes) {
  if (careless_)
    return SaveCarelessly(path, bytes);
  const bool goesWrong = random_.OnceIn(trouble_.saving);
  const bool refused = goesWrong && trouble_.mayRefuse && random_.OnceIn(3);
  const Trouble trouble = refused ? random_.One(kRefusals) : random_.One(kTroubles);
  tqtest::HookedSteps steps(path, [&](Step step) {
    if (!goesWrong || step != trouble.step)
      return IsFlush(step) ? Fate::Skip : Fate::Proceed;
    ledger_.Add(trouble.count);
    ++troubles_;
    return trouble.fate;
  });
  return tq::RunSave(steps, bytes.data(), bytes.size());
}

void Disk::Intrude(const std::string& path, const std::string& bytes) {
  FileNote* const note = ledger_.NoteOf(path);
  if (note == nullptr)
    return;
  note->wanted = PrintOf(bytes);
  note->isBeingWritten = true;
  if (tq::SystemFiles().SaveWholeFile(path.c_str(), bytes.data(), bytes.size()) ==
      tq::SaveResult::Saved)
    note->settled = note->wanted.load();
  note->isBeingWritten = false;
  ledger_.Add(Count::Intrusions);
}

} // namespace soak
