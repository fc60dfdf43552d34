#include "terminal/control/Indicators.h"

#include <map>

#include "terminal/StandIn.h"
#include "terminal/control/Encoding.h"
#include "terminal/control/Parts.h"
#include "terminal/control/Reports.h"

namespace standin {
namespace {

std::map<int, InfoRows>& TheTables() {
  static std::map<int, InfoRows> tables;
  return tables;
}

std::vector<std::string> ColumnsOf(const Indicator& indicator, bool traditional) {
  std::vector<std::string> columns = {traditional ? indicator.regionTw : indicator.regionCn,
                                      traditional ? indicator.categoryTw : indicator.categoryCn,
                                      indicator.code};
  if (indicator.nameTw.empty() && indicator.nameCn.empty())
    return columns;
  columns.push_back(traditional ? indicator.nameTw : indicator.nameCn);
  if (!indicator.market.empty())
    columns.push_back(indicator.market);
  return columns;
}

InfoRows RowsOfMarket(int type) {
  const bool traditional = InterfaceLanguage() == Language::Traditional;
  InfoRows rows;
  for (const Indicator& indicator : CurrentMarket().indicators) {
    if (indicator.type == type)
      rows.push_back(ColumnsOf(indicator, traditional));
  }
  return rows;
}

} // namespace

void SetIndicators(int type, std::vector<std::vector<std::string>> rows) {
  TheTables().insert_or_assign(type, std::move(rows));
}

InfoRows InfoRowsOf(int type) {
  const auto found = TheTables().find(type);
  InfoRows rows = found == TheTables().end() ? RowsOfMarket(type) : found->second;
  for (std::vector<std::string>& row : rows) {
    for (std::string& text : row)
      text = ToAnsi(text);
  }
  return rows;
}

void ResetIndicators() {
  TheTables().clear();
}

} // namespace standin
