// A market directory with the two required files, for tests of LoadMarket.
#pragma once

#include <string>
#include <vector>

#include "tests/support/StandInTest.h"
#include "tests/support/TempDir.h"

inline const std::string kExchanges = "id\tname\ttitle_tw\ttitle_cn\n";
inline const std::string kSymbols =
    "exchange\tcode\tname_tw\tname_cn\tkind\tdecimals\tlot\tprice\texchange_code\n";
inline const std::string kGroups = "type\tparent\tid\tname_tw\tname_cn\tmembers\n";
inline const std::string kAccounts = "system\tname_tw\tname_cn\ttype\tid\tdisplay_id\tholdings\n";
inline const std::string kUser = "key\tvalue\n";
inline const std::string kOneExchange = "1\tTW\t上市\t上市\n";
inline const std::string kFifteen =
    "一二三四五六七八九十甲乙丙丁戊"; // 30 bytes in either code page

class MarketFiles : public testing::Test {
protected:
  MarketFiles() {
    directory.Write("exchanges.tsv", kExchanges + kOneExchange);
    directory.Write("symbols.tsv", kSymbols);
  }

  bool Load() { return standin::LoadMarket(directory.Path(), market, error); }

  TempDir directory;
  standin::Market market;
  std::string error;
};

struct BadFile {
  const char* what;
  const char* file;
  std::string text;
  const char* error; // its beginning
};

inline void ExpectRefusal(const BadFile& bad) {
  SCOPED_TRACE(bad.what);
  const TempDir here;
  here.Write("exchanges.tsv", kExchanges + kOneExchange);
  here.Write("symbols.tsv", kSymbols);
  here.Write(bad.file, bad.text);
  standin::Market market;
  std::string error;
  EXPECT_FALSE(standin::LoadMarket(here.Path(), market, error));
  EXPECT_EQ(error.substr(0, std::string(bad.error).size()), bad.error) << error;
}
