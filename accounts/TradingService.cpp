#include "accounts/TradingService.h"

#include <algorithm>

#include "accounts/Holdings.h"
#include "platform/Text.h"
#include "platform/diagnostics/ServiceChecks.h"

namespace tq {
namespace {

// Owns a text that the proxy handed out.
class ServiceText {
public:
  ServiceText() = default;
  ServiceText(const ServiceText&) = delete;
  ServiceText& operator=(const ServiceText&) = delete;
  ~ServiceText() {
    if (text_ != nullptr)
      TQSFree(text_);
  }
  char** Receive() { return &text_; }
  const char* Get() const { return text_; }

private:
  char* text_ = nullptr;
};

bool FindInfo(const CString& tsId, TQS_TSINFO& found) {
  const std::string_view wanted = ViewOf(tsId);
  const int count = std::min(TQSGetTSCount(), kMostSystems);
  for (int i = 0; i < count; ++i) {
    TQS_TSINFO info = {};
    if (TQSGetTSInfo(i, &info) == 0)
      continue;
    CheckRecord("TQSGetTSInfo", info);
    if (FieldText(info.id) == wanted) {
      found = info;
      return true;
    }
  }
  return false;
}

} // namespace

bool FetchTradingSystem(const CString& tsId, CTS& system) {
  if (TQSGetTSStatus(tsId) == 0 || !FindInfo(tsId, system.info))
    return false;
  const int count = std::min(TQSGetTSAccountCount(tsId), kMostAccounts);
  for (int i = 0; i < count; ++i) {
    CAccount account;
    if (TQSGetTSAccount(tsId, i, &account.info) == 0)
      continue;
    CheckRecord("TQSGetTSAccount", account.info);
    FetchHoldings(tsId, account.Id(), account.info.type, account.holdings);
    system.accounts.push_back(std::move(account));
  }
  return true;
}

bool FetchHoldings(const CString& tsId, const CString& accountId, TqsAccType type,
                   CString& holdings) {
  ServiceText text;
  if (TQSGetTSAccountHolding(tsId, accountId, type, text.Receive()) == 0)
    return false;
  holdings = TidyHoldings(text.Get());
  return true;
}

} // namespace tq
