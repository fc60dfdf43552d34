// How a table takes symbols over from the service.
#include "platform/services/tqStock.h"
#include "symboltable/ServiceArray.h"
#include "symboltable/SymbolTable.h"

int CSymbolTable::Load() {
  constexpr int allSections = -1;
  Clear();
  tq::ServiceArray<BaseAttr> symbols;
  if (!VLGetBaseAttrs2(exchId_, allSections, symbols.List(), symbols.Count(), 0, 1))
    return 0;
  const std::span<const BaseAttr> records = symbols.Records();
  arena_.Reset(records.size());
  index_.Reset(records.size());
  tq::ItemTextReader reader;
  for (const BaseAttr& record : records) {
    CStaticKey key;
    if (key.Setup(&record))
      Insert(key, reader);
  }
  return 1;
}

int CSymbolTable::Add(const CString& symbols) {
  tq::ServiceArray<BaseAttr> added;
  if (!VLGetBaseAttrs(symbols, added.List(), added.Count(), 1))
    return 0;
  tq::ItemTextReader reader;
  for (const BaseAttr& record : added.Records()) {
    CStaticKey key;
    if (key.Setup(&record))
      Insert(key, reader);
  }
  return 1;
}

int CSymbolTable::Update(const CString& symbols) {
  tq::ServiceArray<BaseAttr> updated;
  if (!VLGetBaseAttrs(symbols, updated.List(), updated.Count(), 1))
    return 0;
  tq::ItemTextReader reader;
  for (const BaseAttr& record : updated.Records()) {
    CStaticKey key;
    CString id;
    if (record.code[0] == '\0' || record.usable == 0 || !key.Setup(&record) || !ReadId(key, id))
      continue;
    if (CSymbolItem* const item = FindItem(tq::MakeKey(KeyOf(tq::ViewOf(id)))))
      item->UpdateFrom(key, reader);
  }
  return 1;
}
