#include "bench/Queries.h"

#include <algorithm>
#include <random>
#include <sstream>

#include "bench/Universe.h"

namespace bench {
namespace {

// No code of a universe begins with this.
constexpr char kUnusedLetter = '#';

// Stored in the order of the queries, so that reading a query causes no cache miss on either side.
Query MakeQuery(std::vector<std::string> texts) {
  constexpr unsigned kSeed = 20;
  std::shuffle(texts.begin(), texts.end(), std::mt19937(kSeed));
  Query query;
  query.ids.reserve(texts.size());
  for (const std::string& text : texts)
    query.ids.emplace_back(text.c_str());
  query.texts = std::move(texts);
  return query;
}

} // namespace

Queries MakeQueries(const standin::Market& market) {
  Queries queries;
  std::istringstream defaults(market.defaults);
  for (std::string id; std::getline(defaults, id, ',');)
    queries.defaults.push_back(std::stoi(id));
  const auto isDefault = [&](int id) {
    return std::find(queries.defaults.begin(), queries.defaults.end(), id) !=
           queries.defaults.end();
  };
  for (const standin::Exchange& exchange : market.exchanges)
    if (isDefault(exchange.id))
      queries.suffixes.push_back("." + exchange.name);
  std::vector<std::string> bare;
  for (const standin::Instrument& instrument : market.instruments)
    if (isDefault(instrument.exchId))
      bare.push_back(instrument.code);
  queries.bare = MakeQuery(std::move(bare));
  std::vector<std::string> ids = FullIds(market);
  queries.full = MakeQuery(ids);
  for (std::string& id : ids)
    id[0] = kUnusedLetter;
  queries.missing = MakeQuery(std::move(ids));
  return queries;
}

} // namespace bench
