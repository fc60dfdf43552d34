#include "terminal/desk/QuotePage.h"

#include <cstdlib>

#include "terminal/desk/Resources.h"

namespace desk {
namespace {

constexpr char kNoPrice[] = "--"; // as the tables say it

// A heading has a ":" behind its first character, usually at its end. No symbol has.
bool IsHeading(const CString& entry) {
  return entry.Find(':') > 0;
}

CString HeadingText(const CString& entry) {
  CString text = entry;
  text.TrimRight(':');
  return Text(Word::HeadingMark) + text;
}

CString GroupSymbols(CTQSymbolListMgr& manager, const Place& place) {
  const CString& id = place.list.IsEmpty() ? place.source.group : place.list;
  void* group = nullptr; // good until the type is loaded anew: so it is asked for each time
  CString symbols;
  if (manager.GetGroupHandle(place.source.groupType, id, &group, 0) != 0)
    manager.GetGroupListIDs(group, symbols); // the first time this asks the service
  return symbols;
}

CString EntriesOf(CTQSymbolListMgr& manager, const Place& place) {
  if (place.source.from == From::Group)
    return GroupSymbols(manager, place);
  CString rows; // what the service knows, and headings; GetSymbolListIDs would have all ids
  manager.GetSymoblIDList(place.list, rows, KindOf(place.source.from));
  return rows;
}

std::vector<CString> Split(const CString& joined) {
  std::vector<CString> parts;
  int at = 0;
  for (CString part = joined.Tokenize(",", at); at >= 0; part = joined.Tokenize(",", at))
    parts.push_back(part);
  return parts;
}

} // namespace

void QuotePage::Show(const Place& place) {
  all_.reset();
  allCount_ = 0;
  entries_.clear();
  if (place.source.from == From::AllSymbols)
    ShowAllSymbols();
  else
    entries_ = Split(EntriesOf(manager_, place));
}

void QuotePage::ShowAllSymbols() {
  if (manager_.CheckAllSymbolByExch() != 0) // there is none yet
    manager_.SortAllSymbolByExch();
  all_ = manager_.ShareAllSymbolInfos(&allCount_);
}

int QuotePage::RowCount() const {
  return all_ != nullptr ? allCount_ : static_cast<int>(entries_.size());
}

CString QuotePage::EntryAt(int row) const {
  if (row < 0 || row >= RowCount())
    return CString();
  return all_ != nullptr ? CString(all_[row].id) : entries_[static_cast<size_t>(row)];
}

CString QuotePage::SymbolAt(int row) const {
  const CString entry = EntryAt(row);
  return IsHeading(entry) ? CString() : entry;
}

int QuotePage::RowOf(const CString& symbol) const {
  for (int row = 0; row < RowCount(); ++row) {
    if (EntryAt(row).CompareNoCase(symbol) == 0)
      return row;
  }
  return -1;
}

CString QuotePage::Cell(int row, int column) const {
  const CString entry = EntryAt(row);
  if (!IsHeading(entry))
    return SymbolCell(entry, column);
  return column == Code ? HeadingText(entry) : CString();
}

CString QuotePage::SymbolCell(const CString& symbol, int column) const {
  switch (column) {
  case Code: // without the exchange, for which there is a column
    return manager_.GetSymbolTableMgr()->GetSymbolAndExchID(symbol).first;
  case Name:
    return Field(FieldSymbolName, symbol);
  case Exchange:
    return Field(FieldExchangeTitle, symbol);
  default:
    return PriceOf(symbol);
  }
}

// Empty for what the tables do not know.
CString QuotePage::Field(int field, const CString& symbol) const {
  CString value;
  manager_.GetSymbolTableMgr()->LookUpSymbolGetString(field, symbol, CString(), value);
  return value;
}

// With the decimal places of the symbol, whatever the service leaves out. An exchange that the user
// is not entitled to shows its symbols, and no prices.
CString QuotePage::PriceOf(const CString& symbol) const {
  CSymbolTableMgr& tables = *manager_.GetSymbolTableMgr();
  if (tables.IsAuthorizedExch(tables.GetSymbolAndExchID(symbol).second) == 0)
    return kNoPrice;
  CString price = Field(FieldReferencePrice, symbol);
  int decimals = 0;
  if (price != kNoPrice &&
      tables.LookUpSymbolGetInt(FieldDecimals, symbol, CString(), decimals) != 0)
    price.Format("%.*f", decimals, std::atof(price));
  return price;
}

} // namespace desk
