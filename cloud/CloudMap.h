// The lists that the user keeps on the broker's server, as the terminal pushed them in last: by id,
// in the order in which the ids came.
#pragma once

#include "platform/framework/CMap.h"
#include "platform/framework/CString.h"
#include "symbollist/TQSymbolListInfo.h"

namespace tq {

// Identifier and name as a list keeps them, cut to 36 and 64 bytes, and the symbols as they came.
// Nothing of it is resolved: the cloud groups and the lists of kind 8 that show these symbols do
// that.
struct CloudList {
  TQSymbolListInfo info = {};
  CString symbols;
};

class CloudMap {
public:
  // Puts a list under `id`, letter case regarded; a list that is there keeps its place in the
  // order.
  const CloudList& Set(const CString& id, const CString& name, const CString& symbols);
  // The list under `id`, good until the map changes; null when there is none.
  const CloudList* Find(const char* id) const;
  // <Cloud>, the element of each list, </Cloud>.
  CString Text() const;

private:
  CMap<CString, const char*, CloudList, const CloudList&> lists_;
};

} // namespace tq
