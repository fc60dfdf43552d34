// What the terminal's services say of exchanges and of the user's entitlements.
#pragma once

#include <array>
#include <cstring>
#include <span>
#include <string_view>

#include "platform/ServiceArray.h"
#include "platform/Text.h"
#include "platform/framework/CString.h"
#include "platform/services/TQSProxy.h"

namespace tq {

// Entitlements exist for exchanges 1 to 127 only.
constexpr int kLastEntitledExchange = 127;
constexpr bool CanBeEntitled(int exchId) {
  return exchId >= 1 && exchId <= kLastEntitledExchange;
}

// One family of exchanges: supported only together, and hidden together from users without the full
// menu.
constexpr std::array<int, 3> kFamilyExchanges = {10, 11, 12};

// The service's list of exchanges, read on construction.
class ExchangeList {
public:
  ExchangeList() { result_ = VLGetExch(exchanges_.List(), exchanges_.Count(), 1); }

  // The service's own result, 0 for failure.
  int Result() const { return result_; }
  // In the service's order; empty after a failure.
  std::span<const ExchInfo> Records() const {
    return result_ ? exchanges_.Records() : std::span<const ExchInfo>();
  }

private:
  ServiceArray<ExchInfo> exchanges_{"VLGetExch"};
  int result_;
};

// The name in a record. A name that fills its field has no NUL.
std::string_view NameOf(const ExchInfo& exchange);

// The name of the exchange with that id. 0, with `name` as it was, when the service fails or lists
// none.
int ReadExchangeName(int exchId, CString& name);

// Calls visit(number) for each of the comma-separated numbers that the login information holds
// under `flag`, in order. False, with nothing called, when the information cannot be read.
template <typename Visit> bool ReadLoginNumbers(LoginInfoFlag flag, Visit visit) {
  char text[TQSUserInfoSize] = {};
  if (!TQSGetUserInfo(flag, text, ""))
    return false;
  ForEachNumber(std::string_view(text, strnlen(text, sizeof text)),
                [&](int, int number) { visit(number); });
  return true;
}

// Whether the user is entitled to an exchange. The service is asked each time.
bool IsEntitled(int exchId);

// Sets mask[n] to 1 for each exchange n that the user is entitled to. 0, and nothing set, when the
// service fails.
int ReadEntitlements(std::span<int, kLastEntitledExchange + 1> mask);

// Whether the user has the full menu. The service is asked each time.
bool HasFullMenu();

} // namespace tq
