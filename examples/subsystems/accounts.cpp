// Lists from trading accounts: what the user holds.
#include "Example.h"

int main(int argc, char** argv) {
  const std::string directory = Begin(argc, argv);
  CTQSymbolListMgr manager;
  constexpr int tradingLists = 1; // the last argument: they are wanted
  Expect(manager.Init(directory.c_str(), 0, 1, 0, nullptr, 0, tradingLists) != 0, "Init");

  // The proxy says that a login is complete.
  manager.UpdateTSLogin("VTS01");
  std::printf("After the login\n");
  PrintLists(manager, TQListKindTrading);

  // The user buys: the proxy answers with more holdings from now on, and the terminal says so.
  constexpr TqsAccType stocks = static_cast<TqsAccType>(1);
  Expect(standin::SetHoldings("VTS01", "9801234567", stocks, "2330.TW,2454.TW"), "bought");
  manager.UpDataTSAccHodling("VTS01", "9801234567", stocks);
  std::printf("After a purchase\n");
  PrintLists(manager, TQListKindTrading);

  CString held;
  Expect(manager.GetTSAccHodling("VTS01", "9801234567", held) != 0, "the account");
  Expect(held == "2330.TW,2454.TW", "its holdings");
}
