#include <algorithm>
#include <cstring>
#include <string_view>

#include "tests/conformance/Breach.h"
#include "tests/conformance/Faults.h"

using conformance::Rule;

namespace {

constexpr int kEveryExchange = -1;
constexpr char kContract[] = "TXFL6";
constexpr char kContractId[] = "TXFL6.TF";

bool Is(const char* text, std::string_view wanted) {
  return text != nullptr && text == wanted;
}

// The search for `text` over `exchId` looks for `other` over all exchanges.
void FindInstead(std::string_view text, int exchId, const std::string& other) {
  TheFaults().VLFindSymbol = [=](const char* asked, SymbolInfo** list, int* count, int reserved,
                                 int mode, int where) {
    if (!Is(asked, text) || where != exchId)
      return __real_VLFindSymbol(asked, list, count, reserved, mode, where);
    return __real_VLFindSymbol(other.c_str(), list, count, reserved, mode, kEveryExchange);
  };
}

void ChangeResults(const std::function<void(SymbolInfo* list, int count)>& change) {
  TheFaults().VLFindSymbol = [=](const char* text, SymbolInfo** list, int* count, int reserved,
                                 int mode, int exchId) {
    const bool wanted = Is(text, "2330") && exchId == kEveryExchange;
    const int result =
        __real_VLFindSymbol(wanted ? "2" : text, list, count, reserved, mode, exchId);
    if (wanted)
      change(*list, *count);
    return result;
  };
}

} // namespace

std::vector<Breach> SearchBreaches() {
  return {
      {"SearchFindsMore", Rule::SearchMatch, [] { FindInstead("2330", kEveryExchange, "2"); }},
      {"SearchFindsNothing", Rule::SearchFinds,
       [] { FindInstead("2330", kEveryExchange, "nothing"); }},
      {"SearchKeepsToNoExchange", Rule::SearchLimited,
       [] { FindInstead("2330", 1, standin::ToAnsi("台")); }},
      {"SearchInAnotherOrder",
       Rule::SearchOrder,
       [] { ChangeResults([](SymbolInfo* list, int count) { std::reverse(list, list + count); }); },
       {Rule::SearchMatch}},
      {"EmptyTextFindsSomething", Rule::SearchEmpty,
       [] { FindInstead("", kEveryExchange, "2330"); }},
      {"ResultsAreOtherRecords",
       Rule::SearchRecord,
       [] { ChangeResults([](SymbolInfo* list, int) { list->exchId = 9; }); },
       {Rule::SearchMatch}},
      {"SearchInExchangesFails", Rule::SearchExchanges,
       [] { standin::FailAlways("VLFindSymbol2"); }},
      {"OwnCodeFindsMore", Rule::OwnCode,
       [] {
         TheFaults().VLEX2ZUID2 = [](const char* code, SymbolInfo** list, int* count) {
           return Is(code, "2330") ? __real_VLFindSymbol("2", list, count, 0, 0, kEveryExchange)
                                   : __real_VLEX2ZUID2(code, list, count);
         };
       }},
      {"ContractWithoutId", Rule::ContractId,
       [] {
         TheFaults().VLGetZUID = [](int exchId, const char* code, char* zuid) {
           return Is(code, kContract) ? 0 : __real_VLGetZUID(exchId, code, zuid);
         };
       }},
      {"UnknownContractWrites", Rule::ContractUnknown,
       [] {
         TheFaults().VLGetZUID = [](int exchId, const char* code, char* zuid) {
           const int result = __real_VLGetZUID(exchId, code, zuid);
           if (result == 0 && zuid != nullptr)
             *zuid = 'x';
           return result;
         };
       }},
      {"NoExtendedAttributesFail", Rule::ExtendedRead,
       [] {
         TheFaults().VLGetExtendAttr = [](const char* id, int kind, ExtAttr** list, int* count) {
           const int result = __real_VLGetExtendAttr(id, kind, list, count);
           return *count == 0 ? 0 : result;
         };
       }},
      {"UnknownIdHasAttributes", Rule::ExtendedUnknown,
       [] {
         TheFaults().VLGetExtendAttr = [](const char* id, int kind, ExtAttr** list, int* count) {
           __real_VLGetExtendAttr(id, kind, list, count);
           return 1;
         };
       }},
      {"ExtendedOfAnotherKind", Rule::ExtendedKind,
       [] {
         standin::AnswerExtended(kContractId, 2, {{7, "V4=W"}});
       }},
      {"ExtendedWithoutNul", Rule::TextTerminated,
       [] {
         ExtAttr record = {};
         record.kind = 2;
         std::memset(record.text, 'x', sizeof record.text);
         standin::AnswerExtended(kContractId, 2, {record});
       }},
  };
}
