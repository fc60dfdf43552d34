#include "symboltable/MovedSymbols.h"

#include <string>
#include <string_view>

#include "platform/Text.h"
#include "symbolid/UpperId.h"
#include "symboltable/ExchangeTables.h"
#include "symboltable/SymbolTableMgr.h"

namespace tq {

class SymbolMover {
public:
  SymbolMover(const CSymbolTableMgr& tables, const CString& from, const CString& to)
      : from_(TableOf(tables, from)), to_(TableOf(tables, to)), oldSuffix_(ViewOf(from)) {}

  // Whether the tables can tell that a symbol moved.
  bool Knows() const { return from_ != nullptr && from_->IsWhole() && to_ != nullptr; }

  // The position in `token` of the suffix to replace; npos when the token stays as it is.
  std::size_t SuffixToMove(std::string_view token) {
    const std::size_t dot = token.rfind('.');
    if (dot == std::string_view::npos || dot == 0 || token.find(':', 1) != std::string_view::npos ||
        !EqualsNoCase(token.substr(dot + 1), oldSuffix_))
      return std::string_view::npos;
    symbol_.SetString(token.data(), static_cast<int>(dot));
    UpperBuffer buffer;
    const std::string_view symbol = UpperCased(symbol_, buffer).text;
    if (IsListed(*from_, symbol) || !IsListed(*to_, symbol))
      return std::string_view::npos;
    return dot + 1;
  }

private:
  // By the upper-cased name, as look-ups find a table.
  static const CSymbolTable* TableOf(const CSymbolTableMgr& tables, CString exchName) {
    exchName.MakeUpper();
    const int slot = tables.slots_->FindName(ViewOf(exchName));
    return slot == ExchangeTables::kNone ? nullptr : tables.slots_->At(slot);
  }
  static bool IsListed(const CSymbolTable& table, std::string_view symbol) {
    return table.Find(MakeKey(symbol)) != CSymbolTable::kNoSymbol;
  }

  const CSymbolTable* from_;
  const CSymbolTable* to_;
  std::string_view oldSuffix_;
  CString symbol_; // its memory is reused for each token
};

int MoveSymbols(CSymbolTableMgr& tables, CString& ids, const CString& oldExchange,
                const CString& newExchange) {
  if (oldExchange.IsEmpty() || newExchange.IsEmpty())
    return 0;
  SymbolMover mover(tables, oldExchange, newExchange);
  if (!mover.Knows())
    return 0;
  const std::string_view text = ViewOf(ids);
  std::string result;
  std::size_t copied = 0; // bytes of `text` that are in `result`
  int moved = 0;
  ForEachPiece(text, [&](int, std::string_view piece) {
    const std::string_view token = Trimmed(piece);
    const std::size_t suffix = mover.SuffixToMove(token);
    if (suffix == std::string_view::npos)
      return;
    const auto at = static_cast<std::size_t>(token.data() - text.data());
    result.append(text, copied, at + suffix - copied).append(ViewOf(newExchange));
    copied = at + token.size();
    ++moved;
  });
  if (moved == 0)
    return 0;
  result.append(text, copied);
  ids.SetString(result.data(), static_cast<int>(result.size()));
  return moved;
}

} // namespace tq
