// A container of symbol ids: what every watch list and every group is made of.
//
// The ids are kept twice. The id string, ids joined by ",", is the truth: it is what the list file
// stores, byte for byte, and ids that the symbol-data service does not know survive in it. The
// records are what the service answered for those ids when the string was last resolved.
//
// A token of the string with ":" after its first character is a heading (sub-title) row. It takes a
// row of its own whose record has the id ":"; its text is in the tokens.
//
// All calls come from the terminal's user-interface thread. The service may call the terminal back
// while a list asks it, and the terminal may change or delete that list then: what was changed
// stands, and the call that asked returns as for a list without rows when there is none any more.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "platform/framework/CString.h"
#include "platform/framework/CStringArray.h"
#include "platform/framework/CUIntArray.h"
#include "platform/services/VLProxy.h"
#include "tqSymbolApi.h"

namespace tq {
class LifeWatch;
}

// Terminals call lists through these virtual operations; their order is part of the interface.
class TQSYMBOL_API CIDList {
public:
  CIDList() noexcept;
  // Copies string, tokens, flags and a fresh copy of the records; the service is not asked.
  CIDList(const CIDList& other) noexcept;
  CIDList& operator=(const CIDList&) = delete;
  virtual ~CIDList();

  // Rows of the list: ids that the service knows, and headings. Resolves first when that is due.
  virtual int GetCount();
  // Copies the record of row `index` (0 is the first) into `*out`. False, and `*out` untouched,
  // when the list could not be resolved, the index is out of range or `out` is null.
  virtual bool GetAt(int index, SymbolInfo* out);
  // Asks the service for the whole string again. Returns 1.
  virtual int Update3();
  // Takes over `count` records (null means none) that the symbol-data service handed out: they are
  // copied, the array is released with VLFree at once, and the string is rebuilt from their ids. A
  // record whose id cannot stand in the string (none, only blanks, one with a "," or with bytes
  // that are no characters) names no symbol and is left out. Returns 1.
  virtual int Update2(SymbolInfo* records, int count);
  // Replaces the string and resolves it. Bytes that the list file cannot hold (half characters,
  // control bytes) are left out of what is stored, with a line in the log. Returns 0 and does
  // nothing when the text to be stored equals the present string exactly, else 1.
  virtual int Update1(const CString& ids);
  // The id string. The reference is good until the list changes.
  virtual const CString& GetIDs();
  // Update1 for this list and for `copy`, which was made of it, with one question to the service.
  // When the terminal changes or deletes this list meanwhile, the copy asks for itself.
  void UpdateWithCopy(const CString& ids, CIDList& copy) noexcept;

  // 1 once Update1 has replaced the string; the list itself never clears it.
  int IsModified() const noexcept { return modified_; }
  // The string's tokens in order, headings and unknown ids included; ids trimmed and in upper case.
  const CStringArray& GetTokens() const noexcept { return tokens_; }

  // Entry edits, by row. All of them resolve first when that is due, return 0 and change nothing
  // for a row that is not there or a list that cannot be resolved, and 1 when done. The id string
  // is rebuilt: a row contributes its record's id, a heading its text; ids that the service does
  // not know have no row, but keep their places and stay as they are written.
  int RemoveEntry(int row) noexcept;
  int SwapEntries(int first, int second) noexcept; // 0 too when both are one
  // These resolve the list again. `text` is one id, or a heading with its ":"; 0 for one that is
  // empty or nothing but blanks and for one that holds a ",". What the file cannot hold is left out
  // of it.
  int ReplaceEntry(int row, const CString& text) noexcept;
  // Puts `text` in front of the row (`before`) or behind it; a row before the first is the start of
  // the list, one behind the last its end. An id that the list holds already is refused; headings
  // may repeat.
  int InsertEntry(int row, const CString& text, bool before) noexcept;

  // The rows joined by ",": the records' ids, and the texts of headings. What the service does not
  // know is left out. Resolves first when that is due.
  void JoinRows(CString& out) noexcept;

  // Whether one of the tokens is `id`, blanks around it and letter case ignored.
  bool Holds(const CString& id) const noexcept;

protected:
  // Drops the records, so that the next GetCount or GetAt asks the service anew.
  void DiscardRecords() noexcept;

  // The innermost of the operations under way that have to know when the list is deleted.
  tq::LifeWatch* watch_;

private:
  enum class Rows { There, None, ListGone };

  void CopyContents(const CIDList& other);
  Rows ResolveIfDue();
  // Without exceptions, as all of the interface is: those of its operations that are virtual do not
  // say so, for a terminal's own list need not.
  Rows Resolve() noexcept;
  int TakeRecords(SymbolInfo* records, int count) noexcept;
  bool Keep(const CString& ids) noexcept;
  bool Ask(int headings, const CString& lookup);
  SymbolInfo& RowAt(int row) const { return records_[static_cast<std::size_t>(row)]; }
  Rows State() const { return records_ != nullptr ? Rows::There : Rows::None; }
  void TakeRows(const SymbolInfo* found, int foundCount, int headings);
  std::vector<std::string_view> Entries() const;
  void StoreEntries(const std::vector<std::string_view>& entries);
  int ChangeEntries(const std::vector<std::string_view>& entries);

  CString ids_;
  std::unique_ptr<SymbolInfo[]> records_; // null until resolved
  int count_;                             // rows in records_
  int modified_;
  CStringArray tokens_;
  CUIntArray rowTokens_; // for each row the index of its token, ascending
};
