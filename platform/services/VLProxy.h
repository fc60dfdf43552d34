// VLProxy: the terminal's symbol-data service. Exchanges, symbol records, attributes, groups,
// search.
//
// Conventions that hold for every operation of this header
//  1. Results are int: non-zero for success, 0 for failure. A null text or a null output is a
//     failure. Nothing throws.
//  2. Text is NUL-terminated within its field, in the process's ANSI code page, and cut at a whole
//     character. Symbol names come in the interface language of the moment.
//  3. An operation that hands out an array sets *list and *count first to null and 0, then on
//     success to the array. Nothing found is a success with null and 0. A count is not negative,
//     and where it is not 0 there is an array of as many records. The array belongs to the caller,
//     who releases it with VLFree, after a failure too when *list is not null. It is never deleted
//     or freed by other means: it comes from the service's own heap.
//  4. Every call is synchronous, on the terminal's user-interface thread. A service may handle the
//     thread's messages during a call; the terminal may then call the library, and so the service
//     is called again from within itself. No operation may rely on being the only one that runs.
//  5. Records are packed; their sizes and the offsets named here are the service's and do not
//     change.
//  6. Where an operation takes several ids they are joined by "," without blanks.
//  7. Each array is memory of its own: it shares no byte with another that is not released yet, and
//     does not change until VLFree.
//  8. The same question twice, while nothing changes, gets the same records in the same order.
#pragma once

#include <cstddef>

#include "platform/Compiler.h"
#include "platform/services/VLRecords.h"

// The size of the buffer that VLGetZUID fills.
enum { VLServiceIdSize = 20 };

extern "C" {

// Releases an array that any operation of this service handed out. Null is allowed.
TQ_SERVICE_API void VLFree(void* array);

// ---- Exchanges and symbols ----------------------------------------------------------------------

// All exchanges, in the service's order. Each has a number of its own, above 0, and a name of its
// own. `flag` is 1.
TQ_SERVICE_API int VLGetExch(ExchInfo** list, int* count, int flag);

// The attributes of all symbols of one exchange, in the service's order: called as
// (exchId, -1, &list, &count, 0, 1). `subId` is a section of the exchange, -1 for the whole of it.
// They are those of VLGetSymbolInfos2, one record for each symbol, in the same order. Fails for an
// exchange that VLGetExch does not list; one without symbols is a success. The array lives until
// the attributes have been read out of it, and records go to tqStock at the place where they lie.
TQ_SERVICE_API int VLGetBaseAttrs2(int exchId, int subId, BaseAttr** list, int* count, int reserved,
                                   int flag);

// The attributes of the named symbols, in the order of `symbols`: full symbol ids, or bare codes,
// each of which means the first exchange in the service's order that lists it. Letter case is
// ignored, unknown symbols are left out, a symbol named twice comes twice. `flag` is 1.
TQ_SERVICE_API int VLGetBaseAttrs(const char* symbols, BaseAttr** list, int* count, int flag);

// The records of the named symbols: `ids` are full symbol ids, ASCII letter case ignored, otherwise
// exact. One record for each id that the service knows, in the order of `ids`; unknown ids are left
// out, an id named twice comes twice. An empty `ids` succeeds with *list = null and *count = 0.
TQ_SERVICE_API int VLGetSymbolInfos(const char* ids, SymbolInfo** list, int* count);

// The records of all symbols of one exchange, in the service's order: called as
// (exchId, -1, &list, &count, 0). `subId` and failure as for VLGetBaseAttrs2. Each symbol is listed
// once, whatever the letter case of its id.
TQ_SERVICE_API int VLGetSymbolInfos2(int exchId, int subId, SymbolInfo** list, int* count,
                                     int reserved);

// The record of one symbol, by its full id (compared as by VLGetSymbolInfos), into *info (93 bytes
// of the caller's): the same record as in VLGetSymbolInfos2. Fails, and leaves *info alone, when
// the service does not know the id.
TQ_SERVICE_API int VLGetSymbolInfo(const char* id, SymbolInfo* info);

// ---- Search -------------------------------------------------------------------------------------

// The symbols that a typed text may mean: called as (text, &list, &count, 0, mode, -1). A symbol
// matches when its code, its exchange's own code or its full id begins with the text (ASCII letter
// case ignored), or when its name contains the text. `mode` is the terminal's bCN switch: 0 looks
// at the names of the interface language, anything else at the Simplified Chinese names as well.
// `exchId` limits the search to one exchange, -1 is all of them. Results stand in the service's
// order: exchange by exchange. An empty text finds nothing. Each result is the record of a listed
// symbol and comes once.
TQ_SERVICE_API int VLFindSymbol(const char* text, SymbolInfo** list, int* count, int reserved,
                                int mode, int exchId);

// The same over the exchanges of `exchIds` (decimal numbers joined by ","), results in that order.
TQ_SERVICE_API int VLFindSymbol2(const char* text, const char* exchIds, SymbolInfo** list,
                                 int* count, int reserved, int mode);

// The symbols that an exchange knows under its own code `exchangeCode`: the whole code, ASCII
// letter case ignored. Several exchanges may use one code. An empty code finds nothing.
TQ_SERVICE_API int VLEX2ZUID2(const char* exchangeCode, SymbolInfo** list, int* count);

// ---- Contracts ----------------------------------------------------------------------------------

// The service's own id of a bare contract code, into `zuid` (VLServiceIdSize bytes, zeroed by the
// caller). `exchId` is -1: whatever exchange lists the contract. Every future and option has such
// an id. Fails, and leaves `zuid` alone, for an unknown code.
TQ_SERVICE_API int VLGetZUID(int exchId, const char* code, char* zuid);

// The extended attributes of one symbol, by the service's own id. `kind` is an ExtAttrKind. Fails
// for an unknown id; a symbol without attributes of the kind is a success. Each record says the
// kind that was asked for.
TQ_SERVICE_API int VLGetExtendAttr(const char* id, int kind, ExtAttr** list, int* count);

// ---- Groups -------------------------------------------------------------------------------------

// The groups of a type (1 to 201) under the group `parentId`, in the service's order; "" asks for
// the groups of the first level. A type without groups is a success. Each group says the type that
// was asked for, has an id, and comes once under its parent. bHasSubGroup is non-zero for a group
// that has sub-groups and for no other: nothing is asked below one that denies them. No group has
// type and id of one above it.
TQ_SERVICE_API int VLGetSubGroup(int type, const char* parentId, GroupInfo** list, int* count);

// The members of one group, each the record of a listed symbol. `flag` is 1. Fails for a group that
// the service does not know; one without members is a success.
TQ_SERVICE_API int VLGetGroupSymbol(int type, const char* groupId, SymbolInfo** list, int* count,
                                    int flag);
}
