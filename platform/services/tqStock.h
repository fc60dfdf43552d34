// tqStock: the terminal's stock-attribute library. Reads the attributes out of the symbol-data
// service's records, and those that only trading data has.
//
// Conventions that hold for all of this header
//  1. Results are int: non-zero for success, 0 for failure. After a failure a text output is empty
//     and a number output is as it was. Nothing throws.
//  2. Text is in the process's ANSI code page, names in the interface language of the record.
//  3. Every call is synchronous, on the terminal's user-interface thread. A service may handle the
//     thread's messages during a call; the terminal may then call the library, and so the service
//     is called again from within itself. No operation may rely on being the only one that runs.
//  4. Objects are made by whoever calls, on the stack or in arrays. Size and alignment of the
//     classes below are part of the binary interface and do not change; what a service keeps for an
//     object lies in these bytes, or is found from there. No class of this header has virtual
//     members.
#pragma once

#include "platform/Compiler.h"
#include "platform/framework/CString.h"
#include "platform/services/VLProxy.h"
#include "platform/services/tqStockFields.h"

class CPtrArray;

// What every key object of this library answers.
class TQ_SERVICE_API CStockAttr {
public:
  // The symbol's id; with `full` non-zero code, ".", exchange name, else the bare code: the id and
  // the code under which VLProxy lists the symbol. Fails when no record has been set up.
  int GetID(CString& id, int full) const;

protected:
  CStockAttr();
  ~CStockAttr() = default;
  // The service's own state. It refers to the record given to Setup, which must outlive the object
  // or its next Setup. Nobody else reads or writes these bytes. 64 bytes at an address that is a
  // multiple of 8: do not change. State that needs more keeps a pointer here and is freed by the
  // destructor of the derived class; this class's own destructor does nothing.
  alignas(8) unsigned char state_[64];
};

// The static attributes of one symbol. Answers the fields that are not marked "trading data", and
// FieldTradeCode after SetUpTrade.
class TQ_SERVICE_API CStaticKey : public CStockAttr {
public:
  CStaticKey();
  ~CStaticKey();
  CStaticKey(const CStaticKey&) = delete;
  CStaticKey& operator=(const CStaticKey&) = delete;

  // Binds the object to one record; non-zero when the record is usable, that is, when it has a code
  // and is not marked unusable. The record is neither copied nor changed. Null is a failure. After
  // a failure the object is bound to nothing.
  int Setup(const BaseAttr* record);
  // Binds the object to a symbol by exchange number and bare code (at most 19 bytes, letter case
  // ignored), for the fields that only trading data has. `code` is copied. Fails for an unknown
  // symbol and for null.
  int SetUpTrade(int exchId, const char* code);
  // One attribute as text. Numbers come as decimal text; 112 is the exchange's short code. Fails
  // for an attribute that the symbol does not have and for an unknown field.
  int GetFieldString(int field, CString& value) const;
  // One attribute as number: 110, 111, 112 (the exchange's number), 113, 172, 176, 3006 and 3007.
  // Fails for every other field.
  int GetFieldInt(int field, int& value) const;
};

// The attributes that need no record.
class TQ_SERVICE_API CStockKey : public CStockAttr {
public:
  CStockKey();
  ~CStockKey();
  CStockKey(const CStockKey&) = delete;
  CStockKey& operator=(const CStockKey&) = delete;

  // The value of `key` ("V3") in the text of an ExtAttr record, which is a row of pairs:
  // "V4=W;V5=2". Keys are compared as they are, blanks included, and of equal ones the first
  // counts. A value has no ";". An empty value counts as none. Fails, with an empty `value`, when
  // there is none and when a text is null.
  static int ParseExtAttr(const char* text, const char* key, CString& value);
  // The rows of an info table, in its order: each entry of `rows`, which is emptied first, points
  // to a CStringArray of columns (see InfoColumn), texts in the terminal's interface language; a
  // region or a category may be empty. The rows belong to this library and stay valid until the
  // next call, whatever its type and result: a caller who goes on asking copies them. Succeeds
  // without rows for a table that is empty or not known.
  static int GetInfoArray(InfoType type, CPtrArray& rows);
};

static_assert(sizeof(CStaticKey) == 64 && alignof(CStaticKey) == 8);
static_assert(sizeof(CStockKey) == 64 && alignof(CStockKey) == 8);

extern "C" {

// One attribute of the symbol with that exchange number and bare code, as text: the fields marked
// "trading data". Fails for an unknown symbol and for what trading data does not tell. Asked anew
// at each look-up of such a field, as the answers change while the market is open.
TQ_SERVICE_API int tqStockGetFieldString(int field, int exchId, const char* code, CString& value);
}
