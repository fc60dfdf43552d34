#include "terminal/control/TradingRecords.h"

#include "platform/CodePage.h"
#include "platform/framework/CString.h"
#include "terminal/control/Encoding.h"
#include "terminal/control/Reports.h"

namespace standin {
namespace {

bool SameId(std::string_view left, std::string_view right) {
  return tq::EqualNoCase(left.data(), left.size(), right.data(), right.size());
}

TQS_TSINFO MakeSystem(const TradingSystem& system, Language language) {
  TQS_TSINFO info{};
  tq::CopyCut(info.id, system.id.c_str());
  const bool traditional = language == Language::Traditional;
  tq::CopyCut(info.name, Encode(traditional ? system.nameTw : system.nameCn, language).c_str());
  return info;
}

TQS_ACCOUNTINFO MakeAccount(const TradingAccount& account, Language language) {
  TQS_ACCOUNTINFO info{};
  info.type = static_cast<TqsAccType>(account.type);
  tq::CopyCut(info.id, account.id.c_str());
  tq::CopyCut(info.displayId, Encode(account.displayId, language).c_str());
  return info;
}

std::string KeyOf(int type, std::string_view id) {
  CString folded(id.data(), static_cast<int>(id.size()));
  return std::to_string(type) + ' ' + folded.MakeLower().GetString();
}

} // namespace

void TradingRecords::Build(const Market& market) {
  positions_.clear();
  for (const TradingSystem& system : market.tradingSystems) {
    std::unordered_map<std::string, int>& positions = positions_.emplace_back();
    for (std::size_t i = 0; i < system.accounts.size(); ++i)
      positions.emplace(KeyOf(system.accounts[i].type, system.accounts[i].id), static_cast<int>(i));
  }
  const auto build = [&market](Records& records, Language language) {
    records = Records();
    for (const TradingSystem& system : market.tradingSystems) {
      records.systems.push_back(MakeSystem(system, language));
      std::vector<TQS_ACCOUNTINFO>& accounts = records.accounts.emplace_back();
      for (const TradingAccount& account : system.accounts)
        accounts.push_back(MakeAccount(account, language));
    }
  };
  build(traditional_, Language::Traditional);
  build(simplified_, Language::Simplified);
}

const TradingRecords::Records& TradingRecords::Now() const {
  return InterfaceLanguage() == Language::Traditional ? traditional_ : simplified_;
}

const std::vector<TQS_TSINFO>& TradingRecords::Systems() const {
  return Now().systems;
}

const std::vector<TQS_ACCOUNTINFO>& TradingRecords::Accounts(std::size_t system) const {
  return Now().accounts[system];
}

int TradingRecords::AccountOf(std::size_t system, int type, std::string_view id) const {
  const auto found = positions_[system].find(KeyOf(type, id));
  return found == positions_[system].end() ? -1 : found->second;
}

const TradingSystem* FindSystem(std::string_view tsId) {
  for (const TradingSystem& system : CurrentMarket().tradingSystems)
    if (SameId(system.id, tsId))
      return &system;
  return nullptr;
}

const TradingAccount* FindAccount(std::string_view tsId, std::string_view accountId, int type) {
  const TradingSystem* system = FindSystem(tsId);
  if (!system)
    return nullptr;
  const auto place = static_cast<std::size_t>(system - CurrentMarket().tradingSystems.data());
  const int account = CurrentTradingRecords().AccountOf(place, type, accountId);
  return account < 0 ? nullptr : &system->accounts[static_cast<std::size_t>(account)];
}

} // namespace standin
