// GroupInfo: the record of a group as the symbol-data service hands it out and the manager copies
// it. It is one of the service's records; this header is where a terminal finds it beside the other
// group headers.
#pragma once

#include "platform/services/VLRecords.h"
