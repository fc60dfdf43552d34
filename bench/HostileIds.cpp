#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "bench/Figure.h"
#include "bench/HostileParts.h"
#include "symbolid/PackedText.h"
#include "tests/support/CraftedTexts.h"
#include "tqSymbol.h"

namespace bench {
namespace {

constexpr int kCloudLists = 8;
constexpr int kTradingLists = 6;
constexpr int kStocks = 1;
constexpr int kGroupType = 1;
constexpr char kSystem[] = "T";

std::vector<std::string> PlainIds(std::size_t count) {
  std::vector<std::string> ids;
  for (std::size_t i = 0; i < count; ++i)
    ids.push_back("id" + std::to_string(i));
  return ids;
}

// Ids with the same std::hash value, as lists and an account's holdings may have.
std::vector<std::string> CraftedIds(std::size_t count) {
  const auto isLead = [](unsigned char byte) { return byte >= 0xA1 && byte <= 0xF9; };
  const auto isTrail = [](unsigned char byte) {
    return (byte >= 0x40 && byte <= 0x7E) || (byte >= 0xA1 && byte <= 0xFE);
  };
  return CraftedTexts(count, [&](const std::string& text) {
    for (std::size_t i = 8; i < text.size(); i += 2) { // the number first, then characters
      if (!isLead(static_cast<unsigned char>(text[i])) ||
          !isTrail(static_cast<unsigned char>(text[i + 1])))
        return false;
    }
    return true;
  });
}

// Sets each list twice: the first call adds it, the second finds it.
double SetLists(const std::vector<std::string>& ids, bool& right) {
  CTQSymbolListMgr manager;
  const double seconds = Computing([&] {
    for (int i = 0; i < 2; ++i) {
      for (const std::string& id : ids)
        manager.SetCloudeList(id.c_str(), id.c_str(), "GONE.XX");
    }
  });
  right = manager.GetSymbolListCount(kCloudLists) > 0 && right;
  return seconds;
}

standin::Market Accounts(std::size_t count, const std::vector<std::string>& held) {
  standin::Market market = OneExchange();
  standin::TradingSystem system = {kSystem, "", "", true, {}};
  for (std::size_t i = 0; i < count; ++i) {
    const std::string id = std::to_string(1'000'000 + i);
    system.accounts.push_back({kStocks, id, "name " + id, i < held.size() ? held[i] : ""});
  }
  market.tradingSystems.push_back(std::move(system));
  return market;
}

// The questions that a login asks of the proxy.
void AskForAccounts() {
  const int count = TQSGetTSAccountCount(kSystem);
  for (int i = 0; i < count; ++i) {
    TQS_ACCOUNTINFO info = {};
    char* holdings = nullptr;
    if (TQSGetTSAccount(kSystem, i, &info) != 0 &&
        TQSGetTSAccountHolding(kSystem, info.id, info.type, &holdings) != 0)
      TQSFree(holdings);
  }
}

// Ids of 15 bytes that collide after two steps of MixWords, the hash of symbols and groups without
// the secret of the process.
std::vector<std::string> MixedIds(std::size_t count) {
  std::vector<std::string> ids;
  for (std::uint64_t number = 10'000'000; ids.size() < count; ++number) {
    std::string id = std::to_string(number);
    std::uint64_t low = 0;
    std::memcpy(&low, id.data(), sizeof low);
    const std::uint64_t high = tq::MixWords(0, low);
    id.resize(16);
    std::memcpy(id.data() + 8, &high, sizeof high);
    const auto isBad = [](char byte) {
      return static_cast<signed char>(byte) >= 0 && (byte < '0' || byte > '9');
    };
    if (std::none_of(id.begin(), id.end(), isBad))
      ids.push_back(id);
  }
  return ids;
}

} // namespace

void MeasureLists(Report& report, const Sizes& sizes) {
  Measure(report, "SetCloudeList, each list twice", sizes,
          [](std::size_t size, bool& right) { return SetLists(PlainIds(size), right); });
  Measure(report, "the same, crafted ids", sizes,
          [](std::size_t size, bool& right) { return SetLists(CraftedIds(size), right); });
  Measure(report, "AddCloudSymbolList, then live SetID", sizes, [](std::size_t size, bool& right) {
    CTQSymbolListMgr manager;
    return Computing([&] {
      for (const std::string& id : PlainIds(size)) {
        CSymbolList* list = nullptr;
        manager.AddCloudSymbolList(id.c_str(), "name", "", 1);
        right = manager.GetSymbolList(id.c_str(), &list, kCloudLists) != 0 && right;
        list->SetID(("x" + id).c_str());
      }
    });
  });
  Measure(report, "AddTSSymbolList + DeleteTSSymbolList", sizes, [](std::size_t size, bool& right) {
    CTQSymbolListMgr manager;
    manager.Init("", 0, 0, 0, nullptr, 0, 1);
    const std::vector<std::string> ids = PlainIds(size);
    return Computing([&] {
      for (const std::string& id : ids)
        right = manager.AddTSSymbolList(id.c_str(), kTradingLists, id.c_str(), "", 1) && right;
      for (const std::string& id : ids)
        right = manager.DeleteTSSymbolList(id.c_str()) != 0 && right;
    });
  });
}

void MeasureAccounts(Report& report, const Sizes& sizes) {
  Measure(report, "accounts at a login", sizes, [](std::size_t size, bool& right) {
    standin::SetMarket(Accounts(size, {}));
    CTQSymbolListMgr manager;
    manager.Init("", 0, 0, 0, nullptr, 0, 1);
    const double seconds = Computing([&] { manager.UpdateTSLogin(kSystem); });
    right = manager.GetSymbolListCount(kTradingLists) == static_cast<int>(size) + 1 && right;
    return seconds;
  });
  Measure(report, "what the proxy takes of it", sizes, [](std::size_t size, bool&) {
    standin::SetMarket(Accounts(size, {}));
    return Computing(AskForAccounts);
  });
}

void MeasureHoldings(Report& report, const Sizes& sizes) {
  Measure(report, "merged holdings, crafted ids", sizes, [](std::size_t size, bool& right) {
    std::string held;
    for (const std::string& id : CraftedIds(size))
      held += (held.empty() ? "" : ",") + id;
    standin::SetMarket(Accounts(1, {held}));
    CTQSymbolListMgr manager;
    manager.Init("", 0, 0, 0, nullptr, 0, 1);
    manager.UpdateTSLogin(kSystem);
    CString merged;
    const double seconds = Computing(
        [&] { manager.GetTSSymbolLists(kSystem, static_cast<TqsAccType>(kStocks), merged); });
    right = held == merged.GetString() && right;
    return seconds;
  });
}

void MeasureGroupIds(Report& report, const Sizes& sizes) {
  Measure(report, "GetGroupHandle, crafted ids", sizes, [](std::size_t size, bool& right) {
    const std::vector<std::string> ids = MixedIds(size);
    std::vector<GroupInfo> records;
    for (const std::string& id : ids) {
      GroupInfo info = {};
      info.nType = kGroupType;
      std::memcpy(info.szID, id.data(), id.size());
      records.push_back(info);
    }
    standin::SetMarket(OneExchange());
    standin::AnswerGroups(kGroupType, "", std::move(records), static_cast<int>(size));
    CTQSymbolListMgr manager;
    manager.LoadGroupList();
    void* handle = nullptr;
    return Computing([&] {
      for (const std::string& id : ids)
        right = manager.GetGroupHandle(kGroupType, id.c_str(), &handle, 0) != 0 && right;
    });
  });
}

} // namespace bench
