// GroupInfo: the record of a group, which the symbol-data service defines and the manager copies.
// This header puts it beside the other public headers of groups.
#pragma once

#include "platform/services/VLRecords.h"
