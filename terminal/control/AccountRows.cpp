#include "terminal/control/AccountRows.h"

#include <limits>

#include "terminal/control/MarketText.h"

namespace standin {
namespace {

constexpr std::size_t kLongestSystemId = sizeof(TQS_TSINFO::id) - 1;
constexpr std::size_t kLongestSystemName = sizeof(TQS_TSINFO::name) - 1;
constexpr std::size_t kLongestAccountId = sizeof(TQS_ACCOUNTINFO::id) - 1;
constexpr std::size_t kLongestDisplayId = sizeof(TQS_ACCOUNTINFO::displayId) - 1;

} // namespace

bool AccountRows::Add(const TableFile::Row& row) {
  TradingSystem* system = SystemOf(row);
  return system && AddAccount(*system, row);
}

TradingSystem* AccountRows::SystemOf(const TableFile::Row& row) {
  const auto refuse = [this](std::string_view reason) {
    file_.Refuse(reason);
    return nullptr;
  };
  if (!IsPlainId(row[0], kLongestSystemId))
    return refuse("the system is not 1 to 31 ASCII characters");
  if (!Fits(row[1], kLongestSystemName) || !Fits(row[2], kLongestSystemName))
    return refuse("a name of the system is longer than 255 bytes");
  const auto [place, isNew] = positions_.try_emplace(FoldedId(row[0]), systems_.size());
  if (isNew)
    systems_.push_back({std::string(row[0]), std::string(row[1]), std::string(row[2]), true, {}});
  TradingSystem& system = systems_[place->second];
  if (system.nameTw != row[1] || system.nameCn != row[2])
    return refuse("the system has another name on a line above");
  return &system;
}

bool AccountRows::AddAccount(TradingSystem& system, const TableFile::Row& row) {
  const std::optional<int> type = ParseNumber(row[3], 0, std::numeric_limits<int>::max());
  if (!type)
    return file_.Refuse("the type is no number from 0 up");
  if (!IsPlainId(row[4], kLongestAccountId))
    return file_.Refuse("the id is not 1 to 31 ASCII characters");
  if (row[5].empty() || !Fits(row[5], kLongestDisplayId))
    return file_.Refuse("the display id is not 1 to 767 bytes");
  const std::string holdings = OptionalText(row[6]);
  std::vector<std::string> ids;
  if (!SplitIds(holdings, ids))
    return file_.Refuse("a holding is not 1 to 19 ASCII characters");
  if (!seen_.insert(FoldedId(system.id) + '\t' + std::string(row[3]) + '\t' + FoldedId(row[4]))
           .second)
    return file_.Refuse("the account stands twice");
  system.accounts.push_back({*type, std::string(row[4]), std::string(row[5]), holdings});
  return true;
}

} // namespace standin
