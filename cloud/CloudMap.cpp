#include "cloud/CloudMap.h"

#include <string>

#include "idlist/StorableText.h"
#include "platform/Text.h"
#include "symbollist/SymbolList.h"

namespace tq {

const CloudList& CloudMap::Set(const CString& id, const CString& name, const CString& symbols) {
  CloudList& list = lists_[id];
  CopyCut(list.info.ID, StorableText(id));
  CopyCut(list.info.Name, StorableText(name));
  list.symbols = StorableText(symbols);
  return list;
}

const CloudList* CloudMap::Find(const char* id) const {
  const auto* entry = lists_.PLookup(id);
  return entry == nullptr ? nullptr : &entry->value;
}

CString CloudMap::Text() const {
  std::string text = "<Cloud>";
  CString id;
  CloudList list;
  for (POSITION at = lists_.GetStartPosition(); at != nullptr;) {
    lists_.GetNextAssoc(at, id, list);
    AppendListElement(list.info, list.symbols, text);
  }
  text += "</Cloud>";
  return ToCString(text);
}

} // namespace tq
