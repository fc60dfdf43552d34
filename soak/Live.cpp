#include "soak/Process.h"

#include "terminal/StandIn.h"
#include "tests/operations/Subject.h"

namespace soak {

int Live(Ledger& ledger, const LifeOrder& order) {
  operations::PrepareServices();
  standin::FailAlways("TQLog::storage"); // no log files
  Life(ledger, order).Run();
  return ledger.loss[0] == '\0' ? 0 : 1;
}

} // namespace soak
