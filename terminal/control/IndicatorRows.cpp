#include "terminal/control/IndicatorRows.h"

#include <limits>

#include "terminal/control/MarketText.h"

namespace standin {
namespace {

constexpr std::string_view kNone = "-";
constexpr std::size_t kLongestCode = 31;

// A text exists in both languages or in none.
bool IsPair(std::string_view traditional, std::string_view simplified) {
  return !traditional.empty() && !simplified.empty() &&
         (traditional == kNone) == (simplified == kNone);
}

} // namespace

bool IndicatorRows::Add(const TableFile::Row& row) {
  const std::optional<int> type = ParseNumber(row[0], 0, std::numeric_limits<int>::max());
  if (!type)
    return file_.Refuse("the type is no number from 0 up");
  if (!CheckTexts(row))
    return false;
  if (!seen_.insert(std::string(row[0]) + '\t' + FoldedId(row[5])).second)
    return file_.Refuse("the code stands twice in the table");
  indicators_.push_back({*type, OptionalText(row[1]), OptionalText(row[2]), OptionalText(row[3]),
                         OptionalText(row[4]), std::string(row[5]), OptionalText(row[6]),
                         OptionalText(row[7]), OptionalText(row[8])});
  return true;
}

bool IndicatorRows::CheckTexts(const TableFile::Row& row) {
  if (!IsPair(row[1], row[2]) || !IsPair(row[3], row[4]) || !IsPair(row[6], row[7]))
    return file_.Refuse("a text is missing in one language");
  if (!IsPlainId(row[5], kLongestCode) || row[5] == kNone)
    return file_.Refuse("the code is not 1 to 31 ASCII characters");
  if (!IsPlainId(row[8], kLongestCode))
    return file_.Refuse("the market is not 1 to 31 ASCII characters");
  if (row[6] == kNone && row[8] != kNone)
    return file_.Refuse("a market without a name");
  return true;
}

} // namespace standin
