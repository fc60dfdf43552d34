// Answers that a test sets in place of the market's.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/services/TQSProxy.h"
#include "platform/services/VLRecords.h"
#include "terminal/StandInApi.h"

namespace standin {

template <class T> struct Answer {
  std::vector<T> records;
  int count = 0;  // as the service claims
  int result = 1; // 0: the call fails and hands out the array all the same
};

// Null when there is no such answer. Texts are compared byte by byte.
TQSTANDIN_API const Answer<GroupInfo>* AnsweredGroups(int type, std::string_view parent);
TQSTANDIN_API const Answer<SymbolInfo>* AnsweredMembers(int type, std::string_view group);
TQSTANDIN_API const Answer<SymbolInfo>* AnsweredSymbols(int exchId);
TQSTANDIN_API const std::vector<ExtAttr>* AnsweredExtended(std::string_view id, int kind);
TQSTANDIN_API const Answer<TQS_TSINFO>* AnsweredTradingSystems();
TQSTANDIN_API const Answer<TQS_ACCOUNTINFO>* AnsweredAccounts(std::string_view tsId);

} // namespace standin
