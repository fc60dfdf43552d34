// Answers that a test puts in the place of what the market says.
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
  int count = 0;  // what the service claims
  int result = 1; // 0: it fails with the array
};

// Null: no answer was given, the market's holds. Texts are compared as they are.
TQSTANDIN_API const Answer<GroupInfo>* AnsweredGroups(int type, std::string_view parent);
TQSTANDIN_API const Answer<SymbolInfo>* AnsweredMembers(int type, std::string_view group);
TQSTANDIN_API const Answer<SymbolInfo>* AnsweredSymbols(int exchId);
TQSTANDIN_API const std::vector<ExtAttr>* AnsweredExtended(std::string_view id, int kind);
TQSTANDIN_API const Answer<TQS_TSINFO>* AnsweredTradingSystems();
TQSTANDIN_API const Answer<TQS_ACCOUNTINFO>* AnsweredAccounts(std::string_view tsId);

} // namespace standin
