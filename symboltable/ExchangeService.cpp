#include "symboltable/ExchangeService.h"

#include "platform/FieldText.h"
#include "platform/Text.h"
#include "platform/services/TQSObj.h"

namespace tq {

std::string_view NameOf(const ExchInfo& exchange) {
  return FieldText(exchange.name);
}

int ReadExchangeName(int exchId, CString& name) {
  const ExchangeList exchanges;
  for (const ExchInfo& exchange : exchanges.Records()) {
    if (exchange.id != exchId)
      continue;
    name = ToCString(NameOf(exchange));
    return 1;
  }
  return 0;
}

bool IsEntitled(int exchId) {
  int mask[kLastEntitledExchange + 1] = {};
  return CanBeEntitled(exchId) && ReadEntitlements(mask) && mask[exchId] != 0;
}

int ReadEntitlements(std::span<int, kLastEntitledExchange + 1> mask) {
  return ReadLoginNumbers(LoginInfoEntitledExchanges, [&](int exchId) {
    if (CanBeEntitled(exchId))
      mask[static_cast<std::size_t>(exchId)] = 1;
  });
}

bool HasFullMenu() {
  char value[TQSExtraValueSize] = {};
  return TQSGetUserExtraValue("", "FullMenuKey", value, static_cast<int>(sizeof value)) != 0 &&
         value[0] != '\0';
}

} // namespace tq
