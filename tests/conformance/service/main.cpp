// Calls the module of Log.cpp. That it links is the test: each name is shown.
#include "platform/services/TQLog.h"
#include "platform/services/TQSObj.h"

int main() {
  TQLog log;
  const bool dropped = log.storage("", "", "", false, false) == 0 && log(1).write("%d", 1) == 0;
  return dropped && TQSGetUserExtraValue("", "", nullptr, 3) == 3 ? 0 : 1;
}
