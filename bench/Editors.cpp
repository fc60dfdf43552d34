#include "bench/Editors.h"

#include <algorithm>
#include <functional>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include "bench/DialogUser.h"
#include "bench/Universe.h"
#include "platform/framework/window/CListBox.h"
#include "platform/framework/window/CListCtrl.h"
#include "platform/headless/user/UserInput.h"
#include "platform/services/VLProxy.h"
#include "terminal/StandIn.h"
#include "tqSymbol.h"

namespace bench {
namespace {

constexpr double kGoalShowing = 2;
constexpr double kGoalOpening = 20; // the group makes its id string and tokens of the records
constexpr double kGoalAddingAll = 10;
constexpr double kGoalAddingOne = 100; // seven keys, three windows and a row for each

constexpr int kMarkets = 761;
constexpr int kGroups = 762;
constexpr int kRows = 781;
constexpr int kResults = 782;
constexpr int kCode = 741;
constexpr int kAddAll = 807;

// Opens the content editor on a list and cancels it when `act` has acted.
void Edit(CTQSymbolListMgr& manager, CSymbolList& list, std::function<void(CDialog&)> act) {
  WithUser(std::move(act), [&] {
    CTQSymbolListMgr::DoGroupListUI(&manager, manager.GetSymbolTableMgr(), &list, 1, nullptr, 0);
  });
}

void Pick(CDialog& dialog, int box, int entry) {
  tq::headless::PickEntry(CWnd(dialog, box).GetSafeHwnd(), entry);
}

int Shown(CDialog& dialog) {
  return CListCtrl(dialog, kResults).GetRowCount();
}

// The market that the services serve, with one group that has these members.
void ServeWithGroup(standin::Market market, const std::vector<std::string>& members) {
  market.groups = {{1, "", "ALL", "all", "all", {}}, {1, "ALL", "ALL1", "one", "one", members}};
  standin::SetMarket(std::move(market));
}

void Start(CTQSymbolListMgr& manager) {
  manager.Init("", 0, 1, 0, nullptr, 0, 0);
}

// All symbols of the large market, and of the small one.
void MeasureShowing(Report& report, std::size_t few, std::size_t many, std::size_t repetitions) {
  CTQSymbolListMgr small;
  CTQSymbolListMgr large;
  standin::SetMarket(GenerateUniverse(few).market);
  Start(small);
  standin::SetMarket(GenerateUniverse(many).market);
  Start(large);
  CSymbolList list;
  const auto show = [&list](CTQSymbolListMgr& manager, int& rows) {
    double seconds = 0;
    Edit(manager, list, [&](CDialog& dialog) {
      seconds = Computing([&] {
        Pick(dialog, kMarkets, 0);
        DrawSight(dialog, kResults);
      });
      rows = Shown(dialog);
    });
    return seconds;
  };
  int fewRows = 0;
  int manyRows = 0;
  const std::string what = "all symbols, " + std::to_string(many) + " / " + std::to_string(few);
  report.Ratio(
      what,
      Compare(
          repetitions, [&] { return show(large, manyRows); }, [&] { return show(small, fewRows); }),
      kGoalShowing);
  if (fewRows != static_cast<int>(few) || manyRows != static_cast<int>(many))
    report.Wrong(what);
}

// The editor opened, and the group of all symbols chosen for the first time.
void MeasureOpening(Report& report, std::size_t symbols, std::size_t repetitions) {
  standin::Market market = GenerateUniverse(symbols).market;
  const std::vector<std::string> ids = FullIds(market);
  ServeWithGroup(std::move(market), ids);
  CTQSymbolListMgr manager;
  Start(manager);
  CSymbolList list;
  bool right = true;
  const auto library = [&] {
    manager.LoadGroupList(1); // forgets the members
    return Computing([&] {
      Edit(manager, list, [&](CDialog& dialog) {
        Pick(dialog, kMarkets, 1);
        right = right && Shown(dialog) == static_cast<int>(symbols);
      });
    });
  };
  const auto peer = [&] {
    return Computing([&] {
      SymbolInfo* records = nullptr;
      int count = 0;
      right = VLGetGroupSymbol(1, "ALL1", &records, &count, 1) != 0 && right;
      VLFree(records);
    });
  };
  const std::string what = "editor on a group of " + std::to_string(symbols) + " / receiving it";
  report.Ratio(what, Compare(repetitions, library, peer), kGoalOpening);
  if (!right)
    report.Wrong(what);
}

class LargeList {
public:
  LargeList(Report& report, std::size_t size) : report_(report), size_(size) {
    standin::Market market = GenerateUniverse(size + kMore).market;
    ids_ = FullIds(market);
    ServeWithGroup(std::move(market), {ids_.begin(), ids_.begin() + static_cast<long>(size)});
    Start(manager_);
  }

