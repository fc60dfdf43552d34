// The lines of indicators.tsv.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "terminal/StandIn.h"
#include "terminal/control/TableFile.h"

namespace standin {

class IndicatorRows {
public:
  static constexpr std::string_view kColumns =
      "type\tregion_tw\tregion_cn\tcategory_tw\tcategory_cn\tcode\tname_tw\tname_cn\tmarket";

  IndicatorRows(TableFile& file, std::vector<Indicator>& indicators)
      : file_(file), indicators_(indicators) {}

  // Adds the row of a line. Refuses a bad line and returns false.
  bool Add(const TableFile::Row& row);

private:
  bool CheckTexts(const TableFile::Row& row);

  TableFile& file_;
  std::vector<Indicator>& indicators_;
  std::set<std::string> seen_; // type and folded code
};

} // namespace standin
