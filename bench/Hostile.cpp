#include "bench/Hostile.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <utility>
#include <vector>

#include "bench/Figure.h"
#include "bench/HostileParts.h"
#include "bench/Universe.h"
#include "terminal/StandIn.h"
#include "tqSymbol.h"

namespace bench {
namespace {

// --- Files ---------------------------------------------------------------------------------------

// Loads a file with this text; it must be refused or have no list.
double LoadText(const std::string& directory, const std::string& text, bool& right) {
  const std::string path = directory + "/SymbolList.xml";
  std::ofstream(path, std::ios::binary) << text;
  CTQSymbolListMgr manager;
  const double seconds = Computing([&] { manager.ReLoadList(directory.c_str()); });
  right = manager.GetSymbolListCount(kUserLists) == 0 && right;
  std::remove(path.c_str());
  return seconds;
}

void MeasureFiles(Report& report, const std::string& directory, const Sizes& sizes) {
  Measure(report, "attributes of one element", sizes, [&](std::size_t size, bool& right) {
    std::string text = "<Result><SymbolList DefaultIdx='0'><List ";
    for (std::size_t i = 0; i < size; ++i)
      text += "a" + std::to_string(i) + "='' ";
    return LoadText(directory, text + "/></SymbolList></Result>", right);
  });
  Measure(report, "names of elements", sizes, [&](std::size_t size, bool& right) {
    std::string text = "<Result>";
    for (std::size_t i = 0; i < size; ++i)
      text += "<e" + std::to_string(i) + "/>";
    return LoadText(directory, text + "</Result>", right);
  });
}

// The unknown id comes first, so the list needs its index for every record.
void MeasureRows(Report& report, const Sizes& sizes) {
  Measure(report, "rows of a list behind an unknown id", sizes, [](std::size_t size, bool& right) {
    standin::Market market = OneExchange();
    std::string value = "GONE.XX,";
    for (std::size_t i = 0; i < size; ++i) {
      market.instruments.push_back(Stock(std::to_string(1'000'000 + i)));
      value += std::to_string(1'000'000 + i) + ".XX,";
    }
    standin::SetMarket(std::move(market));
    CSymbolList list;
    const double seconds = Computing([&] { list.Update1(value.c_str()); });
    right = list.GetCount() > 0 && right;
    return seconds;
  });
}

// --- Entries and texts ---------------------------------------------------------------------------

// One insert in the middle of a list of `size` entries, per entry: the whole list is resolved
// again, so time per entry should be constant. Also the service's share of it.
void MeasureInserts(Report& report, const Sizes& sizes) {
  standin::Market market = OneExchange();
  std::string value;
  for (std::size_t i = 0; i < sizes.back(); ++i) {
    market.instruments.push_back(Stock(std::to_string(1'000'000 + i)));
    value += (i > 0 ? "," : "") + std::to_string(1'000'000 + i) + ".XX";
  }
  market.instruments.push_back(Stock("NEW"));
  standin::SetMarket(std::move(market));
  const std::size_t length = sizeof("1000000.XX") - 1;
  const auto textOf = [&](std::size_t size) { return value.substr(0, size * (length + 1) - 1); };
  Measure(report, "one insert, by the entries of the list", sizes,
          [&](std::size_t size, bool& right) {
            CSymbolList list;
            list.Update1(textOf(size).c_str());
            const int middle = static_cast<int>(size / 2);
            const double seconds =
                Computing([&] { right = list.InsertEntry(middle, "NEW.XX", true) != 0 && right; });
            right = list.GetTokens().GetSize() == static_cast<int>(size) + 1 && right;
            return seconds;
          });
  Measure(report, "what the service takes of it", sizes, [&](std::size_t size, bool& right) {
    const std::string text = textOf(size);
    return Computing([&] {
      SymbolInfo* records = nullptr;
      int count = 0;
      right = VLGetSymbolInfos(text.c_str(), &records, &count) != 0 && right;
      VLFree(records);
    });
  });
}

// Pairs that double a text up to and beyond the bound, per byte of the file.
void MeasureDoubling(Report& report, const std::string& directory, const Sizes& pairs) {
  Sizes bytes;
  for (const std::size_t count : pairs)
    bytes.push_back(std::size_t{1} << std::min<std::size_t>(count, 26));
  const auto work = [&](std::size_t size, bool& right) {
    const std::size_t count = pairs[static_cast<std::size_t>(
        std::find(bytes.begin(), bytes.end(), size) - bytes.begin())];
    CTQSymbolListMgr manager;
    manager.ReLoadList(directory.c_str());
    manager.AddSymbolList("a", 0, "a", "a", 1, 0);
    CStringArray from;
    CStringArray to;
    for (std::size_t i = 0; i < count; ++i) {
      from.Add("a");
      to.Add("aa");
    }
    int replaced = 0;
    const double seconds = Computing([&] { replaced = manager.ReplaceID(&from, &to); });
    right = (replaced != 0) == (count < 26) && right;
    std::remove((directory + "/SymbolList.xml").c_str());
    return seconds;
  };
  Measure(report, "ReplaceID doubling, by the bytes made", bytes, work);
}

} // namespace

void Measure(Report& report, const std::string& what, const Sizes& sizes, const Work& work) {
  bool right = true;
  std::vector<double> each;
  for (const std::size_t size : sizes) {
    std::vector<double> runs;
    for (int i = 0; i < 3; ++i)
      runs.push_back(work(size, right) / static_cast<double>(size));
    std::sort(runs.begin(), runs.end());
    each.push_back(runs[1]);
  }
  report.Growth(what, sizes, each);
  if (!right)
    report.Wrong(what);
}

standin::Market OneExchange() {
  standin::Market market;
  market.exchanges = {{1, "XX", "", ""}};
  market.entitled = market.defaults = "1";
  return market;
}

standin::Instrument Stock(const std::string& code) {
  standin::Instrument stock;
  stock.exchId = 1;
  stock.code = code;
  stock.kind = "stock";
  return stock;
}

void MeasureHostile(Report& report, const std::string& directory, bool quick) {
  const auto sizes = [quick](Sizes full) {
    for (std::size_t& size : full)
      size = quick ? size / 10 : size;
    return full;
  };
  report.GrowthSection("time of each item at three sizes");
  standin::SetMarket(OneExchange());
  MeasureFiles(report, directory, sizes({10'000, 100'000, 1'000'000}));
  MeasureLists(report, sizes({1'000, 10'000, 100'000}));
  MeasureAccounts(report, sizes({10'000, 30'000, 100'000}));
  MeasureHoldings(report, sizes({10'000, 30'000, 80'000}));
  MeasureRows(report, sizes({10'000, 30'000, 80'000}));
  MeasureGroupIds(report, sizes({10'000, 30'000, 80'000}));
  MeasureInserts(report, sizes({1'000, 10'000, 100'000}));
  MeasureDoubling(report, directory, quick ? Sizes{10, 14, 18} : Sizes{16, 20, 28});
}

} // namespace bench
