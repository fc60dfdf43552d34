// SmallMarket() with a group tree that is small enough to know by heart.
#pragma once

#include "terminal/StandIn.h"

// Type 1: TSE with the sub-groups CHIP (2330.TW, 2454.TW) and CEM (1101.TW), OTC with WAFER
// (6488.TE, 5483.TE), and ETF, a group without sub-groups (0050.TW). Type 2: CTW with AI (2330.TW,
// 2317.TW) and a2 (2881.TW), an id in small letters. Type 7: TXO with TXOC (TXO21000L6.TF) and TXOP
// (TXO21000X6.TF). Type 201: VORNG01 with VORNG0101, VORNG0102 and VORNG0103, which are empty, and
// PICK (2317.TW). Names differ between the languages where the characters do.
standin::Market GroupMarket();
