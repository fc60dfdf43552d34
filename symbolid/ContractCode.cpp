#include "symbolid/ContractCode.h"

#include <charconv>
#include <cmath>
#include <optional>

#include "platform/System.h"
#include "platform/Text.h"

namespace tq {
namespace {

constexpr char kFirstCall = 'A';
constexpr char kFirstPut = 'M';
constexpr char kAfterLastPut = 'Y';
constexpr int kYearsOfDigit = 10;

// The whole text as a number; a terminal's own prices have neither sign nor exponent, but a service
// may write blanks around them.
std::optional<double> ReadPrice(std::string_view text) {
  text = Trimmed(text);
  if (text.empty())
    return std::nullopt;
  double price = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, price, std::chars_format::fixed);
  if (error != std::errc() || stop != end || !std::isfinite(price))
    return std::nullopt;
  return price;
}

// 0 to 11; the letter is one of a call or a put.
int MonthIndex(char monthLetter) {
  return monthLetter - (CallPutOf(monthLetter) == 'C' ? kFirstCall : kFirstPut);
}

} // namespace

char CallPutOf(char monthLetter) {
  if (monthLetter >= kFirstCall && monthLetter < kFirstPut)
    return 'C';
  return monthLetter >= kFirstPut && monthLetter < kAfterLastPut ? 'P' : ' ';
}

int OptionMonth(char monthLetter) {
  return CallPutOf(monthLetter) == ' ' ? 0 : MonthIndex(monthLetter) + 1;
}

int FutureMonth(char monthLetter) {
  return monthLetter >= 'A' && monthLetter <= 'Z' ? monthLetter - '@' : 0;
}

int ExpiryYear(char yearDigit) {
  const int year = CurrentLocalYear();
  return year % kYearsOfDigit == yearDigit - '0' ? year : year + 1;
}

std::string_view WithoutLeadingZeros(std::string_view strike) {
  while (strike.size() > 1 && strike.front() == '0')
    strike.remove_prefix(1);
  return strike;
}

bool IsPrice(std::string_view text) {
  return ReadPrice(text).has_value();
}

PriceOrder ComparePrices(std::string_view price, std::string_view other) {
  const std::optional<double> one = ReadPrice(price);
  const std::optional<double> two = ReadPrice(other);
  if (!one || !two)
    return PriceOrder::Unordered;
  if (*one == *two)
    return PriceOrder::Equal;
  return *one > *two ? PriceOrder::Higher : PriceOrder::Lower;
}

MonthOrder CompareMonths(std::string_view month, std::string_view other) {
  if (month == other)
    return MonthOrder::Same;
  const char year = ByteAt(month, 1);
  const char otherYear = ByteAt(other, 1);
  if (year == otherYear)
    return ByteAt(month, 0) < ByteAt(other, 0) ? MonthOrder::Earlier : MonthOrder::Later;
  // The one digit of the year wraps at the decade.
  if (year == '9' && otherYear == '0')
    return MonthOrder::Earlier;
  if (year == '0' && otherYear == '9')
    return MonthOrder::Later;
  if (otherYear - year == 1)
    return MonthOrder::Earlier;
  return year - otherYear == 1 ? MonthOrder::Later : MonthOrder::TooFarApart;
}

bool IsSameMonth(std::string_view month, std::string_view other) {
  if (month == other)
    return true;
  const char letter = ByteAt(month, 0);
  const char otherLetter = ByteAt(other, 0);
  if (ByteAt(month, 1) != ByteAt(other, 1) || CallPutOf(letter) == ' ' ||
      CallPutOf(otherLetter) == ' ')
    return false;
  return MonthIndex(letter) == MonthIndex(otherLetter);
}

} // namespace tq
