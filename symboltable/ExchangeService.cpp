#include "symboltable/ExchangeService.h"

#include <cstring>

#include "platform/services/TQSObj.h"
#include "platform/services/TQSProxy.h"
#include "symboltable/LeadingInt.h"

namespace tq {
namespace {

// The services' own sizes.
constexpr std::size_t UserInfoSize = 256;
constexpr std::size_t ExtraValueSize = 1024;

std::string_view TextIn(const char* field, std::size_t size) {
  return {field, strnlen(field, size)};
}

} // namespace

std::string_view NameOf(const ExchInfo& exchange) {
  return TextIn(exchange.name, sizeof exchange.name);
}

int ReadEntitlements(std::span<int, LastEntitledExchange + 1> mask) {
  char text[UserInfoSize] = {};
  if (!TQSGetUserInfo(LoginInfoEntitledExchanges, text, ""))
    return 0;
  ForEachNumber(TextIn(text, sizeof text), [&](int, int exchId) {
    if (CanBeEntitled(exchId))
      mask[static_cast<std::size_t>(exchId)] = 1;
  });
  return 1;
}

bool HasFullMenu() {
  char value[ExtraValueSize] = {};
  return TQSGetUserExtraValue("", "FullMenuKey", value, static_cast<int>(sizeof value)) != 0 &&
         value[0] != '\0';
}

} // namespace tq
