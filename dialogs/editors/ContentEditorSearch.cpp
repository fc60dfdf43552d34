// The content editor's search: markets and groups, what they hold, and adding it to the list.
#include <utility>

#include "dialogs/DialogMessages.h"
#include "dialogs/editors/ContentEdit.h"
#include "dialogs/search/TypedSymbol.h"
#include "idlist/RecordIndex.h"
#include "platform/SymbolSearch.h"
#include "platform/Text.h"
#include "platform/framework/window/CListCtrl.h"
#include "platform/framework/window/CWaitCursor.h"

namespace tq {

void ContentEditor::ChooseMarket() {
  FillBox(CComboBox(*this, kGroup), markets_.GroupNames(CComboBox(*this, kMarket).GetCurSel()),
          MarketChoice::kAll);
  ShowMarket();
}

void ContentEditor::ShowMarket() {
  const CWaitCursor reading;
  results_.Show(markets_.Symbols(CComboBox(*this, kMarket).GetCurSel(),
                                 CComboBox(*this, kGroup).GetCurSel()));
  UpdateButtons();
}

// The symbols that were picked, in front of the caret row. They are not picked any more then: what
// is typed next is meant next.
void ContentEditor::AddPicked() {
  CListCtrl results(*this, kResults);
  std::vector<SymbolInfo> picked;
  for (int row = results.GetNextSelected(-1); row >= 0; row = results.GetNextSelected(row)) {
    if (results_.Rows().Has(row))
      picked.push_back(results_.Rows().At(row));
  }
  results.SetCurSel(-1);
  const int row = CListBox(*this, kRows).GetCaretIndex();
  const int place = row < 0 ? contents_.RowCount() : row;
  const auto refused = [this](const SymbolInfo& symbol) {
    return contents_.Holds(IdOf(symbol)) || !ListContents::CanHold(IdOf(symbol));
  };
  if (picked.size() == 1 && refused(picked.front()))
    AddOne(picked.front());
  else
    AddSymbols(place, picked);
}

void ContentEditor::AddTyped() {
  const CString text = CCharEdit(*this, kCode, 0).GetInput();
  if (text.IsEmpty()) {
    Refuse(kCode, kMessageNothingChosen);
    return;
  }
  CString id;
  switch (FindTypedSymbol(sources_, text, id)) {
  case TypedMatch::None:
    Refuse(kCode, kMessageNoMatch);
    return;
  case TypedMatch::Several:
    Refuse(kCode, kMessageSeveralMatches);
    return FindSimilarTo(text);
  case TypedMatch::One:
    break;
  }
  SymbolInfo symbol = {};
  if (VLGetSymbolInfo(id, &symbol) == 0)
    Refuse(kCode, kMessageNoRecord);
  else
    AddOne(symbol);
}

void ContentEditor::AddOne(const SymbolInfo& symbol) {
  CEdit field(*this, kCode);
  if (!ListContents::CanHold(IdOf(symbol))) {
    Refuse(kCode, kMessageUnloadableId);
    return;
  }
  if (contents_.Holds(IdOf(symbol))) {
    const CString id = ToCString(IdOf(symbol));
    Refuse(kCode, kMessageInList);
    const std::vector<int> rows = contents_.RowsOf({&id, 1});
    CListBox(*this, kRows).SetCurSel(rows.empty() ? -1 : rows.front());
    UpdateButtons();
  } else {
    AddSymbols(InsertPlace(), {&symbol, 1});
  }
  field.SetText("");
}

// Those that the list has already are passed over.
void ContentEditor::AddAll() {
  const CWaitCursor reading;
  const SymbolRows symbols =
      markets_.Symbols(CComboBox(*this, kMarket).GetCurSel(), CComboBox(*this, kGroup).GetCurSel());
  AddSymbols(InsertPlace(), symbols.All());
}

void ContentEditor::AddSymbols(int row, std::span<const SymbolInfo> symbols) {
  const Edit edit(*this);
  ShowInserted(row, contents_.Insert(row, symbols));
}

void ContentEditor::FindSimilar() {
  FindSimilarTo(CCharEdit(*this, kCode, 0).GetInput());
}

void ContentEditor::FindSimilarTo(const CString& text) {
  results_.Show({});
  if (text.IsEmpty()) {
    if (AskUser(kMessageNothingTyped))
      ShowMarket();
    return;
  }
  auto found = FindOnAllExchanges(text, sources_.Manager().GetbCN());
  const std::span<const SymbolInfo> records = found.Records();
  if (records.size() == 1)
    AddOne(records.front());
  else if (!records.empty())
    results_.Show(SymbolRows(std::move(found)));
  else if (AskUser(kMessageNothingSimilar))
    ShowMarket();
}

} // namespace tq
