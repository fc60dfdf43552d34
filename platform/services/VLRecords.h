// The records of VLProxy, the symbol-data service. They are packed and copied as bytes; the sizes
// and the offsets that are named here are the service's and do not change. Bytes called "the
// service's own" are carried and never looked at.
#pragma once

#include <cstddef>

#pragma pack(push, 1)

// One symbol. What a list holds of a symbol is this record.
struct SymbolInfo {
  short exchId;      // the exchange's number
  char id[20];       // full symbol id: code, ".", exchange name; ":" for a heading row of a list.
                     // Printable ASCII without blanks and commas
  char reserved[20]; // the service's own
  char code[20];     // the exchange's own code
  char name[31];     // display name
};

// One exchange, as VLGetExch lists them.
struct ExchInfo {
  short id;       // the exchange's number
  char name[20];  // its short code: the text after the last "." of a full symbol id. Printable
                  // ASCII without dots, blanks and commas
  char rest[162]; // the service's own
};

// The attributes of one symbol, handed whole to CStaticKey::Setup of tqStock.
struct BaseAttr {
  char head[2];    // the service's own
  char code[20];   // bare symbol code
  char middle[69]; // the service's own
  short usable;    // 0: an update from this record is not taken
  char rest[1027]; // the service's own
};

// One extended attribute record: a text of keys and values that CStockKey::ParseExtAttr reads.
struct ExtAttr {
  short kind;     // the ExtAttrKind that was asked for
  char text[254]; // "V4=W;V5=2" and the like
};

// One group or sub-group. bHasSubGroup is 4 bytes at an address that need not be a multiple of 4.
struct GroupInfo {
  short nType;      // group type, 1 to 201
  char szID[17];    // the key of every look-up; printable ASCII
  char szName[49];  // display name
  int bHasSubGroup; // non-zero: there are sub-groups to ask for
};

#pragma pack(pop)

// What VLGetExtendAttr is asked for.
enum ExtAttrKind : int {
  ExtAttrWeekly = 2,    // V3 the strike of an option; V4 and V5 the week: "W" and its number
  ExtAttrShortName = 3, // the parts V5 and V6 of a contract's short name
};

static_assert(sizeof(SymbolInfo) == 93);
static_assert(offsetof(SymbolInfo, exchId) == 0 && offsetof(SymbolInfo, id) == 2);
static_assert(offsetof(SymbolInfo, reserved) == 22 && offsetof(SymbolInfo, code) == 42);
static_assert(offsetof(SymbolInfo, name) == 62);
static_assert(sizeof(ExchInfo) == 184);
static_assert(offsetof(ExchInfo, id) == 0 && offsetof(ExchInfo, name) == 2);
static_assert(sizeof(BaseAttr) == 1120);
static_assert(offsetof(BaseAttr, code) == 2 && offsetof(BaseAttr, usable) == 91);
static_assert(offsetof(ExtAttr, text) == 2);
static_assert(sizeof(GroupInfo) == 72);
static_assert(offsetof(GroupInfo, nType) == 0 && offsetof(GroupInfo, szID) == 2);
static_assert(offsetof(GroupInfo, szName) == 19 && offsetof(GroupInfo, bHasSubGroup) == 68);
