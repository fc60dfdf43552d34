#include "platform/ReadSteps.h"

namespace tq {

ReadResult RunRead(ReadSteps& steps, std::size_t limit, std::string& bytes) {
  FileStamp before;
  for (int i = 0; i < kReadTries; ++i) {
    bytes.clear();
    if (!steps.Stamp(before))
      return ReadResult::Failed;
    if (before.size > limit)
      return ReadResult::TooLarge;
    bytes.resize(static_cast<std::size_t>(before.size));
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
