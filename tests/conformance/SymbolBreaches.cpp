#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <string_view>

#include "tests/conformance/Breach.h"
#include "tests/conformance/Faults.h"

using conformance::Rule;

namespace {

bool HasUnknown(const char* ids) {
  return ids != nullptr && std::strchr(ids, '?') != nullptr;
}

// The one symbol of exchange 12, as the service lists it, with a change.
void ChangeListed(const std::function<void(SymbolInfo& record)>& change) {
  TheFaults().VLGetSymbolInfos2 = [change](int exchId, int subId, SymbolInfo** list, int* count,
                                           int reserved) {
    const int result = __real_VLGetSymbolInfos2(exchId, subId, list, count, reserved);
    if (exchId == 12 && *count == 1)
      change(**list);
    return result;
  };
}

standin::Exchange Another(int id, const char* name) {
  return {id, name, "另", "另"};
}

GroupInfo staticGroups[1];

void ShareOneArray() {
  staticGroups[0] = {9, "S", "S", 0};
  TheFaults().VLGetSubGroup = [](int type, const char* parent, GroupInfo** list, int* count) {
    if (type != 9 || parent == nullptr || *parent != '\0')
      return __real_VLGetSubGroup(type, parent, list, count);
    *list = staticGroups;
    *count = 1;
    return 1;
  };
  TheFaults().VLFree = [](void* array) {
    if (array != staticGroups)
      __real_VLFree(array);
  };
  standin::AnswerMembers(9, "S", {}, 0);
}

// The service writes into the array that it handed out before.
void ChangeTheArrayBefore() {
  TheFaults().VLGetGroupSymbol =
      [before = static_cast<SymbolInfo*>(nullptr)](int type, const char* id, SymbolInfo** list,
                                                   int* count, int flag) mutable {
        const int result = __real_VLGetGroupSymbol(type, id, list, count, flag);
        if (before != nullptr)
          before->reserved[0] = 'x';
        before = before == nullptr && result != 0 ? *list : nullptr;
        return result;
      };
}

void TurnEverySecondAnswer() {
  TheFaults().VLGetGroupSymbol = [turn = false](int type, const char* id, SymbolInfo** list,
                                                int* count, int flag) mutable {
    const int result = __real_VLGetGroupSymbol(type, id, list, count, flag);
    if (*count > 1 && (turn = !turn))
      std::reverse(*list, *list + *count);
    return result;
  };
}

} // namespace

std::vector<Breach> ArrayBreaches() {
  return {
      {"NullListSucceeds", Rule::NullArgument,
       [] {
         TheFaults().VLGetExch = [](ExchInfo** list, int* count, int flag) {
           return list == nullptr ? 1 : __real_VLGetExch(list, count, flag);
         };
       }},
      {"SearchThrows", Rule::NoException,
       [] {
         TheFaults().VLEX2ZUID2 = [](const char*, SymbolInfo**, int*) -> int {
           throw std::runtime_error("no market");
         };
       }},
      {"OutputsStayOnFailure", Rule::ArrayCleared,
       [] {
         TheFaults().VLFindSymbol = [](const char* text, SymbolInfo** list, int* count,
                                       int reserved, int mode, int exchId) {
           return text == nullptr ? 0
                                  : __real_VLFindSymbol(text, list, count, reserved, mode, exchId);
         };
       }},
      {"ArrayOfNothing", Rule::ArrayEmpty,
       [] {
         TheFaults().VLGetSymbolInfos = [](const char* ids, SymbolInfo** list, int* count) {
           const bool none = ids != nullptr && *ids == '\0';
           const int result = __real_VLGetSymbolInfos(none ? "2330.TW" : ids, list, count);
           *count = none ? 0 : *count;
           return result;
         };
       }},
      {"NegativeCount", Rule::ArrayCount, [] { standin::AnswerGroups(9, "", {}, -1); }},
      {"CountWithoutArray", Rule::ArrayMissing, [] { standin::AnswerGroups(9, "", {}, 3); }},
      {"OneArrayForAll", Rule::ArrayShared, ShareOneArray},
      {"LaterCallChangesArray", Rule::ArrayChanged, ChangeTheArrayBefore},
      {"OrderChanges", Rule::SameAnswer, TurnEverySecondAnswer},
  };
}

