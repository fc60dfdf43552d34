// The bounds that docs/trust.md tells are those of the code.
#include <gtest/gtest.h>

#include <climits>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include "accounts/TradingService.h"
#include "groups/GroupId.h"
#include "groups/GroupLoader.h"
#include "idlist/ListKind.h"
#include "platform/Module.h"
#include "platform/ReadSteps.h"
#include "platform/xml/XmlText.h"
#include "symbolid/SymbolRecords.h"
#include "symbollist/ListIds.h"
#include "symbollist/ListName.h"
#include "symbollist/TQSymbolListInfo.h"
#include "symbollist/file/KeptCopies.h"
#include "symbollist/file/KeptFiles.h"
#include "symboltable/ExchangeService.h"
#include "symboltable/ExchangeTables.h"

namespace {

using Bounds = std::map<std::string, long long>;

Bounds CodeBounds() {
  return {
      {"INT_MAX", INT_MAX},
      {"SymbolInfo::id", sizeof(SymbolInfo::id)},
      {"TQSymbolListInfo::ID", sizeof(TQSymbolListInfo::ID) - 1},
      {"ExchangeTables::kCount", tq::ExchangeTables::kCount},
      {"kCloudGroupType", tq::kCloudGroupType},
      {"kDeepestLevel", tq::kDeepestLevel},
      {"kGroupIdBytes", tq::kGroupIdBytes},
      {"kGroupNameBytes", tq::kGroupNameBytes},
      {"kKeptCopies", tq::kKeptCopies},
      {"kKeptSizeLimit", tq::kKeptSizeLimit},
      {"kLastEntitledExchange", tq::kLastEntitledExchange},
      {"kMaxSymbolChangeItems", tq::kMaxSymbolChangeItems},
      {"kModulePathLimit", tq::kModulePathLimit},
      {"kMostAccounts", tq::kMostAccounts},
      {"kMostGroups", tq::kMostGroups},
      {"kMostSystems", tq::kMostSystems},
      {"kNameAttempts", tq::kNameAttempts},
      {"kNameLimit", tq::kNameLimit},
      {"kReadTries", tq::kReadTries},
      {"kSuffixAttempts", tq::kSuffixAttempts},
      {"kSystemListCount", tq::kSystemListCount},
      {"kXmlAttributeLimit", tq::kXmlAttributeLimit},
      {"kXmlDepthLimit", tq::kXmlDepthLimit},
      {"kXmlNameLengthLimit", tq::kXmlNameLengthLimit},
      {"kXmlNameLimit", tq::kXmlNameLimit},
      {"kXmlPieceLimit", tq::kXmlPieceLimit},
      {"kXmlSizeLimit", tq::kXmlSizeLimit},
  };
}

// The cells of a row, "| what | number | `constant` | ... |", that has a number in its second.
bool IsBound(const std::string& row, std::string& constant, long long& value) {
  std::istringstream cells(row);
  std::string cell;
  std::string number;
  std::getline(cells, cell, '|');
  std::getline(cells, cell, '|');
  std::getline(cells, number, '|');
  std::getline(cells, constant, '|');
  std::istringstream digits(number);
  if (!(digits >> value) || constant.size() < 4)
    return false;
  constant = constant.substr(2, constant.size() - 4);
  return true;
}

Bounds ToldBounds() {
  std::ifstream page("docs/trust.md");
  Bounds bounds;
  std::string row;
  std::string constant;
  long long value = 0;
  while (std::getline(page, row)) {
    if (IsBound(row, constant, value)) {
      EXPECT_TRUE(bounds.emplace(constant, value).second) << constant << " stands twice";
    }
  }
  return bounds;
}

TEST(Trust, ThePageTellsTheBoundsOfTheCode) {
  EXPECT_EQ(ToldBounds(), CodeBounds());
}

} // namespace
