#include "tests/terminal/ServiceOperations.h"

#include "platform/framework/CPtrArray.h"
#include "platform/framework/CString.h"
#include "platform/services/TQSObj.h"
#include "platform/services/TQSProxy.h"
#include "platform/services/tqCommon.h"
#include "platform/services/tqStock.h"
#include "platform/services/tqUtil.h"
#include "tests/terminal/ArrayOwner.h"

namespace {

int SetUp() {
  Attrs attrs;
  VLGetBaseAttrs("2330.TW", &attrs.list, &attrs.count, 1);
  return CStaticKey().Setup(attrs.list);
}

int GetHolding() {
  char* text = nullptr;
  const int result = TQSGetTSAccountHolding("VTS01", "98011", TqsAccType{1}, &text);
  TQSFree(text);
  return result;
}

std::vector<Operation> GroupOperations() {
  return {
      {"VLGetSubGroup",
       [] {
         ArrayOwner<GroupInfo> groups;
         return VLGetSubGroup(1, "", &groups.list, &groups.count);
       }},
      {"VLGetGroupSymbol",
       [] {
         Infos infos;
         return VLGetGroupSymbol(1, "CHIP", &infos.list, &infos.count, 1);
       }},
  };
}

std::vector<Operation> TradingOperations() {
  static TQS_TSINFO system;
  static TQS_ACCOUNTINFO account;
  return {
      {"TQSGetTSCount", [] { return TQSGetTSCount(); }},
      {"TQSGetTSInfo", [] { return TQSGetTSInfo(0, &system); }},
      {"TQSGetTSStatus", [] { return TQSGetTSStatus("VTS01"); }},
      {"TQSGetTSAccountCount", [] { return TQSGetTSAccountCount("VTS01"); }},
      {"TQSGetTSAccount", [] { return TQSGetTSAccount("VTS01", 0, &account); }},
      {"TQSGetTSAccountHolding", GetHolding},
  };
}

std::vector<Operation> SymbolAndUserOperations() {
  static char buffer[TQSUserInfoSize];
  static SymbolInfo info;
  return {
      {"VLGetExch", GetExch},
      {"VLGetBaseAttrs2",
       [] {
         Attrs attrs;
         return VLGetBaseAttrs2(1, -1, &attrs.list, &attrs.count, 0, 1);
       }},
      {"VLGetBaseAttrs",
       [] {
         Attrs attrs;
         return VLGetBaseAttrs("2330", &attrs.list, &attrs.count, 1);
       }},
      {"VLGetSymbolInfos",
       [] {
         Infos infos;
         return VLGetSymbolInfos("2330.TW", &infos.list, &infos.count);
       }},
      {"VLGetSymbolInfos2",
       [] {
         Infos infos;
         return VLGetSymbolInfos2(1, -1, &infos.list, &infos.count, 0);
       }},
      {"VLGetSymbolInfo", [] { return VLGetSymbolInfo("2330.TW", &info); }},
      {"VLFindSymbol",
       [] {
         Infos infos;
         return VLFindSymbol("2330", &infos.list, &infos.count, 0, 0, -1);
       }},
      {"VLFindSymbol2",
       [] {
         Infos infos;
         return VLFindSymbol2("2330", "1,2", &infos.list, &infos.count, 0, 0);
       }},
      {"VLEX2ZUID2",
       [] {
         Infos infos;
         return VLEX2ZUID2("2330", &infos.list, &infos.count);
       }},
      {"TQSGetUserInfo", [] { return TQSGetUserInfo(LoginInfoEntitledExchanges, buffer, ""); }},
      {"TQSGetUserExtraValue",
       [] { return TQSGetUserExtraValue("", "FullMenuKey", buffer, sizeof buffer); }},
      {"tqShowDllMessage", [] { return tqShowDllMessage(nullptr, 1, 0); }},
      {"tqShowMessageStr", [] { return tqShowMessageStr("text", 0); }},
      {"CCheckFileName::IsValidName",
       [] { return CCheckFileName::IsValidName(nullptr, "name", 0); }},
      {"CStaticKey::Setup", SetUp},
      {"CStaticKey::SetUpTrade", [] { return CStaticKey().SetUpTrade(1, "2330"); }},
      {"CStockKey::GetInfoArray",
       [] {
         CPtrArray rows;
         return CStockKey::GetInfoArray(InfoEconomicIndicators, rows);
       }},
      {"tqStockGetFieldString",
       [] {
         CString value;
         return tqStockGetFieldString(FieldReferencePrice, 1, "2330", value);
       }},
  };
}

} // namespace

std::vector<Operation> Operations() {
  std::vector<Operation> all = SymbolAndUserOperations();
  for (const std::vector<Operation>& more : {GroupOperations(), TradingOperations()})
    all.insert(all.end(), more.begin(), more.end());
  return all;
}
