#include "soak/Ledger.h"

#include <algorithm>

namespace soak {
namespace {

template <std::size_t N> void Store(std::array<char, N>& field, std::string_view text) {
  const std::size_t length = std::min(text.size(), N - 1);
  std::copy_n(text.data(), length, field.data());
  field[length] = '\0';
}

} // namespace

std::uint64_t Ledger::Operations() const {
  std::uint64_t all = 0;
  for (const Counter& each : operations)
    all += each.Value();
  return all;
}

void Ledger::NoteLoss(std::string_view text) {
  if (loss[0] == '\0')
    Store(loss, text);
}

void Ledger::NoteOperation(std::string_view signature) {
  Store(operation, signature);
}

FileNote* Ledger::NoteOf(std::string_view path) {
  const int count = fileCount.load();
  for (int i = 0; i < count; ++i)
    if (path == files[static_cast<std::size_t>(i)].path.data())
      return &files[static_cast<std::size_t>(i)];
  if (count == kMostFiles || path.size() >= files[0].path.size())
    return nullptr;
  FileNote& note = files[static_cast<std::size_t>(count)];
  Store(note.path, path);
  note.settled = kNoFile;
  note.isBeingWritten = false;
  fileCount.store(count + 1);
  return &note;
}

bool Ledger::IsSaving() const {
  return std::any_of(files.begin(), files.begin() + fileCount.load(),
                     [](const FileNote& note) { return note.isBeingWritten.load(); });
}

void Ledger::Clear() {
  fileCount = 0;
  step = 0;
  loss[0] = operation[0] = '\0';
}

} // namespace soak
