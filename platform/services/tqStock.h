// tqStock: the terminal's stock-attribute library. Reads the attributes out of the symbol-data
// service's records, and those that only trading data has.
//
// Conventions that hold for all of this header
//  1. Results are int: non-zero for success, 0 for failure. After a failure a text output is empty
//     and a number output is as it was. Nothing throws.
//  2. Text is in the process's ANSI code page, names in the interface language of the record.
//  3. Every call is synchronous, on the terminal's user-interface thread.
#pragma once

#include "platform/framework/CString.h"
#include "platform/services/VLProxy.h"
#include "platform/services/tqStockFields.h"

class CPtrArray;

// What every key object of this library answers.
class CStockAttr {
public:
  // The symbol's id; with `full` non-zero code, ".", exchange name, else the bare code. Fails when
  // no record has been set up.
  int GetID(CString& id, int full) const;

protected:
  CStockAttr();
  ~CStockAttr() = default;
  // The service's own state. It refers to the record given to Setup, which must outlive the object.
  alignas(8) unsigned char state_[64];
};

// The static attributes of one symbol. Answers the fields that are not marked "trading data", and
// FieldTradeCode after SetUpTrade.
class CStaticKey : public CStockAttr {
public:
  CStaticKey();
  ~CStaticKey();
  CStaticKey(const CStaticKey&) = delete;
  CStaticKey& operator=(const CStaticKey&) = delete;

  // Binds the object to one record; non-zero when the record is usable, that is, when it has a code
  // and is not marked unusable. The record is not copied. After a failure the object is bound to
  // nothing.
  int Setup(const BaseAttr* record);
  // Binds the object to a symbol by exchange number and bare code (at most 19 bytes, letter case
  // ignored), for the fields that only trading data has. Fails for an unknown symbol.
  int SetUpTrade(int exchId, const char* code);
  // One attribute as text. Numbers come as decimal text; 112 is the exchange's short code.
  int GetFieldString(int field, CString& value) const;
  // One attribute as number: 110, 111, 112 (the exchange's number), 113, 172, 176, 3006 and 3007.
  int GetFieldInt(int field, int& value) const;
};

// The attributes that need no record.
class CStockKey : public CStockAttr {
public:
  CStockKey();
  ~CStockKey();
  CStockKey(const CStockKey&) = delete;
  CStockKey& operator=(const CStockKey&) = delete;

  // The value of `key` ("V3") in the text of an ExtAttr record, which is a row of pairs:
  // "V4=W;V5=2". Keys are compared as they are, blanks included, and of equal ones the first
  // counts. A value has no ";". An empty value counts as none.
  static int ParseExtAttr(const char* text, const char* key, CString& value);
  // The rows of an info table, in its order: each entry of `rows`, which is emptied first, points
  // to a CStringArray of columns (see InfoColumn), texts in the terminal's interface language; a
  // region or a category may be empty. The rows belong to this library and stay valid until the
  // next call, whatever its type and result: a caller who goes on asking copies them. Succeeds
  // without rows for a table that is empty or not known.
  static int GetInfoArray(InfoType type, CPtrArray& rows);
};

extern "C" {
// One attribute of the symbol with that exchange number and bare code, as text: the fields marked
// "trading data". Fails for an unknown symbol and for what trading data does not tell.
int tqStockGetFieldString(int field, int exchId, const char* code, CString& value);
}
