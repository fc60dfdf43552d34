// Exchange ids as the login information carries them, and the order that follows from them.
#pragma once

#include "platform/framework/CUIntArray.h"

namespace tq {

// Asks for the logged-in user's default exchanges and replaces `ids` by them, best first. Pieces
// that are no positive number are passed over. False, and `ids` as it was, when the login
// information cannot be read.
bool ReadDefaultExchangeIds(CUIntArray& ids);

bool ContainsId(const CUIntArray& ids, unsigned id);

// Moves what is not a default exchange towards the end: the walk goes over the positions in order,
// puts a non-default id behind the last one, and goes on with the next position. So the id that
// slides into the freed place is passed over and stays in front. Terminals show exchanges in this
// very order: do not mend the skip.
void MoveDefaultsForward(CUIntArray& ids, const CUIntArray& defaults);

} // namespace tq
