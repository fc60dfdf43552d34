// The services of a life: they fail at random, and while one of them works the terminal may call
// any operation.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "soak/Ledger.h"
#include "soak/Random.h"

namespace soak {

class Services {
public:
  using Meanwhile = std::function<void(std::string_view service)>;
  // `meanwhile` runs within calls of services.
  Services(Ledger& ledger, Random& random, Meanwhile meanwhile);
  ~Services();
  Services(const Services&) = delete;
  Services& operator=(const Services&) = delete;

  // Within one of so many calls; never for 0.
  void SetReentries(int onceIn) { reentries_ = onceIn; }
  // Has one of the services fail soon, or from now on.
  void FailOne();
  void StopFailing();

private:
  struct Order {
    std::string_view service;
    int calls; // until the one that fails; 0: every one
  };

  void OnCall(std::string_view service);
  void CountFaults(std::string_view service);

  Ledger& ledger_;
  Random& random_;
  Meanwhile meanwhile_;
  std::vector<Order> orders_;
  int reentries_ = 0;
};

} // namespace soak