std::vector<Breach> SymbolBreaches() {
  return {
      {"UnknownSymbolWrites", Rule::OutputLeftAlone,
       [] {
         TheFaults().VLGetSymbolInfo = [](const char* id, SymbolInfo* info) {
           if (HasUnknown(id) && info != nullptr)
             *info = {};
           return __real_VLGetSymbolInfo(id, info);
         };
       }},
      {"NoExchanges", Rule::ExchangesListed, [] { standin::SetMarket({}); }},
      {"ExchangeZero", Rule::ExchangeNumber,
       [] { ChangeMarket([](auto& market) { market.exchanges.push_back(Another(0, "ZERO")); }); }},
      {"ExchangeNameTwice", Rule::ExchangeName,
       [] { ChangeMarket([](auto& market) { market.exchanges.push_back(Another(21, "EMPT")); }); }},
      {"BlankInExchangeName", Rule::ExchangeNameText,
       [] { ChangeMarket([](auto& market) { market.exchanges.push_back(Another(21, "E T")); }); }},
      {"UnknownExchangeSucceeds", Rule::ExchangeUnknown,
       [] {
         TheFaults().VLGetSymbolInfos2 = [](int exchId, int subId, SymbolInfo** list, int* count,
                                            int reserved) {
           const int result = __real_VLGetSymbolInfos2(exchId, subId, list, count, reserved);
           return exchId > 1000 ? 1 : result;
         };
       }},
      {"EmptyExchangeFails", Rule::ExchangeRead, [] { standin::AnswerSymbols(20, {}, 0, 0); }},
      {"SymbolOfAnotherExchange",
       Rule::SymbolExchange,
       [] { ChangeListed([](SymbolInfo& record) { record.exchId = 11; }); },
       {Rule::SymbolRecord, Rule::SymbolLetterCase, Rule::SearchRecord, Rule::SearchLimited,
        Rule::SearchExchanges, Rule::TradeSetUp}},
      {"SymbolWithoutSuffix",
       Rule::SymbolSuffix,
       [] { ChangeListed([](SymbolInfo& record) { std::strcpy(record.id, "SPY"); }); },
       {Rule::SymbolRecord, Rule::SymbolOrder, Rule::SymbolUnknown, Rule::SymbolTwice,
        Rule::SymbolLetterCase, Rule::KeyId, Rule::AttributesCode, Rule::SearchFinds,
        Rule::SearchRecord, Rule::SearchLimited, Rule::SearchExchanges, Rule::OwnCode}},
      {"BlankInId",
       Rule::SymbolIdText,
       [] { ChangeMarket([](auto& market) { market.instruments[0].code = "23 30"; }); },
       {Rule::HoldingsText}},
      {"SymbolListedTwice",
       Rule::SymbolOnce,
       [] {
         ChangeMarket(
             [](auto& market) { market.instruments.push_back(market.instruments.front()); });
       },
       {Rule::SearchRecord}},
      {"OtherRecord",
       Rule::SymbolRecord,
       [] {
         TheFaults().VLGetSymbolInfo = [](const char* id, SymbolInfo* info) {
           const int result = __real_VLGetSymbolInfo(id, info);
           if (result != 0)
             info->name[0] = '?';
           return result;
         };
       },
       {Rule::SymbolLetterCase}},
      {"LowerCaseIsUnknown", Rule::SymbolLetterCase,
       [] {
         TheFaults().VLGetSymbolInfo = [](const char* id, SymbolInfo* info) {
           const bool lower = id != nullptr && std::string_view(id).ends_with("tw");
           return lower ? 0 : __real_VLGetSymbolInfo(id, info);
         };
       }},
      {"UnknownIdFailsAll", Rule::SymbolUnknown,
       [] {
         TheFaults().VLGetSymbolInfos = [](const char* ids, SymbolInfo** list, int* count) {
           return __real_VLGetSymbolInfos(HasUnknown(ids) ? nullptr : ids, list, count);
         };
       }},
      {"RecordsInAnotherOrder", Rule::SymbolOrder,
       [] {
         TheFaults().VLGetSymbolInfos = [](const char* ids, SymbolInfo** list, int* count) {
           const int result = __real_VLGetSymbolInfos(ids, list, count);
           if (*count > 2)
             std::reverse(*list, *list + *count);
           return result;
         };
       }},
      {"RepeatedIdComesOnce", Rule::SymbolTwice,
       [] {
         TheFaults().VLGetSymbolInfos = [](const char* ids, SymbolInfo** list, int* count) {
           const int result = __real_VLGetSymbolInfos(ids, list, count);
           if (*count == 2 && std::strcmp((*list)[0].id, (*list)[1].id) == 0)
             *count = 1;
           return result;
         };
       }},
      {"NoIdsFail", Rule::SymbolsNone,
       [] {
         TheFaults().VLGetSymbolInfos = [](const char* ids, SymbolInfo** list, int* count) {
           const bool none = ids != nullptr && *ids == '\0';
           return __real_VLGetSymbolInfos(none ? nullptr : ids, list, count);
         };
       }},
      {"AttributesLackOne", Rule::AttributesListed,
       [] {
         TheFaults().VLGetBaseAttrs2 = [](int exchId, int subId, BaseAttr** list, int* count,
                                          int reserved, int flag) {
           const int result = __real_VLGetBaseAttrs2(exchId, subId, list, count, reserved, flag);
           *count -= exchId == 2 ? 1 : 0;
           return result;
         };
       }},
      {"AttributesInAnotherOrder", Rule::AttributesOrder,
       [] {
         TheFaults().VLGetBaseAttrs = [](const char* symbols, BaseAttr** list, int* count,
                                         int flag) {
           const int result = __real_VLGetBaseAttrs(symbols, list, count, flag);
           if (*count == 2)
             std::reverse(*list, *list + *count);
           return result;
         };
       }},
      {"BareCodeIsAnother", Rule::AttributesCode,
       [] {
         TheFaults().VLGetBaseAttrs = [](const char* symbols, BaseAttr** list, int* count,
                                         int flag) {
           const bool bare = symbols != nullptr && std::strcmp(symbols, "2330") == 0;
           return __real_VLGetBaseAttrs(bare ? "2317" : symbols, list, count, flag);
         };
       }},
      {"UnknownAttributesFailAll", Rule::AttributesUnknown,
       [] {
         TheFaults().VLGetBaseAttrs = [](const char* symbols, BaseAttr** list, int* count,
                                         int flag) {
           return __real_VLGetBaseAttrs(HasUnknown(symbols) ? nullptr : symbols, list, count, flag);
         };
       }},
  };
}
