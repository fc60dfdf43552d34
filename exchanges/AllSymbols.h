// The buffer of all symbols: the records of every exchange, grouped by exchange.
#pragma once

#include <memory>

#include "platform/framework/CUIntArray.h"
#include "platform/services/VLProxy.h"

namespace tq {

class AllSymbols {
public:
  // Reads all exchanges from the service, those that are no default ones towards the end
  // (MoveDefaultsForward). When the service fails for the list of exchanges the buffer stays as it
  // is, and so does one that is there when it fails for an exchange. None when there are no
  // symbols, or no memory for them in one piece.
  void Build(const CUIntArray& defaultExchanges);
  void Clear();
  bool IsEmpty() const { return count_ == 0; }

  // The buffer itself, which stays as it is while somebody holds it; null, with a count of 0, when
  // there is none.
  std::shared_ptr<const SymbolInfo[]> Share(int* count) const;
  // A copy, which the caller gives back with Free. 0, outputs untouched, when there is no buffer,
  // no memory for a copy, or an output is null.
  int Copy(SymbolInfo** out, int* count) const;
  static void Free(SymbolInfo* infos);

private:
  std::shared_ptr<SymbolInfo[]> infos_;
  int count_ = 0;
};

} // namespace tq
