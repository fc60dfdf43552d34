#include <cstring>

#include "tests/conformance/Breach.h"
#include "tests/conformance/Faults.h"

using conformance::Rule;

namespace {

constexpr char kSystem[] = "VTS01";

TQS_TSINFO System(const char* id) {
  TQS_TSINFO info = {};
  std::strcpy(info.id, id);
  std::strcpy(info.name, "name");
  return info;
}

TQS_ACCOUNTINFO Account(const char* id) {
  TQS_ACCOUNTINFO account = {};
  account.type = static_cast<TqsAccType>(1);
  std::strcpy(account.id, id);
  std::strcpy(account.displayId, "display");
  return account;
}

// What the holdings of the account without any become: `result` with `text`.
void AnswerNoHoldings(int result, char* text) {
  TheFaults().TQSGetTSAccountHolding = [=](const char* tsId, const char* accountId, TqsAccType type,
                                           char** holdings) {
    if (std::strcmp(accountId, "F7001") != 0)
      return __real_TQSGetTSAccountHolding(tsId, accountId, type, holdings);
    *holdings = text;
    return result;
  };
}

char notHandedOut[] = "2330.TW";

std::vector<Breach> LoginBreaches() {
  return {
      {"LoginWritesBehind", Rule::InfoSize,
       [] {
         TheFaults().TQSGetUserInfo = [](LoginInfoFlag flag, char* buffer, const char* reserved) {
           const int result = __real_TQSGetUserInfo(flag, buffer, reserved);
           if (result != 0)
             std::memset(buffer + TQSUserInfoSize, '\0', 8);
           return result;
         };
       }},
      {"LoginNumbersByOtherMarks", Rule::InfoNumbers,
       [] { ChangeMarket([](auto& market) { market.entitled = "1;2"; }); }},
      {"DefaultIsNoExchange", Rule::InfoDefaults,
       [] { ChangeMarket([](auto& market) { market.defaults = "1,77"; }); }},
      {"UnknownFlagSucceeds", Rule::InfoUnknown,
       [] {
         TheFaults().TQSGetUserInfo = [](LoginInfoFlag flag, char* buffer, const char* reserved) {
           return flag > 100 ? 1 : __real_TQSGetUserInfo(flag, buffer, reserved);
         };
       }},
      {"ExtraValueWritesBehind",
       Rule::ExtraSize,
       [] {
         TheFaults().TQSGetUserExtraValue = [](const char* section, const char* key, char* buffer,
                                               int size) {
           const int result = __real_TQSGetUserExtraValue(section, key, buffer, size);
           if (result != 0 && size < 4)
             std::strcpy(buffer, "yes!");
           return result;
         };
       },
       {Rule::TextTerminated}},
      {"UnknownExtraValueSucceeds", Rule::ExtraFails,
       [] {
         TheFaults().TQSGetUserExtraValue = [](const char* section, const char* key, char* buffer,
                                               int size) {
           const bool unknown = section != nullptr && *section != '\0';
           return unknown ? 1 : __real_TQSGetUserExtraValue(section, key, buffer, size);
         };
       }},
  };
}

std::vector<Breach> SystemBreaches() {
  return {
      {"NegativeSystems", Rule::SystemCount, [] { standin::AnswerTradingSystems({}, -1); }},
      {"SystemLacks", Rule::SystemIndex,
       [] { standin::AnswerTradingSystems({System(kSystem)}, 2); }},
      {"SystemTwice", Rule::SystemId,
       [] {
         standin::AnswerTradingSystems({System(kSystem), System(kSystem)});
       }},
      {"SystemIdWithControl", Rule::SystemIdText,
       [] { standin::AnswerTradingSystems({System("V\x01")}); }},
      {"SystemNameWithoutNul", Rule::TextTerminated,
       [] {
         TQS_TSINFO info = System(kSystem);
         std::memset(info.name, 'x', sizeof info.name);
         standin::AnswerTradingSystems({info});
       }},
      {"UnknownSystemIsAvailable", Rule::SystemStatus,
       [] {
         TheFaults().TQSGetTSStatus = [](const char* tsId) { return tsId == nullptr ? 0 : 1; };
       }},
      {"NegativeAccounts", Rule::AccountCount, [] { standin::AnswerAccounts(kSystem, {}, -1); }},
      {"AccountBeforeTheFirst", Rule::AccountIndex,
       [] {
         TheFaults().TQSGetTSAccount = [](const char* tsId, int index, TQS_ACCOUNTINFO* account) {
           return index < 0 ? 1 : __real_TQSGetTSAccount(tsId, index, account);
         };
       }},
      {"AccountWithoutId", Rule::AccountIdText,
       [] { standin::AnswerAccounts(kSystem, {Account("")}); }},
      {"AccountTwice", Rule::AccountOnce,
       [] {
         standin::AnswerAccounts(kSystem, {Account("98011"), Account("98011")});
       }},
      {"HoldingsByOtherMarks", Rule::HoldingsText,
       [] { standin::SetHoldings(kSystem, "98011", 1, "2330.TW;2317.TW"); }},
      {"NoHoldingsAreNull", Rule::HoldingsEmpty, [] { AnswerNoHoldings(1, nullptr); }},
      {"FailedHoldingsHaveText", Rule::HoldingsFailed, [] { AnswerNoHoldings(0, notHandedOut); }},
  };
}

} // namespace

std::vector<Breach> TradingBreaches() {
  std::vector<Breach> all = LoginBreaches();
  const std::vector<Breach> systems = SystemBreaches();
  all.insert(all.end(), systems.begin(), systems.end());
  return all;
}
