#include "symbollist/TextFaults.h"

#include "idlist/IdString.h"
#include "idlist/StorableText.h"
#include "platform/Text.h"
#include "platform/services/VLRecords.h"
#include "symbollist/ListName.h"

namespace tq {
namespace {

// What keeps the list file from holding it, or a load from reading it back.
int FaultsInFile(const CString& text) {
  const int broken = IsStorable(text) ? 0 : TQTextBroken;
  return HoldsUnloadable(ViewOf(text)) ? broken | TQTextUnloadable : broken;
}

int FaultsOfPiece(std::string_view piece) {
  const std::string_view id = Trimmed(piece);
  if (id.empty())
    return TQTextGaps;
  return !IsHeading(id) && id.size() >= sizeof(SymbolInfo::id) ? TQTextTooLong : 0;
}

} // namespace

int FaultsOfName(const CString& name) {
  int faults = FaultsInFile(name);
  if (Trimmed(ViewOf(name)).empty())
    faults |= TQTextEmpty;
  if (name.GetLength() > kNameLimit)
    faults |= TQTextTooLong;
  return faults;
}

int FaultsOfSymbols(const CString& symbols) {
  if (Trimmed(ViewOf(symbols)).empty())
    return TQTextEmpty;
  int faults = FaultsInFile(symbols);
  ForEachPiece(ViewOf(symbols),
               [&faults](int, std::string_view piece) { faults |= FaultsOfPiece(piece); });
  return faults;
}

} // namespace tq
