// TQSProxy: the trading systems that the user is logged in to, their accounts and holdings.
#include <cstring>
#include <string_view>

#include "platform/CodePage.h"
#include "platform/services/TQSProxy.h"
#include "terminal/control/Answers.h"
#include "terminal/control/Script.h"
#include "terminal/control/ServiceArrays.h"
#include "terminal/control/TradingRecords.h"

using namespace standin;

namespace {

const std::vector<TQS_TSINFO>& Systems() {
  const Answer<TQS_TSINFO>* answer = AnsweredTradingSystems();
  return answer ? answer->records : CurrentTradingRecords().Systems();
}

const std::vector<TQS_ACCOUNTINFO>& Accounts(const char* tsId) {
  static const std::vector<TQS_ACCOUNTINFO> kNone;
  if (const Answer<TQS_ACCOUNTINFO>* answer = AnsweredAccounts(tsId))
    return answer->records;
  const TradingSystem* system = FindSystem(tsId);
  if (!system)
    return kNone;
  return CurrentTradingRecords().Accounts(
      static_cast<std::size_t>(system - CurrentMarket().tradingSystems.data()));
}

// The record at the caller's index; false when there is none.
template <class T> int GetRecord(const std::vector<T>& records, int index, T* record) {
  if (index < 0 || static_cast<std::size_t>(index) >= records.size())
    return 0;
  std::memcpy(record, &records[static_cast<std::size_t>(index)], sizeof(T));
  return 1;
}

// Whether a test has replaced the system's record; the system is then available.
bool IsAnswered(std::string_view tsId) {
  if (const Answer<TQS_TSINFO>* answer = AnsweredTradingSystems())
    for (const TQS_TSINFO& info : answer->records)
      if (std::string_view(info.id, ::strnlen(info.id, sizeof info.id)) == tsId)
        return true;
  return false;
}

} // namespace

int TQSGetTSCount() {
  if (!Begin("TQSGetTSCount"))
    return 0;
  const Answer<TQS_TSINFO>* answer = AnsweredTradingSystems();
  return answer ? answer->count : static_cast<int>(Systems().size());
}

int TQSGetTSInfo(int index, TQS_TSINFO* info) {
  const bool proceed = Begin("TQSGetTSInfo", index);
  if (!proceed || !info)
    return 0;
  return GetRecord(Systems(), index, info);
}

int TQSGetTSStatus(const char* tsId) {
  const bool proceed = Begin("TQSGetTSStatus", tsId);
  if (!proceed || !tsId)
    return 0;
  if (const TradingSystem* system = FindSystem(tsId))
    return system->available ? 1 : 0;
  return IsAnswered(tsId) ? 1 : 0;
}

int TQSGetTSAccountCount(const char* tsId) {
  const bool proceed = Begin("TQSGetTSAccountCount", tsId);
  if (!proceed || !tsId)
    return 0;
  const Answer<TQS_ACCOUNTINFO>* answer = AnsweredAccounts(tsId);
  return answer ? answer->count : static_cast<int>(Accounts(tsId).size());
}

int TQSGetTSAccount(const char* tsId, int index, TQS_ACCOUNTINFO* account) {
  const bool proceed = Begin("TQSGetTSAccount", tsId, index);
  if (!proceed || !tsId || !account)
    return 0;
  return GetRecord(Accounts(tsId), index, account);
}

int TQSGetTSAccountHolding(const char* tsId, const char* accountId, TqsAccType type,
                           char** holdings) {
  const bool proceed = Begin("TQSGetTSAccountHolding", tsId, accountId, static_cast<int>(type));
  if (holdings)
    *holdings = nullptr;
  if (!proceed || !tsId || !accountId || !holdings)
    return 0;
  const TradingAccount* account = FindAccount(tsId, accountId, static_cast<int>(type));
  if (!account)
    return 0;
  *holdings = NewText(account->holdings);
  return *holdings ? 1 : 0;
}

void TQSFree(void* text) {
  NoteCall("TQSFree");
  ReleaseText(text);
}
