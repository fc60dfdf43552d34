#include "platform/services/TQSProxy.h"

#include "platform/CodePage.h"
#include "terminal/StandIn.h"
#include "terminal/control/Reports.h"
#include "terminal/control/Script.h"

using namespace standin;

int TQSGetUserInfo(LoginInfoFlag flag, char* buffer, const char* reserved) {
  const bool proceed = Begin("TQSGetUserInfo", static_cast<int>(flag), reserved);
  if (!proceed || !buffer || !reserved)
    return 0;
  const Market& market = CurrentMarket();
  switch (flag) {
  case LoginInfoEntitledExchanges:
    tq::CopyCut(buffer, TQSUserInfoSize, ToAnsi(market.entitled).c_str());
    return 1;
  case LoginInfoDefaultExchanges:
    tq::CopyCut(buffer, TQSUserInfoSize, ToAnsi(market.defaults).c_str());
    return 1;
  default:
    return 0;
  }
}

void TQSCall(const char* target, long reserved, long code, const char* reason) {
  const bool proceed = Begin("TQSCall", target, reserved, code, reason);
  if (!proceed || !target || !reason)
    return;
  ReportNotification({target, reserved, code, reason});
}
