// TQSProxy: the terminal's trading-system proxy. Login information, trading systems with their
// accounts and holdings, and change notifications.
//
// Conventions that hold for every operation of this header
//  1. Results are int: non-zero for success, 0 for failure. A null text or a null output is a
//     failure. Nothing throws.
//  2. Text is NUL-terminated within its field, in the process's ANSI code page, and cut at a whole
//     character.
//  3. Every call is synchronous, on the terminal's user-interface thread. A service may handle the
//     thread's messages during a call; the terminal may then call the library, and so the service
//     is called again from within itself. No operation may rely on being the only one that runs.
//  4. Records are packed; their sizes and the offsets named here are the service's and do not
//     change.
#pragma once

#include <cstddef>

#include "platform/Compiler.h"

// What TQSGetUserInfo is asked for.
enum LoginInfoFlag : int {
  LoginInfoEntitledExchanges = 0, // exchange ids, comma-separated decimal numbers
  LoginInfoDefaultExchanges = 6,  // the user's default exchange ids, comma-separated, best first
};

// The size of the buffer that TQSGetUserInfo fills, with the NUL.
enum { TQSUserInfoSize = 256 };

// The kind of a trading account: stock, futures ... The numbers are the trading system's; the
// library carries them and writes them as integers.
enum TqsAccType : int {};

#pragma pack(push, 1)

// One trading system that the user is logged in to.
struct TQS_TSINFO {
  char id[32];    // the key of every look-up, printable ASCII
  char name[256]; // display name and, after its NUL, the service's own
};

// One account of a trading system.
struct TQS_ACCOUNTINFO {
  TqsAccType type;     // 4 bytes
  char id[32];         // account id, printable ASCII
  char displayId[768]; // what the user sees (a masked number) and, after its NUL, the service's own
};

#pragma pack(pop)

static_assert(sizeof(TQS_TSINFO) == 288);
static_assert(offsetof(TQS_TSINFO, id) == 0 && offsetof(TQS_TSINFO, name) == 32);
static_assert(sizeof(TqsAccType) == 4 && sizeof(TQS_ACCOUNTINFO) == 804);
static_assert(offsetof(TQS_ACCOUNTINFO, type) == 0 && offsetof(TQS_ACCOUNTINFO, id) == 4);
static_assert(offsetof(TQS_ACCOUNTINFO, displayId) == 36);

extern "C" {

// Writes one piece of the login information into `buffer` (TQSUserInfoSize bytes). The third
// argument is "". Nothing is written behind these bytes. Fails when nobody is logged in or the flag
// is unknown; a user without the information is a success with "". Asked from the library's start
// on, and again whenever entitlements or default exchanges matter: the answer may change.
TQ_SERVICE_API int TQSGetUserInfo(LoginInfoFlag flag, char* buffer, const char* reserved);

// Tells the terminal that something changed: target "", -1, a code (4 symbols or names of lists, 40
// user lists, 41 cloud lists) and a reason text ("ListCntChange", "ListNameChange", "TSSymbolList"
// or ""). The terminal has acted on it when the call returns, or has posted itself a message to do
// so. There is no result: what fails here is the terminal's own matter.
TQ_SERVICE_API void TQSCall(const char* target, long reserved, long code, const char* reason);

// The number of trading systems that the user is logged in to, 0 for none; never negative.
TQ_SERVICE_API int TQSGetTSCount(void);

// One of them, 0 <= index < TQSGetTSCount(); any other index fails. Each has an id of its own.
TQ_SERVICE_API int TQSGetTSInfo(int index, TQS_TSINFO* info);

// 0 while the trading system is not available: not logged in, or unknown.
TQ_SERVICE_API int TQSGetTSStatus(const char* tsId);

// The number of accounts of a trading system; 0 for an unknown one, never negative.
TQ_SERVICE_API int TQSGetTSAccountCount(const char* tsId);

// One of them, 0 <= index < TQSGetTSAccountCount(tsId); any other index fails. A failed index is
// skipped, not the end. Id and type together are the account's own.
TQ_SERVICE_API int TQSGetTSAccount(const char* tsId, int index, TQS_ACCOUNTINFO* account);

// The stocks that an account holds: *holdings becomes a text of full symbol ids joined by ",",
// which the caller releases with TQSFree. An account that holds nothing is a success with an empty
// text. *holdings is null after a failure, as for an account that is not known. The text comes from
// the service's own heap.
TQ_SERVICE_API int TQSGetTSAccountHolding(const char* tsId, const char* accountId, TqsAccType type,
                                          char** holdings);

// Releases a text that TQSGetTSAccountHolding handed out. Null is allowed.
TQ_SERVICE_API void TQSFree(void* text);
}
