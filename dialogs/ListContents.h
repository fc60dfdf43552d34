// What a content editor does to one list, and takes back: its rows, without a window.
//
// A row is a symbol that the symbol-data service knows, or a heading. Ids that it does not know
// have no row; they keep their places among the others and come back in the list's string as they
// were written. No symbol is added twice, whatever its letter case; headings may repeat.
//
// Every edit that changes something is one step, and holds no more than what it changed: entries
// that are taken out lie in the step until they are put in again.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <variant>
#include <vector>

#include "dialogs/undo/History.h"
#include "dialogs/undo/PlaceRuns.h"
#include "platform/framework/CString.h"
#include "platform/services/VLRecords.h"
#include "symbollist/ListIndex.h"

class CSymbolList;

namespace tq {

// What is selected in the box that shows the rows, and its caret row.
struct RowSelection {
  PlaceRuns rows;
  int caret = -1;
};

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

  // The id string of the list: that of before while nothing is changed.
  CString Ids() const;

  // --- Steps (ListContentsSteps.cpp)

  // The steps that are done. One more behind an edit that changed something.
  std::size_t Steps() const { return history_.Done(); }
  // What was selected in front of the latest step, and is behind it.
  void KeepSelection(RowSelection before, RowSelection after);

  // What a step did to the rows: from `first` on there are `now` rows in the place of `before`.
  struct Turned {
    const RowSelection& selected; // valid until the next edit
    int first;
    int before;
    int now;
  };
  // Take the latest step back, and do again what was taken back last. None when there is no such
  // step.
  std::optional<Turned> Undo();
  std::optional<Turned> Redo();
  // What was done so far stays.
  void ForgetSteps();

private:
  struct Entry {
    std::string text; // in the list's string: of a symbol with a row its record's id
    std::string name; // of a symbol with a row
    enum class Kind { Unknown, Symbol, Heading } kind = Kind::Unknown;
  };

  // A change is done or it is not: what does the one does the other.
  struct Spliced {
    PlaceRuns places;       // of the entries, when they are in
    std::vector<Entry> out; // the entries, while they are not
    bool isIn;
  };
  struct Retitled {
    int row;
    std::string text; // the other one
  };
  struct Moved {
    PlaceRuns rows; // as they lie now
    bool up;        // where they go next
  };
  struct Sorted {
    int first;
    std::vector<int> order; // behind `first`, of each row that which comes there
  };
  using Change = std::variant<Spliced, Retitled, Moved, Sorted>;
  struct Step {
    Change change;
    RowSelection before;
    RowSelection after;
  };
  // The rows in front of those that change, and behind them.
  struct Margins {
    int before;
    int behind;
  };

  void Do(Change change);
  Turned Turn(Change& change, const RowSelection& selected);
  Margins Apply(Spliced& change);
  Margins Apply(Retitled& change);
  Margins Apply(Moved& change);
  Margins Apply(Sorted& change);
  void TakeOut(Spliced& change);
  void PutIn(Spliced& change);

  bool IsChanged() const { return changed_ || history_.Done() > 0; }
  int PlaceOf(int row) const;
  int RowsInFrontOf(int place) const;
  void NumberRows();

  const Entry& At(int row) const { return entries_[rows_[static_cast<std::size_t>(row)]]; }
  Entry& At(int row) { return entries_[rows_[static_cast<std::size_t>(row)]]; }

  CString idsBefore_;
  bool changed_ = false; // by what cannot be taken back
  History<Step> history_;
  std::vector<Entry> entries_;
  std::vector<std::size_t> rows_; // of each row its entry, ascending
  std::unordered_multiset<std::string, NoCaseHash, NoCaseEqual> ids_; // all but headings
};

// A heading as an entry of a list: the text and ":". Empty when the text cannot be one: nothing but
// blanks, with a "," or with bytes that the list file cannot hold.
CString HeadingEntry(const CString& text);

} // namespace tq
