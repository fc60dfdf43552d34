#include "tests/support/HeldObjects.h"

#include "platform/win32/FileHandle.h"

long HeldObjects() {
  long count = 0;
  for (int kind = 0; kind < tq::kSystemObjects; ++kind) {
    const tq::SystemObjectCount each = tq::CountOf(static_cast<tq::SystemObject>(kind));
    count += each.opened - each.closed;
  }
  return count;
}

LeftOpen::LeftOpen() {
  auto* const file = new tq::FileHandle;
  file->Open(L"NUL", GENERIC_READ, tq::kShareAll, OPEN_EXISTING);
  object_ = file;
}

LeftOpen::~LeftOpen() {
  delete static_cast<tq::FileHandle*>(object_);
}
