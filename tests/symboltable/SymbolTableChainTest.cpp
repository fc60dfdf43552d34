// A table's answers compared with those of walking plain chains.
#include <list>
#include <random>
#include <string>
#include <vector>

#include "tests/support/StandInTest.h"
#include "tests/symboltable/Records.h"

namespace {

struct PlainSymbol {
  std::string key;
  int lot;
  std::string name;
};

bool EqualsIgnoringCase(std::string_view left, std::string_view right) {
  return tq::EqualNoCase(left.data(), left.size(), right.data(), right.size());
}

class PlainTable {
public:
  explicit PlainTable(int exchId) : mode(tq::HashModeOf(exchId)), chains(tq::kBucketCount) {}

  void Insert(const PlainSymbol& symbol) { ChainOf(symbol.key).push_back(symbol); }
  PlainSymbol* Find(std::string_view key) {
    for (PlainSymbol& symbol : ChainOf(key))
      if (symbol.key == key)
        return &symbol;
    return nullptr;
  }
  void Remove(std::string_view key) {
    std::list<PlainSymbol>& chain = ChainOf(key);
    for (auto at = chain.begin(); at != chain.end(); ++at)
      if (EqualsIgnoringCase(at->key, key)) {
        chain.erase(at);
        return;
      }
  }

  std::list<PlainSymbol>& ChainOf(std::string_view key) {
    return chains[static_cast<std::size_t>(tq::BucketOf(key, mode))];
  }
  tq::KeyHashMode mode;
  std::vector<std::list<PlainSymbol>> chains;
};

class ChainTest : public StandInTest, public testing::WithParamInterface<int> {
protected:
  // Few codes, so that duplicates and full chains are common. Some are longer than sixteen bytes;
  // with the exchange none exceeds the service's limit.
  std::string RandomCode() {
    std::string code = std::to_string(Below(40));
    if (Below(2) == 0)
      code += static_cast<char>("ABab"[Below(4)]);
    if (Below(8) == 0)
      code += "-LONG-THAN-16X";
    return code;
  }
  unsigned Below(unsigned limit) { return static_cast<unsigned>(random() % limit); }
  static std::string Upper(std::string text) {
    for (char& letter : text)
      letter = tq::ToUpperLetter(letter);
    return text;
  }

  void Insert() {
    const std::string code = RandomCode();
    const int lot = ++lots;
    const std::string name = "N" + std::to_string(Below(20));
    InsertRecord(table, TestRecord(code, "X", name, lot));
    plain.Insert({Upper(code), lot, name});
  }
  void Remove() {
    const std::string code = RandomCode();
    table.Remove(Below(2) == 0 ? code : code + ".x");
    plain.Remove(code);
  }
  void Update() {
    standin::Market market;
    market.exchanges = {{GetParam(), "X", "X", "X"}};
    standin::Instrument instrument;
    instrument.exchId = GetParam();
    instrument.code = RandomCode();
    instrument.lot = ++lots;
    instrument.nameTw = instrument.nameCn = "U" + std::to_string(Below(20));
    market.instruments = {instrument};
    standin::SetMarket(market);
    standin::ClearCalls();
    ASSERT_EQ(table.Update((instrument.code + ".X").c_str()), 1);
    if (PlainSymbol* symbol = plain.Find(Upper(instrument.code))) {
      symbol->lot = instrument.lot;
      symbol->name = instrument.nameTw;
    }
  }
  void CompareOne() {
    const std::string code = RandomCode();
    const PlainSymbol* symbol = plain.Find(code);
    const CSymbolItem* item = table.FindId(Below(2) == 0 ? code : code + ".X");
    ASSERT_EQ(item != nullptr, symbol != nullptr) << code;
    ASSERT_EQ(LotOf(item), symbol != nullptr ? symbol->lot : -1) << code;
  }
  void CompareName() {
    const std::string name = (Below(2) == 0 ? "N" : "U") + std::to_string(Below(20));
    const CSymbolItem* item = table.FindName(name.c_str());
    for (const std::list<PlainSymbol>& chain : plain.chains)
      for (const PlainSymbol& symbol : chain)
        if (symbol.name == name) {
          ASSERT_EQ(LotOf(item), symbol.lot);
          return;
        }
    ASSERT_EQ(item, nullptr);
  }
  void CompareAll() {
    for (int bucket = 0; bucket < tq::kBucketCount; ++bucket) {
      const CSymbolItem* item = table.Head(bucket);
      for (const PlainSymbol& symbol : plain.chains[static_cast<std::size_t>(bucket)]) {
        ASSERT_EQ(LotOf(item), symbol.lot);
        ASSERT_EQ(item->Key(), symbol.key);
        item = item->Next();
      }
      ASSERT_EQ(item, nullptr);
    }
  }

  std::mt19937 random{20261121};
  int lots = 0;
  CSymbolTable table{"X", GetParam()};
  PlainTable plain{GetParam()};
};

TEST_P(ChainTest, AnswersAreThoseOfWalkingTheChains) {
  for (int step = 0; step < 60000 && !HasFatalFailure(); ++step) {
    switch (Below(20)) {
    case 0:
      Update();
      break;
    case 1:
      CompareName();
      break;
    case 2:
    case 3:
    case 4:
    case 5:
      Insert();
      break;
    case 6:
    case 7:
    case 8:
    case 9:
    case 10:
      Remove();
      break;
    default:
      CompareOne();
    }
    if (step % 2000 == 0)
      CompareAll();
  }
  CompareAll();
}

INSTANTIATE_TEST_SUITE_P(NumericAndCharacterSum, ChainTest, testing::Values(1, 3));

} // namespace
