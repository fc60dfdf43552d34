#include "soak/Services.h"

#include <algorithm>
#include <string>
#include <utility>

#include "terminal/ServiceNames.h"
#include "terminal/StandIn.h"

namespace soak {

Services::Services(Ledger& ledger, Random& random, Meanwhile meanwhile)
    : ledger_(ledger), random_(random), meanwhile_(std::move(meanwhile)) {
  standin::OnEachCall([this](std::string_view service) { OnCall(service); });
}

Services::~Services() {
  standin::OnEachCall({});
  StopFailing();
}

void Services::FailOne() {
  constexpr int kSoon = 12;
  const std::string_view service = random_.One(standin::kServiceNames);
  if (std::any_of(orders_.begin(), orders_.end(),
                  [&](const Order& order) { return order.service == service; }))
    return;
  const int calls = random_.OnceIn(3) ? 0 : 1 + random_.Draw(kSoon);
  if (calls == 0)
    standin::FailAlways(service);
  else
    standin::FailCall(service, calls);
  orders_.push_back({service, calls});
}

void Services::StopFailing() {
  for (const Order& order : orders_)
    standin::FailCall(order.service, 0);
  orders_.clear();
}

// As the stand-in counts.
void Services::CountFaults(std::string_view service) {
  const auto order = std::find_if(orders_.begin(), orders_.end(),
                                  [&](const Order& each) { return each.service == service; });
  if (order == orders_.end())
    return;
  if (order->calls > 1) {
    --order->calls;
    return;
  }
  ledger_.Add(Count::ServiceFaults);
  if (order->calls == 1)
    orders_.erase(order);
}

void Services::OnCall(std::string_view service) {
  CountFaults(service);
  if (random_.OnceIn(reentries_))
    meanwhile_(service);
}

} // namespace soak
