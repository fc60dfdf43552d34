// A service's module as its writers build it: by TQ_SERVICE_BUILD and without a list of exports.
#include "platform/services/TQLog.h"
#include "platform/services/TQSObj.h"

TQLog::TQLog() : impl_(nullptr) {}
TQLog::~TQLog() = default;

int TQLog::storage(const char*, const char*, const char*, bool, bool) {
  return impl_ != nullptr;
}

TQLog& TQLog::operator()(int) {
  return *this;
}

int TQLog::write(const char*, ...) {
  return 0;
}

int TQSGetUserExtraValue(const char*, const char*, char*, int size) {
  return size;
}

// Where nothing is marked for export MinGW shows everything: this must stay inside.
int NotShown();
int NotShown() {
  return 1;
}
