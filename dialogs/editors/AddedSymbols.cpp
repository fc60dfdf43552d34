#include "dialogs/editors/AddedSymbols.h"

#include <string>
#include <string_view>
#include <unordered_set>

#include "dialogs/DialogMessages.h"
#include "idlist/IdString.h"
#include "idlist/RecordIndex.h"
#include "idlist/StorableText.h"
#include "platform/FieldText.h"
#include "platform/ServiceArray.h"
#include "platform/Text.h"
#include "symbollist/ListIndex.h"

namespace tq {
namespace {

// Of symbols, whose text lies elsewhere.
using IdSet = std::unordered_set<std::string_view, NoCaseHash, NoCaseEqual>;

IdSet SymbolsOf(std::string_view ids) {
  IdSet symbols;
  std::string_view piece;
  for (std::size_t at = 0; NextPiece(ids, at, piece);) {
    if (!IsHeading(piece))
      symbols.insert(Trimmed(piece));
  }
  return symbols;
}

void Append(std::string& text, std::string_view piece) {
  if (!text.empty())
    text += ',';
  text += piece;
}

std::string Joined(const std::vector<CString>& ids) {
  std::string text;
  for (const CString& id : ids)
    Append(text, ViewOf(id));
  return text;
}

} // namespace

AddedSymbols AddSymbols(const CString& ids, const CString& symbols) {
  const IdSet before = SymbolsOf(ViewOf(ids));
  IdSet fresh;
  AddedSymbols added;
  std::string text(ViewOf(ids));
  std::string_view piece;
  for (std::size_t at = 0; NextPiece(ViewOf(symbols), at, piece);) {
    const std::string_view symbol = Trimmed(piece);
    if (IsHeading(piece))
      Append(text, piece);
    else if (before.contains(symbol))
      added.held.push_back(ToCString(symbol));
    else if (fresh.insert(symbol).second)
      Append(text, symbol);
  }
  added.ids = text.size() == ViewOf(ids).size() ? ids : ToCString(text);
  return added;
}

bool AreLoadable(const CString& symbols) {
  return IsLoadable(ViewOf(symbols));
}

// One question for all names. An id that the service does not know has none.
void TellAddedTwice(const std::vector<CString>& held) {
  ServiceArray<SymbolInfo> found("VLGetSymbolInfos");
  const int done = VLGetSymbolInfos(Joined(held).c_str(), found.List(), found.Count());
  RecordIndex records(done != 0 ? found.Records() : std::span<const SymbolInfo>());
  std::string text;
  for (const CString& id : held) {
    const SymbolInfo* const record = records.Find(ViewOf(id));
    const std::string_view name = record == nullptr ? std::string_view() : FieldText(record->name);
    Append(text, std::string(ViewOf(id)).append("(").append(name).append(")"));
  }
  ShowMessageText(FormattedText(kMessageAddedTwice, ToCString(text)));
}

} // namespace tq
