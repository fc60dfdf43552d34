#include "bench/Search.h"

#include <string>
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

constexpr double kGoalHits = 1.3;
constexpr double kGoalKey = 1.3;
constexpr double kGoalOpeningAdd = 2;

constexpr int kInput = 741;
constexpr int kTable = 781;
constexpr int kListBox = 781;

// From Enter until the rows in sight are shown, over what the service takes.
class SearchedMarket {
public:
  SearchedMarket(Report& report, std::size_t symbols) : report_(report) {
    standin::SetMarket(GenerateUniverse(symbols).market);
    manager_.Init("", 0, 1, 0, nullptr, 0, 0);
  }

  void Measure(const std::string& text, double goal, std::size_t repetitions) {
    int shown = 0;
    const auto library = [&] {
      double seconds = 0;
      WithUser([&](CDialog& dialog) { seconds = Search(dialog, text, shown); },
               [&] {
                 CTQSymbolListMgr::DoSearchUI(&manager_, manager_.GetSymbolTableMgr(), nullptr, "",
                                              nullptr, 1, nullptr);
               });
      return seconds;
    };
    int found = 0;
    const auto peer = [&] {
      return Computing([&] {
        SymbolInfo* records = nullptr;
        VLFindSymbol(text.c_str(), &records, &found, 0, 0, -1);
        VLFree(records);
      });
    };
    library();
    peer();
    const std::string what = "search, " + std::to_string(found) + " hits / the service's";
    report_.Ratio(what, Compare(repetitions, library, peer), goal);
    if (found == 0 || shown != found)
      report_.Wrong(what);
  }

private:
  static double Search(CDialog& dialog, const std::string& text, int& shown) {
    tq::headless::Click(CWnd(dialog, kInput).GetSafeHwnd());
    tq::headless::TypeText(dialog.GetSafeHwnd(), text.c_str());
    const double seconds = Computing([&] {
      tq::headless::PressKey(dialog.GetSafeHwnd(), WindowKey::Enter, tq::headless::Modifier::None);
      DrawSight(dialog, kTable);
    });
    shown = CListCtrl(dialog, kTable).GetRowCount();
    return seconds;
  }

  Report& report_;
  CTQSymbolListMgr manager_;
};

// From the call until the dialog stands. Of the peer: a copy of the lists, their texts and their
// records.
void MeasureOpeningAdd(Report& report, std::size_t lists, std::size_t symbols,
                       std::size_t repetitions) {
  standin::Market market = GenerateUniverse(lists + symbols).market;
  const std::vector<std::string> ids = FullIds(market);
  standin::SetMarket(std::move(market));
  CTQSymbolListMgr manager;
  manager.Init("", 0, 1, 0, nullptr, 0, 0);
  struct PlainList {
    std::string text;
    std::vector<SymbolInfo> records;
  };
  std::vector<PlainList> plain;
  for (std::size_t i = 0; i < lists; ++i) {
    std::string text;
    for (std::size_t at = i; at < i + symbols; ++at)
      text += (at > i ? "," : "") + ids[at];
    CSymbolList list;
    list.SetID(("L" + std::to_string(i)).c_str());
    list.SetName(("list " + std::to_string(i)).c_str());
    list.Update1(text.c_str());
    manager.AddTQSymbolList(&list, 1);
    PlainList copied{std::move(text), std::vector<SymbolInfo>(symbols)};
    for (std::size_t at = 0; at < symbols; ++at)
      list.GetAt(static_cast<int>(at), &copied.records[at]);
    plain.push_back(std::move(copied));
  }
  int shown = 0;
  const auto library = [&] {
    double stands = 0;
    const double start = ProcessorSeconds();
    WithUser(
        [&](CDialog& dialog) {
          stands = ProcessorSeconds();
          shown = CListBox(dialog, kListBox).GetCount();
        },
        [&] {
          CTQSymbolListMgr::DoSymbolAddUI(&manager, manager.GetSymbolTableMgr(), nullptr,
                                          ids[0].c_str(), "");
        });
    return stands - start;
  };
  const auto peer = [&] {
    return Computing([&] {
      const std::vector<PlainList> copy = plain;
      shown += copy.empty() ? 1 : 0;
    });
  };
  const std::string what = "add dialog on " + std::to_string(lists) + " lists of " +
                           std::to_string(symbols) + " / a copy";
  report.Ratio(what, Compare(repetitions, library, peer), kGoalOpeningAdd);
  if (shown != static_cast<int>(lists))
    report.Wrong(what);
}

} // namespace

void MeasureSearch(Report& report, bool quick) {
  const std::size_t repetitions = quick ? 3 : 11;
  report.Section("search and add");
  SearchedMarket(report, quick ? 6'670 : 66'700).Measure("TXO", kGoalHits, repetitions);
  SearchedMarket(report, 35'241).Measure("TXO00017", kGoalKey, repetitions);
  MeasureOpeningAdd(report, quick ? 100 : 1000, 500, repetitions);
}

} // namespace bench
