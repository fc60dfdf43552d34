// The market that tests start with unless they set their own: small enough to know by heart.
#pragma once

#include "terminal/StandIn.h"

// Exchanges 1 TW, 2 TE, 3 TF, 10 NYSE, 11 NASD, 12 AMEX, in this order; entitled to 1, 2 and 3,
// default exchanges 1 and 2, no "FullMenuKey". The instruments come exchange by exchange; 2330 (TW)
// is the first. 7777 is listed on TW and on TE and on no other; BRK.B has a dot of its own; the
// Traditional name of 1436 is made of characters whose second byte is a backslash.
standin::Market SmallMarket();
