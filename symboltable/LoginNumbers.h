// The numbers that the login information carries, comma-separated.
#pragma once

#include <cstring>
#include <string_view>

#include "platform/LeadingInt.h"
#include "platform/services/TQSProxy.h"

namespace tq {

// Calls visit(number) for each of them, in their order. False, and nothing called, when the
// information cannot be read.
template <typename Visit> bool ReadLoginNumbers(LoginInfoFlag flag, Visit visit) {
  char text[TQSUserInfoSize] = {};
  if (!TQSGetUserInfo(flag, text, ""))
    return false;
  ForEachNumber(std::string_view(text, strnlen(text, sizeof text)),
                [&](int, int number) { visit(number); });
  return true;
}

} // namespace tq
