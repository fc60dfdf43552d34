#include "symboltable/MovedSymbols.h"

#include <string>
#include <string_view>

#include "platform/CodePage.h"
#include "platform/services/tqStock.h"
#include "symboltable/SymbolTableMgr.h"

namespace tq {
namespace {

class Mover {
public:
  Mover(CSymbolTableMgr& tables, const CString& from, const CString& to)
      : tables_(tables), from_(from), to_(to) {}

  // Whether `token` is to become `Moved()`. The strings of the questions keep their room from one token to
  // the next.
  bool Moves(std::string_view token) {
    const size_t dot = token.rfind('.');
    if (dot == std::string_view::npos || dot == 0 || token.find(':', 1) != std::string_view::npos)
      return false;
    const std::string_view suffix = token.substr(dot + 1);
    if (!EqualNoCase(suffix.data(), suffix.size(), from_, static_cast<size_t>(from_.GetLength())))
      return false;
    id_.SetString(token.data(), static_cast<int>(token.size()));
    if (IsListed())
      return false;
    id_.SetString(token.data(), static_cast<int>(dot + 1));
    id_ += to_;
    return IsListed();
  }

  const CString& Moved() const { return id_; }

private:
  bool IsListed() {
    return tables_.LookUpSymbolGetString(FieldSymbolName, id_, CString(), name_) != 0;
  }

  CSymbolTableMgr& tables_;
  const CString& from_;
  const CString& to_;
  CString id_;
  CString name_;
};

} // namespace

int MoveSymbols(CSymbolTableMgr& tables, CString& ids, const CString& oldExchange,
                const CString& newExchange) {
  if (oldExchange.IsEmpty() || newExchange.IsEmpty())
    return 0;
  Mover mover(tables, oldExchange, newExchange);
  const std::string_view text(ids.GetString(), static_cast<size_t>(ids.GetLength()));
  std::string result;
  size_t copied = 0; // what of the text stands in the result
  int moved = 0;
  for (size_t at = 0; at < text.size();) {
    const size_t end = std::min(text.find(',', at), text.size());
    if (mover.Moves(text.substr(at, end - at))) {
      result.append(text, copied, at - copied);
      result.append(mover.Moved().GetString(), static_cast<size_t>(mover.Moved().GetLength()));
      copied = end;
      ++moved;
    }
    at = end + 1;
  }
  if (moved == 0)
    return 0;
  result.append(text, copied);
  ids.SetString(result.data(), static_cast<int>(result.size()));
  return moved;
}

} // namespace tq
