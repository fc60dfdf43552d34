// What a content editor does to one list: its rows, without a window.
//
// A row is a symbol that the symbol-data service knows, or a heading. Ids that it does not know
// have no row; they keep their places among the others and come back in the list's string as they
// were written. No symbol is added twice, whatever its letter case; headings may repeat.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "platform/framework/CString.h"
#include "platform/services/VLRecords.h"
#include "symbollist/ListIndex.h"

class CSymbolList;

namespace tq {

class ListContents {
public:
  // No rows.
  ListContents() = default;
  // The contents of a list, which asks the service if it has to.
  explicit ListContents(CSymbolList& list);

  int RowCount() const { return static_cast<int>(rows_.size()); }
  // The following take rows that are there.
  bool IsHeading(int row) const;
  // What the row shows: id, a blank and name of a symbol; the text of a heading.
  CString RowText(int row) const;
  // The id of a symbol; of a heading its text with the ":".
  CString TextAt(int row) const;

  // The rows of the symbols with these ids, letter case ignored, ascending. In one pass, however
  // many they are.
  std::vector<int> RowsOf(std::span<const CString> ids) const;
  // Whether a list can have this id: one token that is no heading, nor the id of a heading's
  // record, and that the list file carries.
  static bool CanHold(std::string_view id);
  // Whether the symbol is in the list, with a row or without.
  bool Holds(std::string_view id) const;

  // Puts those of the symbols that the list can have and does not hold in front of a row, in their
  // order; RowCount() is the end. Returns how many.
  int Insert(int row, std::span<const SymbolInfo> symbols);
  // Puts a heading, made by HeadingEntry, in front of a row.
  void InsertHeading(int row, const CString& entry);
  // Puts it in the place of the heading of a row.
  void SetHeading(int row, const CString& entry);
  // Removes rows, which ascend.
  void Remove(std::span<const int> rows);
  // Moves rows, which ascend, one up or down, each past a neighbour that stays. False, and nothing
  // moves, when the first or the last one cannot.
  bool Move(std::span<const int> rows, bool up);
  // Sorts the symbols by their ids, those of each heading by themselves; headings stay.
  void Sort();

  // The id string of the list: that of before until something is changed.
  CString Ids() const;

private:
  struct Entry {
    std::string text; // in the list's string: of a symbol with a row its record's id
    std::string name; // of a symbol with a row
    enum class Kind { Unknown, Symbol, Heading } kind = Kind::Unknown;
  };

  std::vector<Entry>::iterator PlaceOf(int row);
  void NumberRows();
  void SortRows(std::span<const std::size_t> places);

  const Entry& At(int row) const { return entries_[rows_[static_cast<std::size_t>(row)]]; }
  Entry& At(int row) { return entries_[rows_[static_cast<std::size_t>(row)]]; }

  CString idsBefore_;
  bool changed_ = false;
  std::vector<Entry> entries_;
  std::vector<std::size_t> rows_; // of each row its entry, ascending
  std::unordered_multiset<std::string, NoCaseHash, NoCaseEqual> ids_; // all but headings
};

// A heading as an entry of a list: the text and ":". Empty when the text cannot be one: nothing but
// blanks, with a "," or with bytes that the list file cannot hold.
CString HeadingEntry(const CString& text);

} // namespace tq
