// Editing, and what has to be done again when exchanges change.
#pragma once

#include <string>

#include "bench/Report.h"
#include "terminal/StandIn.h"

namespace bench {

// Adding and deleting in front of 10, 1,000 and 100,000 lists, entry edits of lists as long, and
// the queries of a list. `market` is the one that the services have at the moment. Files in
// `directory`, which exists, are deleted at the end. `quick` leaves the largest out.
void MeasureEditing(Report& report, const standin::Market& market, const std::string& directory,
                    bool quick);

// Building the buffer of all symbols of the market that the services have.
void MeasureSorting(Report& report, std::size_t repetitions);

} // namespace bench
