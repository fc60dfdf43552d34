#include "terminal/demo/Sample.h"

#include "terminal/StandIn.h"

namespace demo {
namespace {

std::string ExchangeName(int id) {
  for (const standin::Exchange& exchange : standin::CurrentMarket().exchanges)
    if (exchange.id == id)
      return exchange.name;
  return "";
}

} // namespace

std::string SomeSymbols(size_t skip, size_t count) {
  std::string ids;
  for (const standin::Instrument& instrument : standin::CurrentMarket().instruments) {
    if (skip > 0) {
      --skip;
      continue;
    }
    if (count-- == 0)
      break;
    ids += (ids.empty() ? "" : ",") + instrument.code + "." + ExchangeName(instrument.exchId);
  }
  return ids;
}

} // namespace demo
