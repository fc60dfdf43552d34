// A container of symbol ids: what every watch list and every group is made of.
//
// The ids are kept twice. The id string, ids joined by ",", is the truth: it is what the list file
// stores, byte for byte, and ids that the symbol-data service does not know survive in it. The records
// are what the service answered for those ids when the string was last resolved.
//
// A token of the string with ":" after its first character is a heading (sub-title) row. It takes a
// row of its own whose record has the id ":"; its text is in the tokens.
//
// All calls come from the terminal's user-interface thread.
#pragma once

#include "platform/framework/CString.h"
#include "platform/framework/CStringArray.h"
#include "platform/framework/CUIntArray.h"
#include "platform/services/VLProxy.h"
#include "tqSymbolApi.h"

// Terminals call lists through these virtual operations; their order is part of the interface.
class TQSYMBOL_API CIDList {
public:
  CIDList();
  // Copies string, tokens, flags and a fresh copy of the records; the service is not asked.
  CIDList(const CIDList& other);
  CIDList& operator=(const CIDList&) = delete;
  virtual ~CIDList();

  // Rows of the list: ids that the service knows, and headings. Resolves first when that is due.
  virtual int GetCount();
  // Copies the record of row `index` (0 is the first) into `*out`. False, and `*out` untouched, when
  // the list could not be resolved, the index is out of range or `out` is null.
  virtual bool GetAt(int index, SymbolInfo* out);
  // Asks the service for the whole string again. Returns 1.
  virtual int Update3();
  // Takes over `count` records (at most `count`; null means none) that the symbol-data service handed
  // out: they are copied, the array is released with VLFree at once, and the string is rebuilt from
  // their ids. Returns 1.
  virtual int Update2(SymbolInfo* records, int count);
  // Replaces the string and resolves it. Returns 0 and does nothing when `ids` equals the present
  // string exactly, else 1.
  virtual int Update1(const CString& ids);
  // The id string. The reference is good until the list changes.
  virtual const CString& GetIDs();

  // 1 once Update1 has replaced the string; the list itself never clears it.
  int IsModified() const { return modified_; }
  // The string's tokens in order, headings and unknown ids included; ids trimmed and in upper case
  // once they have been resolved.
  const CStringArray& GetTokens() const { return tokens_; }

  // Entry edits, by row. All of them resolve first when that is due, return 0 and change nothing for a
  // row that is not there or a list that cannot be resolved, and 1 when done. The id string is rebuilt: a row contributes its record's id,
  // a heading its text; ids that the service does not know have no row, but keep their places.
  int RemoveEntry(int row);
  int SwapEntries(int first, int second); // 0 too when both are one
  // These resolve the list again. `text` is one id, or a heading with its ":"; 0 for an empty one and for
  // one that holds a ",".
  int ReplaceEntry(int row, const CString& text);
  // Puts `text` in front of the row (`before`) or behind it; a row before the first is the start of the
  // list, one behind the last its end. An id that the list holds already is refused; headings may repeat.
  int InsertEntry(int row, const CString& text, bool before);

  // The rows joined by ",": the records' ids, and the texts of headings. What the service does not know is
  // left out. Resolves first when that is due.
  void JoinRows(CString& out);

  // Whether one of the tokens is `id`, blanks around it and letter case ignored.
  bool Holds(const CString& id) const;

protected:
  // Drops the records, so that the next GetCount or GetAt asks the service anew.
  void DiscardRecords();

private:
  bool ResolveIfDue();
  bool Resolve();
  void RebuildFromRecords();
  CUIntArray RowTokens() const;
  void JoinTokens();

  CString ids_;
  SymbolInfo* records_; // owned, null until resolved
  int count_;           // rows in records_
  int modified_;
  CStringArray tokens_;
};
