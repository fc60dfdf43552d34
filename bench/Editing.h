// Editing lists, and the work that changed exchanges cause.
#pragma once

#include <string>

#include "bench/Report.h"
#include "terminal/StandIn.h"

namespace bench {

// Adds and deletes in front of 10, 1,000 and 100,000 lists, edits entries of lists as long, and
// queries a list. `market` is what the services currently serve. `directory` must exist; files made
// in it are deleted. `quick` leaves out the largest size.
void MeasureEditing(Report& report, const standin::Market& market, const std::string& directory,
                    bool quick);

// Builds the buffer of all symbols of the market that the services currently serve.
void MeasureSorting(Report& report, std::size_t repetitions);

} // namespace bench
