// The layout of a BaseAttr, which the stand-in VLProxy writes and the stand-in tqStock reads. To
// everybody else these bytes are private to the service.
#pragma once

#include <cstddef>

#include "platform/services/VLProxy.h"

namespace standin {

#pragma pack(push, 1)

// The beginning of a BaseAttr; the remaining bytes are zero.
struct BaseAttrHead {
  short exchId;          // the exchange's number
  char code[20];         // bare code
  char exchName[20];     // short code of the exchange
  char name[31];         // display name, in the language of the call
  char mark;             // field 109
  short decimals;        // field 3006
  int lot;               // field 176
  short kind;            // field 110
  short board;           // field 111
  short legExchId;       // field 113 as a number
  char unused[5];        //
  short usable;          // 0: CStaticKey::Setup refuses the record
  char exchangeCode[20]; // field 184
  char legExchName[20];  // field 113 as text
  char industry[32];     // field 155
  char underlying[20];   // field 156
  char contractMonth[8]; // field 157
  char currency[4];      // field 164
  int expiryDate;        // field 172
};

#pragma pack(pop)

static_assert(offsetof(BaseAttrHead, code) == offsetof(BaseAttr, code));
static_assert(offsetof(BaseAttrHead, exchName) == offsetof(BaseAttr, middle));
static_assert(offsetof(BaseAttrHead, usable) == offsetof(BaseAttr, usable));
static_assert(offsetof(BaseAttrHead, exchangeCode) == offsetof(BaseAttr, rest));
static_assert(sizeof(BaseAttrHead) == 201 && sizeof(BaseAttrHead) < sizeof(BaseAttr));

} // namespace standin
