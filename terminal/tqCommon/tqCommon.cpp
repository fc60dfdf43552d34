#include "platform/services/tqCommon.h"

#include "terminal/control/Reports.h"
#include "terminal/control/Script.h"

using namespace standin;

int IsTraditionChinese() {
  return InterfaceLanguage() == Language::Traditional ? 1 : 0;
}

int tqShowDllMessage(void* resources, unsigned id, unsigned type) {
  if (!Begin("tqShowDllMessage", id, type))
    return 0;
  return ReportMessage({id, type, resources, std::string()});
}
