// Service records for tests that give a table what no service should: odd ids, odd names.
#pragma once

#include <cstring>
#include <string_view>

#include "platform/Text.h"
#include "platform/services/tqStock.h"
#include "symboltable/SymbolTable.h"
#include "terminal/BaseAttrLayout.h"

struct TestRecord {
  BaseAttr bytes = {};
  TestRecord(std::string_view code, std::string_view exchName, std::string_view name = "",
             int lot = 1000) {
    standin::BaseAttrHead head = {};
    head.exchId = 3;
    head.usable = 1;
    head.lot = lot;
    head.mark = ' ';
    code.copy(head.code, sizeof head.code - 1);
    exchName.copy(head.exchName, sizeof head.exchName - 1);
    name.copy(head.name, sizeof head.name - 1);
    std::memcpy(&bytes, &head, sizeof head);
  }
};

inline void InsertRecord(CSymbolTable& table, const TestRecord& record) {
  CStaticKey key;
  tq::ItemTextReader reader;
  if (key.Setup(&record.bytes))
    table.Insert(key, reader);
}

inline int LotOf(const CSymbolItem* item) {
  int lot = 0;
  return item != nullptr && item->GetNumber(FieldTradeLot, lot) ? lot : -1;
}

inline CString IdOf(const CSymbolItem* item) {
  CString id;
  if (item != nullptr)
    item->GetText(FieldSymbolId, id);
  return id;
}
