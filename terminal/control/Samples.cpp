// The sample market and lists that are installed with the stand-in.
#include <cstdlib>
#include <utility>

#include "terminal/StandIn.h"
#include "terminal/control/OwnDirectory.h"
#include "terminal/control/Reports.h"

namespace standin {

std::string SampleDirectory() {
  const char* const wanted = std::getenv("TQ_SAMPLES");
  return wanted != nullptr ? wanted : OwnDirectory() + "/" TQSTANDIN_SAMPLES;
}

std::string SampleLists() {
  return SampleDirectory() +
         (InterfaceLanguage() == Language::Traditional ? "/lists/tw" : "/lists/cn");
}

bool ServeSampleMarket(std::string& error) {
  Market market;
  const std::string directory = SampleDirectory() + "/market";
  if (!LoadMarket(directory, market, error)) {
    error.insert(0, directory + "/");
    return false;
  }
  SetMarket(std::move(market));
  return true;
}

} // namespace standin
