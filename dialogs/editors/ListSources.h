// What the selection of a list offers: where symbols come from, what is in each source, and how
// the terminal is told of a choice.
#pragma once

#include <vector>

#include "platform/framework/CString.h"
#include "platform/services/VLRecords.h"

class CTQSymbolListMgr;

namespace tq {

// Public, and persisted by terminals: do not change.
enum class SourceCode : int { AllSymbols = 0, UserLists = 1, Group = 2, Holdings = 3, Cloud = 4 };

// A choice as the terminal has it: what kind it is, and its identifier or names.
struct ListChoice {
  int kind = 0;
  CString text;
};

struct ListSource {
  SourceCode code;
  CString name;      // what the box of sources shows
  GroupInfo group{}; // where it is one
};

struct SourceItem {
  CString name; // what the box of lists shows
  CString id;   // of a list
};

// All symbols, the user's lists, holdings, the cloud lists, and the service's groups of types 1,
// 101 and 201; those of type 3 only with `holdings`.
std::vector<ListSource> ListSources(CTQSymbolListMgr& manager, bool holdings);

// What is in a source, but for the lists of the user and of the cloud, which the dialog edits.
std::vector<SourceItem> ItemsOf(CTQSymbolListMgr& manager, const ListSource& source);

// The choice of an item; null where the source has none.
ListChoice ChoiceOf(const ListSource& source, const SourceItem* item);
// Whether that item of the source is what the terminal had chosen before.
bool IsChoice(const ListChoice& before, const ListSource& source, const SourceItem& item);

} // namespace tq
