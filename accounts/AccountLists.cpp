// The lists of kind 6. They live beside the user's lists and are never saved with them.
#include "accounts/AccountLists.h"

#include <string>
#include <unordered_map>
#include <vector>

#include "idlist/IdString.h"
#include "idlist/ListKind.h"
#include "platform/LibraryString.h"
#include "platform/Notify.h"
#include "platform/ServiceArray.h"
#include "platform/diagnostics/Operation.h"
#include "symbollist/ListName.h"

namespace tq {
namespace {

int NoteOff() {
  return NoteProblem(TQProblemOff, "Init was told not to keep lists from trading accounts");
}

struct SystemList {
  CString id;
  CString name;
  CString symbols;
};

// Gives an empty list those of the symbols that the service knows, as one question: the service
// leaves unknown ids out and answers in order, so its records are the list. When it fails it knows
// none.
void AddKnownSymbols(CSymbolList& list, const CString& symbols) {
  CStringArray tokens;
  const SplitIds split = SplitIdString(symbols, tokens);
  const CString ids = split.plain ? symbols : LookupString(symbols);
  ServiceArray<SymbolInfo> found("VLGetSymbolInfos");
  if (!ids.IsEmpty() && VLGetSymbolInfos(ids, found.List(), found.Count()) != 0) {
    found.Check();
    const int count = *found.Count();
    list.Update2(found.Release(), count);
  }
}

} // namespace

void AccountLists::Start(const CString& path) {
  if (table_)
    table_->SetPath(path);
  else if (wanted_)
    table_.emplace(path);
}

void AccountLists::SetPath(const CString& path) {
  if (table_)
    table_->SetPath(path);
}

int AccountLists::Add(const CString& id, int kind, const CString& name, const CString& symbols,
                      bool allowEmpty) {
  if (Table() == nullptr)
    return NoteOff();
  if (name.IsEmpty())
    return NoteProblem(TQProblemName, "the name is empty");
  if (symbols.IsEmpty() && !allowEmpty)
    return NoteProblem(TQProblemSymbols, "there are no symbols");
  const OwnedLists& withNames = listsOfKind_(kind);
  const OwnedLists& withIds = listsOfKind_(KindOfIds(kind));
  const CString suffix = "-" + LibraryString(kStringUpdate);
  const auto taken = [&](const CString& wanted) { return withNames.HasName(wanted); };
  CString freeName;
  // The terminal may start without account lists while the service is asked.
  const auto allowed = [&] {
    if (Table() == nullptr || withIds.ProblemsOfNewId(id) != 0)
      return false;
    freeName = SuffixedName(name, suffix, taken);
    return !taken(freeName);
  };
  const int added = lists_.AddResolved(
      id, freeName, allowed, [&symbols](CSymbolList& list) { AddKnownSymbols(list, symbols); });
  return added != 0 ? added
                    : NoteProblem(TQProblemTaken, "no new list can bear '%s' and the name '%s'",
                                  id.GetString(), name.GetString());
}

int AccountLists::Update(const CString& id, int kind, const CString& name, const CString& symbols,
                         bool allowEmpty) {
  if (Table() == nullptr)
    return NoteOff();
  CSymbolList* const list = lists_.Find(id);
  if (list == nullptr)
    return Add(id, kind, name, symbols, allowEmpty);
  // The whole string, ids that the service does not know yet included: they get no row until it
  // does.
  list->Update1(symbols);
  Notify(kNotifyUserLists, TQReasonTradingLists);
  return 1;
}

int AccountLists::Delete(const CString& id) {
  if (Table() == nullptr)
    return NoteOff();
  CSymbolList* const list = lists_.Find(id);
  if (list == nullptr)
    return NoteProblem(TQProblemNoList, "there is no list '%s'", id.GetString());
  lists_.Delete(list);
  return 1;
}

// As Delete for each account of a trading system, in one pass: there may be thousands.
void AccountLists::DeleteListsOf(const CString& tsId) {
  const CTS* const system = FindSystem(tsId);
  if (system == nullptr || system->accounts.empty())
    return;
  // How many of each id, for ids need not differ.
  std::unordered_map<std::string, int, NoCaseHash, NoCaseEqual> wanted;
  for (const CAccount& account : system->accounts)
    ++wanted[account.ListId().GetString()];
  lists_.DeleteIf([&wanted](const CSymbolList& list) {
    const auto found = wanted.find(std::string_view(list.GetID()));
    return found != wanted.end() && found->second-- > 0;
  });
}

void AccountLists::Clear() {
  if (Table() != nullptr)
    lists_.Destroy();
}

void AccountLists::BuildOfSystems() {
  const TradingTable* const table = Table();
  if (table == nullptr)
    return;
  Clear();
  std::vector<SystemList> lists; // copies: the table may change while symbols are asked for
  for (const CTS& system : table->Systems())
    lists.push_back({system.Id(), system.Name(), system.MergedHoldings()});
  for (const SystemList& list : lists) {
    Delete(list.id);
    Add(list.id, kTradingLists, list.name, list.symbols, false);
  }
}

} // namespace tq
