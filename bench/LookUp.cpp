#include "bench/LookUp.h"

#include <string>
#include <vector>

#include "bench/Heap.h"
#include "bench/Maps.h"
#include "bench/Queries.h"
#include "platform/framework/CUIntArray.h"
#include "platform/services/tqStock.h"
#include "tqSymbol.h"

namespace bench {
namespace {

constexpr double kGoalOverStd = 1.0;
constexpr double kGoalOverFlat = 1.5;

// Each of these runs all its queries once and returns the number of answers.

std::size_t LibraryTexts(CSymbolTableMgr& tables, const std::vector<CString>& ids) {
  const CString noExchange;
  CString value;
  std::size_t found = 0;
  for (const CString& id : ids)
    found += tables.LookUpSymbolGetString(FieldSymbolId, id, noExchange, value) != 0;
  return found;
}

std::size_t LibraryLots(CSymbolTableMgr& tables, const std::vector<CString>& ids) {
  const CString noExchange;
  int value = 0;
  std::size_t found = 0;
  for (const CString& id : ids)
    found += tables.LookUpSymbolGetInt(FieldTradeLot, id, noExchange, value) != 0 && value > 0;
  return found;
}

// A map copies its text into the caller's string, as the library does.
template <typename Map> std::size_t MapTexts(const Map& map, const std::vector<std::string>& ids) {
  std::string value;
  std::size_t found = 0;
  for (const std::string& id : ids) {
    const auto place = map.find(id);
    if (place == map.end())
      continue;
    value = place->second;
    found += !value.empty();
  }
  return found;
}

// For a number no text is copied.
template <typename Map> std::size_t MapHits(const Map& map, const std::vector<std::string>& ids) {
  std::size_t found = 0;
  for (const std::string& id : ids) {
    const auto place = map.find(id);
    found += place != map.end() && !place->second.empty();
  }
  return found;
}

// How the library looks up a bare code: it asks every default exchange and answers if exactly one
// has the code.
template <typename Map>
std::size_t MapBare(const Map& map, const std::vector<std::string>& codes,
                    const std::vector<std::string>& suffixes) {
  std::string id;
  std::string value;
  std::size_t found = 0;
  for (const std::string& code : codes) {
    int holders = 0;
    for (const std::string& suffix : suffixes) {
      id.assign(code).append(suffix);
      const auto place = map.find(id);
      if (place == map.end())
        continue;
      value = place->second;
      ++holders;
    }
    found += holders == 1;
  }
  return found;
}

class LookUps {
public:
  LookUps(Report& report, CSymbolTableMgr& tables, const Queries& queries, std::size_t repetitions)
      : report_(report), tables_(tables), queries_(queries), repetitions_(repetitions) {}

  template <typename Map> void Over(const std::string& name, double goal, double goalOfMisses);
  void CountAllocations();

private:
  template <typename Library, typename Peer>
  void Row(const std::string& what, double goal, std::size_t count, std::size_t answers,
           Library library, Peer peer);

  Report& report_;
  CSymbolTableMgr& tables_;
  const Queries& queries_;
  std::size_t repetitions_;
};

template <typename Library, typename Peer>
void LookUps::Row(const std::string& what, double goal, std::size_t count, std::size_t answers,
                  Library library, Peer peer) {
  bool right = true;
  const auto timed = [&](auto work) {
    return Computing([&] { right = work() == answers && right; });
  };
  const Figure figure = Compare(
      repetitions_, [&] { return timed(library); }, [&] { return timed(peer); });
  report_.Ratio(what, figure, goal, count);
  if (!right)
    report_.Wrong(what);
}

template <typename Map>
void LookUps::Over(const std::string& name, double goal, double goalOfMisses) {
  Map map;
  map.reserve(queries_.full.texts.size());
  for (const std::string& id : queries_.full.texts)
    map.emplace(id, id);
  const Query& full = queries_.full;
  const Query& bare = queries_.bare;
  const Query& missing = queries_.missing;
  const std::size_t all = full.texts.size();
  const std::size_t bares = bare.texts.size();
  Row(
      "text by full id / " + name, goal, all, all, [&] { return LibraryTexts(tables_, full.ids); },
      [&] { return MapTexts(map, full.texts); });
  Row(
      "text by bare code / " + name, goal, bares, bares,
      [&] { return LibraryTexts(tables_, bare.ids); },
      [&] { return MapBare(map, bare.texts, queries_.suffixes); });
  Row(
      "unknown id / " + name, goalOfMisses, all, 0,
      [&] { return LibraryTexts(tables_, missing.ids); },
      [&] { return MapTexts(map, missing.texts); });
  Row(
      "number by full id / " + name, goal, all, all, [&] { return LibraryLots(tables_, full.ids); },
      [&] { return MapHits(map, full.texts); });
}

void LookUps::CountAllocations() {
  const std::size_t before = Allocations();
  LibraryTexts(tables_, queries_.full.ids);
  LibraryTexts(tables_, queries_.bare.ids);
  LibraryLots(tables_, queries_.full.ids);
  report_.Number("look-ups that hit", static_cast<double>(Allocations() - before), "allocations",
                 0);
}

} // namespace

void MeasureLookUps(Report& report, const standin::Market& market, std::size_t repetitions) {
  const Queries queries = MakeQueries(market);
  CSymbolTableMgr tables;
  CUIntArray defaults;
  for (const int id : queries.defaults)
    defaults.Add(static_cast<unsigned>(id));
  if (!tables.Init() || !tables.InitAllSymbolTable() || !tables.InitDefaultExchList(defaults)) {
    report.Wrong("InitAllSymbolTable");
    return;
  }
  LookUps lookUps(report, tables, queries, repetitions);
  lookUps.Over<FlatMap>("flat map", kGoalOverFlat, kNoGoal);
  lookUps.Over<StdMap>("std::unordered_map", kGoalOverStd, kGoalOverStd);
  lookUps.CountAllocations();
}

} // namespace bench
