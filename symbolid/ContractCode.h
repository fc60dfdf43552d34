// The exchange's compact contract codes, parsed by position. An option code has ten characters:
// three of the commodity, five digits of the strike, the month letter, the last digit of the year.
// A futures code is the commodity, the month letter and the digit of the year.
//
// Nothing is validated here: any code is accepted, and missing parts are empty or NUL.
#pragma once

#include <string_view>

namespace tq {

inline constexpr std::size_t kOptionCodeLength = 10;
inline constexpr std::size_t kCommodityLength = 3;
inline constexpr std::size_t kStrikeLength = 5;
inline constexpr std::size_t kMonthCodeLength = 2;
// A code without its month code, and a code without its commodity: forms in typed combinations.
inline constexpr std::size_t kCommodityStrikeLength = kCommodityLength + kStrikeLength;
inline constexpr std::size_t kStrikeMonthLength = kStrikeLength + kMonthCodeLength;
static_assert(kCommodityStrikeLength + kMonthCodeLength == kOptionCodeLength);

inline constexpr std::size_t kOptionMonthPosition = 8;
inline constexpr std::size_t kOptionYearPosition = 9;
inline constexpr std::size_t kFutureMonthPosition = 3;
inline constexpr std::size_t kFutureYearPosition = 4;

inline char ByteAt(std::string_view text, std::size_t position) {
  return position < text.size() ? text[position] : '\0';
}

inline bool IsDecimalDigit(char letter) {
  return letter >= '0' && letter <= '9';
}

// Commodity, strike and month code of an option code.
inline std::string_view CommodityOf(std::string_view code) {
  return code.substr(0, kCommodityLength);
}
inline bool HaveOneCommodity(std::string_view code1, std::string_view code2) {
  return CommodityOf(code1) == CommodityOf(code2);
}
inline std::string_view StrikeOf(std::string_view code) {
  return code.size() > kCommodityLength ? code.substr(kCommodityLength, kStrikeLength)
                                        : std::string_view();
}
inline std::string_view MonthCodeOf(std::string_view code) {
  return code.size() > kOptionMonthPosition ? code.substr(kOptionMonthPosition, kMonthCodeLength)
                                            : std::string_view();
}

// 'C' for a month letter of a call, 'P' for one of a put, a blank for any other.
char CallPutOf(char monthLetter);

// 1 to 12 from an option's month letter, 0 when it is none.
int OptionMonth(char monthLetter);
// 1 to 12 from a futures contract's month letter, its position in the alphabet; more for letters
// after "L", which no contract has; 0 when it is no letter.
int FutureMonth(char monthLetter);

// The year that the digit means, by the local calendar: the current year if it ends in the digit,
// else the next. No contract runs longer, so a past digit, or a character that is no digit, also
// means the next year.
int ExpiryYear(char yearDigit);

// A strike without leading zeros; of a strike of only zeros one is kept.
std::string_view WithoutLeadingZeros(std::string_view strike);

// Whether a text is a price: a plain decimal number, which blanks may surround.
bool IsPrice(std::string_view text);

// Compares two prices, which are decimal texts. Unordered when one is no number.
enum class PriceOrder { Unordered = -1, Equal = 0, Higher = 1, Lower = 2 };
PriceOrder ComparePrices(std::string_view price, std::string_view other);

// Compares two month codes of one kind (two calls, or two puts).
enum class MonthOrder { TooFarApart = -1, Same = 0, Earlier = 1, Later = 2 };
MonthOrder CompareMonths(std::string_view month, std::string_view other);

// Whether two month codes, each of a call or a put, mean the same month of the same year.
bool IsSameMonth(std::string_view month, std::string_view other);

} // namespace tq
