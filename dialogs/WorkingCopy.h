// The lists that a dialog edits: copies of the manager's, invisible to others until they are
// committed. What the editors do to them, and take back, without a window.
//
// Where steps are kept, every edit that changes something is one. A step holds no more than what it
// changed: a list that was removed lies in its step, of a list whose contents were edited it has
// the symbols that came, went or moved.
#pragma once

#include <memory>
#include <optional>
#include <variant>
#include <vector>

#include "dialogs/undo/History.h"
#include "dialogs/undo/IdsChange.h"
#include "platform/framework/CPtrArray.h"
#include "platform/framework/CString.h"
#include "symbollist/SymbolList.h"

class CTQSymbolListMgr;

namespace tq {

// What the user sees of a list: its name, and behind that of a system list the mark of one (string
// 48039).
CString DisplayName(const CSymbolList& list);

class WorkingCopy {
public:
  using Lists = std::vector<std::unique_ptr<CSymbolList>>; // none is null

  // Empty, without a default list.
  WorkingCopy() = default;
  // Of the manager's lists of a kind (1 or 8), with the user lists' default index.
  WorkingCopy(CTQSymbolListMgr& manager, int kind);

  // In display order.
  Lists& All() { return lists_; }
  int Count() const { return static_cast<int>(lists_.size()); }
  // `index` must be in range.
  CSymbolList& At(int index) const { return *lists_[static_cast<std::size_t>(index)]; }
  // Position of the list with that id, ignoring letter case, or -1.
  int Find(const char* id) const;
  void Clear();

  // Takes in what others did to the manager's lists since this copy was filled or committed, so
  // that a commit does not undo it: lists that are new there come behind these, and lists and the
  // default index that the user has not touched become what they are there. What the user changed
  // or deleted stays so; lists that others deleted stay too.
  // False when the user has touched nothing and others have: then there is nothing to commit, and
  // a save would store what others may have changed in memory alone.
  // The steps are forgotten: they are those of the lists as they were.
  bool TakeInChanges(CTQSymbolListMgr& manager);
  // The manager has these lists now.
  void Committed();
  // Writes into the log how many lists were taken in as new. To be called when they are stored: the
  // log service may add lists, which a store behind that would lose.
  void ReportKept();

  // The lists as the manager's operations take them. The pointers are valid until the lists change.
  CPtrArray Pointers() const;

  int DefaultIndex() const { return defaultIndex_; }
  void SetDefaultIndex(int index) { defaultIndex_ = index; }

  // Whether a list other than that at `except` (-1: any) has exactly this name. Letter case counts.
  bool HasName(const CString& name, int except) const;

  // Adds a list behind the others and returns its position. The only list is the default one.
  // `selected` is the position that is selected meanwhile, for the step.
  int Add(std::unique_ptr<CSymbolList> list, int selected = -1);
  // By another version of the same list.
  void Replace(int index, std::unique_ptr<CSymbolList> list);
  void Rename(int index, const CString& name);
  void MakeDefault(int index);

  // What becomes of the default list when a list goes. The two dialogs differ here, and both are
  // meant as they are: do not make them agree.
  enum class DefaultRule {
    StaysInPlace, // the list editor: behind a default list that goes, the list to be selected
    StepsBack,    // the selection: the list before the default one that goes, or none
  };
  // Removes the list at `index`. Returns the position to be selected: the same one, or the last, or
  // -1 when no list is left.
  int Remove(int index, DefaultRule rule);

  // Moves a list past its neighbour and returns its new position, or -1 when there is none. The
  // default list stays the default one, whichever of the two it is.
  int MoveUp(int index) { return Swap(index, index - 1); }
  int MoveDown(int index) { return Swap(index, index + 1); }

  // --- Steps (WorkingCopySteps.cpp)

  // From now on steps are kept.
  void KeepSteps() { keepsSteps_ = true; }
  // Take the latest step back, and do again what was taken back last. Both return the position that
  // was selected in front of the step, or behind it, -1 for none; no value when there is no such
  // step. A step that does not fit the lists does nothing, and all steps are forgotten.
  std::optional<int> Undo();
  std::optional<int> Redo();

private:
  // A change is done or it is not: what does the one does the other.
  struct Marked {}; // the default index alone
  struct Listed {
    int index;
    std::unique_ptr<CSymbolList> out; // the list, while it is not there
  };
  struct Swapped {
    int index;
    int neighbour;
  };
  struct Edited {
    int index;
    CString name; // the other one
    IdsChange ids;
  };
  using Change = std::variant<Marked, Listed, Swapped, Edited>;
  struct Step {
    Change change;
    int defaultBefore;
    int defaultAfter;
    int selectedBefore;
    int selectedAfter;
  };

  // A list of the manager's as it was last known.
  struct Known {
    CString id;
    CString name;
    CString symbols;
  };
  class Changes;

  int Swap(int index, int neighbour);
  bool Has(int index) const { return index >= 0 && index < Count(); }
  void Insert(int index, std::unique_ptr<CSymbolList> list);
  std::unique_ptr<CSymbolList> Take(int index);

  void Keep(Change change, int defaultBefore, int selectedBefore, int selectedAfter);
  static Edited EditOf(int index, CSymbolList& before, CSymbolList& after);
  std::optional<int> Turn(Step& step, int defaultIndex, int selected);
  bool Apply(Marked& change);
  bool Apply(Listed& change);
  bool Apply(Swapped& change);
  bool Apply(Edited& change);

  static Known Of(CSymbolList& list);
  static bool IsAs(CSymbolList& list, const Known& known);
  bool AreKnown(const Lists& lists) const;
  bool IsUntouched() const;
  void TakeInDefault(const WorkingCopy& now);
  CString DefaultId() const;

  Lists lists_;
  int defaultIndex_ = -1;
  int kind_ = 0; // 0: of no manager
  std::vector<Known> known_;
  int knownDefault_ = -1;
  CString knownDefaultId_;
  int kept_ = 0; // new lists that were taken in and are not reported
  bool keepsSteps_ = false;
  History<Step> history_;
};

} // namespace tq
