// The market behind the services.
#include "terminal/control/Listings.h"
#include "terminal/control/Parts.h"

namespace standin {
namespace {

struct Current {
  Market market;
  Listings listings;
};

Current& TheCurrent() {
  static Current current;
  return current;
}

} // namespace

void SetMarket(Market market) {
  Current& current = TheCurrent();
  current.market = std::move(market);
  current.listings.Build(current.market);
}

const Market& CurrentMarket() {
  return TheCurrent().market;
}

const Listings& CurrentListings() {
  return TheCurrent().listings;
}

void Reset() {
  ResetLanguage();
  SetMarket(Market());
  ResetScript();
  ResetReleases();
  ResetReports();
}

} // namespace standin
