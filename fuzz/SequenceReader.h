// Reads bytes as choices of operations and arguments. Past the end of the input every byte is zero,
// the plainest choice.
#pragma once

#include <array>
#include <limits>
#include <string>
#include <string_view>

#include "tests/operations/Operations.h"

namespace fuzz {

class SequenceReader {
public:
  explicit SequenceReader(std::string_view bytes) : bytes_(bytes) {}

  bool IsDone() const { return at_ >= bytes_.size(); }
  unsigned Byte() { return IsDone() ? 0 : static_cast<unsigned char>(bytes_[at_++]); }

  template <typename T, std::size_t N> const T& One(const std::array<T, N>& choices) {
    return choices[Byte() % N];
  }
  std::string Raw(std::size_t length) {
    const std::string raw(bytes_.substr(std::min(at_, bytes_.size()), length));
    at_ += raw.size();
    return raw;
  }
  // One of the given texts, or text from the input, which may hold any bytes.
  template <std::size_t N> CString Text(const std::array<const char*, N>& choices) {
    const unsigned choice = Byte();
    if (choice < 0x80)
      return choices[choice % N];
    const std::string raw = Raw(choice & 0x3fu);
    return {raw.data(), static_cast<int>(raw.size())};
  }
  operations::Arguments Arguments();

private:
  std::string_view bytes_;
  std::size_t at_ = 0;
};

inline constexpr int kMost = std::numeric_limits<int>::max();
inline constexpr int kLeast = std::numeric_limits<int>::min();
inline constexpr std::array kNumbers = {0, 1, 2, 3, 5, -1, 100, 127, 128, 200, 201, kMost, kLeast};

inline std::string ManySymbols() {
  std::string many;
  for (int i = 0; i < 500; ++i)
    many += "2330.TW,";
  return many;
}

inline operations::Arguments SequenceReader::Arguments() {
  static const std::string kMany = ManySymbols();
  static const std::string kLong(200, 'x');
  static const std::array kIds = {
      "a",   "z",    "c",    "b",    "19801", "ALLMYSTOCKLISTS", "",     "A",          "ZUSYSLIST1",
      "new", "it's", "2F01", "\xA4", "&<",    "eOrvel 1",        "more", kLong.c_str()};
  static const std::array kNames = {"Named", "A",    "",   "Z(1)", "Z(100)",
                                    "it's",  "\xA4", "&<", "\x01", kLong.c_str()};
  static const std::array kSymbols = {"2330.TW,gone.TW,6488.TW,Head:,2317.TW",
                                      "2330.TW",
                                      "",
                                      ",",
                                      "  ,2330.tw , :,a:b:,",
                                      "2330.TW,2330.TW",
                                      "\xA4,\xA4\x40",
                                      "\x01,'&<",
                                      kMany.c_str()};
  static const std::array kTexts = {"2317.TW", "2330",  "6488.TW",    "",    ",",
                                    "Head",    "TXFL6", "1,10,2",     "CPI", "\xA4",
                                    "2330,",   " ",     kLong.c_str()};
  static const std::array kDirectories = {"memory", "memory", "other", ""};
  static const std::array kExchanges = {"TW", "TE", "TF", "", "tw", "NEW", "\xA4"};
  static const std::array kGroups = {"CHIP", "TSE",    "ETF",    "PICK",       "AI",
                                     "",     "NEWSUB", "x,CHIP", kLong.c_str()};
  static const std::array kSystems = {"T1", "T2", "", "none", kLong.c_str()};
  static const std::array kAccounts = {"9801", "F01", "77", "", kLong.c_str()};
  static constexpr std::array kKinds = {1, 6, 8, 0, 201, -1};
  static constexpr std::array kTypes = {1, 2, 7, 201, 101, 0, 8, 21, 50, 200, -1, kMost};
  static constexpr std::array kCounts = {1, 0, 2, 10, 11, 1000, -1, kLeast};
  operations::Arguments a;
  a.directory = Text(kDirectories);
  a.id = Text(kIds);
  a.name = Text(kNames);
  a.symbols = Text(kSymbols);
  a.text = Text(kTexts);
  a.exchange = Text(kExchanges);
  a.group = Text(kGroups);
  a.system = Text(kSystems);
  a.account = Text(kAccounts);
  const CString records = Text(kTexts);
  a.records.assign(records.GetString(), static_cast<std::size_t>(records.GetLength()));
  a.recordCount = One(kCounts);
  a.kind = One(kKinds);
  a.type = One(kTypes);
  a.number = One(kNumbers);
  a.other = One(kNumbers);
  a.flag = One(kNumbers);
  a.nulls = Byte() % 8 == 1;
  return a;
}

} // namespace fuzz
