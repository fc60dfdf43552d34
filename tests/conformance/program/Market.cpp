// Has the stand-in's services serve the sample market from the program's start on. Where there is
// no "data/market" below the working directory the market stays empty.
#include <string>

#include "terminal/StandIn.h"

namespace {

struct SampleMarket {
  SampleMarket() {
    standin::Market market;
    std::string error;
    if (standin::LoadMarket("data/market", market, error))
      standin::SetMarket(market);
  }
};

const SampleMarket sampleMarket;

} // namespace
