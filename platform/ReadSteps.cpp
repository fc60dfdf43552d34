#include "platform/ReadSteps.h"

#include <new>

namespace tq {
namespace {

bool MakeRoom(std::string& bytes, std::size_t size) {
  try {
    bytes.resize(size);
    return true;
  } catch (const std::bad_alloc&) { // a file that large is no reason to stop the terminal
    return false;
  }
}

} // namespace

ReadResult RunRead(ReadSteps& steps, std::size_t limit, std::string& bytes) {
  bytes.clear();
  const ReadResult opened = steps.Open();
  if (opened != ReadResult::Ok)
    return opened;
  FileStamp before;
  for (int i = 0; i < kReadTries; ++i) {
    bytes.clear();
    if (!steps.Stamp(before))
      return ReadResult::Failed;
    if (before.size > limit)
      return ReadResult::TooLarge;
    if (!MakeRoom(bytes, static_cast<std::size_t>(before.size)))
      break;
    const bool whole = steps.Read(bytes);
    FileStamp after;
    if (!steps.Stamp(after))
      break;
    if (after == before) {
      if (!whole)
        break;
      return ReadResult::Ok;
    }
    steps.Pause();
  }
  bytes.clear();
  return ReadResult::Failed;
}

} // namespace tq
