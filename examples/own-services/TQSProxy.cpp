// The trading-system proxy: one user, who may see our exchange and has no accounts.
#include <TQSProxy.h>

#include <cstdio>

int TQSGetUserInfo(LoginInfoFlag flag, char* buffer, const char*) {
  const bool known = flag == LoginInfoEntitledExchanges || flag == LoginInfoDefaultExchanges;
  if (!known || buffer == nullptr)
    return 0;
  std::snprintf(buffer, TQSUserInfoSize, "1"); // the exchange of Market.h
  return 1;
}

// A terminal's pages read their lists anew here.
void TQSCall(const char*, long, long code, const char* reason) {
  std::printf("told: %ld \"%s\"\n", code, reason != nullptr ? reason : "");
}

int TQSGetTSCount() {
  return 0;
}

int TQSGetTSInfo(int, TQS_TSINFO*) {
  return 0;
}

int TQSGetTSStatus(const char*) {
  return 0;
}

int TQSGetTSAccountCount(const char*) {
  return 0;
}

int TQSGetTSAccount(const char*, int, TQS_ACCOUNTINFO*) {
  return 0;
}

int TQSGetTSAccountHolding(const char*, const char*, TqsAccType, char** holdings) {
  if (holdings != nullptr)
    *holdings = nullptr;
  return 0;
}

void TQSFree(void*) {}
