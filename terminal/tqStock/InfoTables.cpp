// tqStock: the info tables.
#include <memory>
#include <vector>

#include "platform/framework/CPtrArray.h"
#include "platform/framework/CStringArray.h"
#include "platform/services/tqStock.h"
#include "terminal/control/Indicators.h"
#include "terminal/control/Script.h"

using namespace standin;

namespace {

// The rows of the latest call. Each is a separate allocation that the next call frees, so that
// callers who keep one are found.
using Rows = std::vector<std::unique_ptr<CStringArray>>;

Rows& TheRows() {
  static Rows rows;
  return rows;
}

std::unique_ptr<CStringArray> MakeRow(const std::vector<std::string>& columns) {
  auto row = std::make_unique<CStringArray>();
  for (const std::string& text : columns)
    row->Add(CString(text.c_str()));
  return row;
}

} // namespace

int CStockKey::GetInfoArray(InfoType type, CPtrArray& rows) {
  rows.RemoveAll();
  TheRows().clear();
  if (!Begin("CStockKey::GetInfoArray", static_cast<int>(type)))
    return 0;
  for (const std::vector<std::string>& columns : InfoRowsOf(type)) {
    TheRows().push_back(MakeRow(columns));
    rows.Add(TheRows().back().get());
  }
  return 1;
}
