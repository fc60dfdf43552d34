#include "soak/Catalog.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace soak {
namespace {

void Append(std::vector<Entry>& all, const operations::Table& table, Family family) {
  for (const operations::Operation& operation : table)
    all.push_back({operation, family});
}

std::vector<Entry> MakeCatalog() {
  std::vector<Entry> all;
  Append(all, operations::ListOperations(), Family::Lists);
  Append(all, operations::DiagnosisOperations(), Family::Lists);
  Append(all, operations::QueryOperations(), Family::Lists);
  Append(all, operations::OneListOperations(), Family::Lists);
  Append(all, operations::TextOperations(), Family::Lists);
  Append(all, operations::ExchangeOperations(), Family::Symbols);
  Append(all, operations::SymbolTableOperations(), Family::Symbols);
  Append(all, operations::GroupOperations(), Family::Groups);
  Append(all, operations::CloudOperations(), Family::Cloud);
  Append(all, operations::TradingOperations(), Family::Accounts);
  Append(all, operations::DialogOperations(), Family::Dialogs);
  if (all.size() != operations::All().size()) {
    std::fprintf(stderr, "tqSoak: a table of operations belongs to no family\n");
    std::abort();
  }
  return all;
}

const char* IdFor(Random& random, const Taste& taste, const Lists& lists) {
  static constexpr std::array kIds = {
      "a",    "b",          "c",    "z", "more",     "new", "19801",
      "2F01", "ZUSYSLIST1", "PICK", "",  "eOrvel 1", "A",   "ALLMYSTOCKLISTS"};
  static const std::string kLong(60, 'x');
  static const std::array kHostile = {"it's", "\xA4", "&<", "\x01", kLong.c_str()};
  if (!lists.lists.empty() && random.Draw(5) < 3)
    return random.One(lists.lists).id.c_str();
  return taste.hostile && random.OnceIn(4) ? random.One(kHostile) : random.One(kIds);
}

const char* NameFor(Random& random, const Taste& taste) {
  static constexpr std::array kNames = {"Named", "A", "B", "one", "Two", "Z(1)", "Z(100)", ""};
  static const std::string kLong(100, 'n');
  static const std::array kHostile = {"it's", "\xA4", "&<", "\x01x", kLong.c_str()};
  return taste.hostile && random.OnceIn(3) ? random.One(kHostile) : random.One(kNames);
}

const char* SymbolsFor(Random& random, const Taste& taste) {
  static constexpr std::array kSymbols = {"2330.TW,gone.TW,6488.TW,Head:,2317.TW",
                                          "2330.TW",
                                          "2317.TW,1101.TW",
                                          "5483.TE,none.TE,TXFL6.TF",
                                          "Tag:,2330.TW,unknown",
                                          ""};
  static constexpr std::array kHostile = {",", "  ,2330.tw , :,a:b:,", "\xA4,\xA4\x40", "\x01,'&<"};
  return taste.hostile && random.OnceIn(3) ? random.One(kHostile) : random.One(kSymbols);
}

const char* TextFor(Random& random) {
  static constexpr std::array kTexts = {"2317.TW", "2330", "6488.TW", "2454.TW", "Head", "TXFL6",
                                        "1101",    "CPI",  "1,2",     "",        ",",    "none.TW"};
  return random.One(kTexts);
}

int NumberFor(Random& random) {
  static constexpr std::array kOdd = {-1, 5, 8, 10, 100, 127, 200, 201, 1 << 20};
  return random.OnceIn(6) ? random.One(kOdd) : random.Draw(4);
}

} // namespace

const std::vector<Entry>& Catalog() {
  static const std::vector<Entry> kCatalog = MakeCatalog();
  return kCatalog;
}

const Entry& EntryOf(const char* signature) {
  for (const Entry& entry : Catalog())
    if (entry.operation.signature == std::string_view(signature))
      return entry;
  std::fprintf(stderr, "tqSoak: there is no operation %s\n", signature);
  std::abort();
}

operations::Arguments ArgumentsFor(Random& random, const Taste& taste, const Lists& lists) {
  static constexpr std::array kKinds = {1, 1, 1, 1, 6, 8, 201, 0};
  static constexpr std::array kTypes = {1, 2, 7, 201, 101, 0, 8, 21, 50, 200, -1};
  static constexpr std::array kGroups = {"CHIP", "TSE", "ETF",    "PICK",
                                         "AI",   "",    "NEWSUB", "x,CHIP"};
  static constexpr std::array kExchanges = {"TW", "TE", "TF", "", "NEW"};
  static constexpr std::array kSystems = {"T1", "T2", "", "none"};
  static constexpr std::array kAccounts = {"9801", "F01", "77", ""};
  static constexpr std::array kRecords = {1, 0, 2, 10, -1};
  operations::Arguments a;
  a.directory = random.OnceIn(25)
                    ? CString()
                    : CString((taste.directory + "/" + random.One(kDirectories)).c_str());
  a.id = IdFor(random, taste, lists);
  a.name = NameFor(random, taste);
  a.symbols = SymbolsFor(random, taste);
  a.text = TextFor(random);
  a.exchange = random.One(kExchanges);
  a.group = random.One(kGroups);
  a.system = random.One(kSystems);
  a.account = random.One(kAccounts);
  a.records = TextFor(random);
  a.recordCount = random.One(kRecords);
  a.kind = random.One(kKinds);
  a.type = random.One(kTypes);
  a.number = NumberFor(random);
  a.other = NumberFor(random);
  a.flag = random.Draw(2);
  a.nulls = random.OnceIn(16);
  return a;
}

} // namespace soak