  // Of the peer: each record looked up and noted once.
  void AddAll(std::size_t repetitions) {
    CSymbolList list;
    int rows = 0;
    const auto library = [&] {
      double seconds = 0;
      Edit(manager_, list, [&](CDialog& dialog) {
        Pick(dialog, kMarkets, 1);
        Pick(dialog, kGroups, 1);
        seconds = Computing([&] { Click(dialog, kAddAll); });
        rows = CListBox(dialog, kRows).GetCount() - 1;
      });
      return seconds;
    };
    std::size_t noted = 0;
    const auto peer = [&] {
      return Computing([&] {
        std::unordered_set<std::string> seen;
        std::vector<std::string> kept;
        for (std::size_t i = 0; i < size_; ++i) {
          if (seen.insert(ids_[i]).second)
            kept.push_back(ids_[i]);
        }
        noted = kept.size();
      });
    };
    const std::string what = "add all of " + std::to_string(size_) + " / a set and a vector";
    report_.Ratio(what, Compare(repetitions, library, peer), kGoalAddingAll);
    if (noted != size_ || rows != static_cast<int>(size_))
      report_.Wrong(what);
  }

  // Of the peer: the services that an add asks.
  void AddSingly(std::size_t repetitions) {
    CSymbolList list;
    std::string all;
    for (std::size_t i = 0; i < size_; ++i)
      all += (i > 0 ? "," : "") + ids_[i];
    list.Update1(all.c_str());
    int rows = 0;
    const auto library = [&] {
      double seconds = 0;
      Edit(manager_, list, [&](CDialog& dialog) {
        seconds = Computing([&] { TypeMore(dialog); });
        rows = CListBox(dialog, kRows).GetCount() - 1;
      });
      return seconds;
    };
    bool right = true;
    const auto peer = [&] {
      return Computing([&] {
        for (std::size_t i = 0; i < kMore; ++i) {
          CString id;
          SymbolInfo record;
          right = manager_.GetSymbolTableMgr()->LookUpSymbolGetString(1, ids_[size_ + i].c_str(),
                                                                      "", id) != 0 &&
                  VLGetSymbolInfo(id, &record) != 0 && right;
        }
      });
    };
    const std::string what =
        std::to_string(kMore) + " typed into " + std::to_string(size_) + " / services asked";
    report_.Ratio(what, Compare(repetitions, library, peer), kGoalAddingOne);
    if (!right || rows != static_cast<int>(size_ + kMore))
      report_.Wrong(what);
  }

private:
  static constexpr std::size_t kMore = 1000;

  static void Click(CDialog& dialog, int id) {
    tq::headless::Click(CWnd(dialog, id).GetSafeHwnd());
  }
  void TypeMore(CDialog& dialog) {
    Click(dialog, kCode);
    for (std::size_t i = 0; i < kMore; ++i) {
      tq::headless::TypeText(dialog.GetSafeHwnd(), ids_[size_ + i].c_str());
      tq::headless::PressKey(dialog.GetSafeHwnd(), WindowKey::Enter, tq::headless::Modifier::None);
    }
  }

  Report& report_;
  std::size_t size_;
  std::vector<std::string> ids_;
  CTQSymbolListMgr manager_;
};

} // namespace

void MeasureEditors(Report& report, bool quick) {
  const std::size_t repetitions = quick ? 3 : 11;
  report.Section("editors");
  MeasureShowing(report, 35'241, quick ? 100'000 : 1'000'000, repetitions);
  MeasureOpening(report, quick ? 100'000 : 1'000'000, quick ? 3 : 5);
  LargeList large(report, quick ? 2'000 : 10'000);
  large.AddAll(repetitions);
  large.AddSingly(quick ? 3 : 5);
}

} // namespace bench
