#include "tests/support/SmallMarket.h"

namespace {

enum : int { kTw = 1, kTe = 2, kTf = 3, kNyse = 10, kNasd = 11, kAmex = 12 };

standin::Instrument Make(int exchId, const char* code, const char* nameTw, const char* nameCn,
                         const char* kind, int lot, const char* price) {
  standin::Instrument instrument;
  instrument.exchId = exchId;
  instrument.code = code;
  instrument.nameTw = nameTw;
  instrument.nameCn = nameCn;
  instrument.kind = kind;
  instrument.lot = lot;
  instrument.price = price;
  return instrument;
}

std::vector<standin::Instrument> Stocks() {
  return {
      Make(kTw, "2330", "台積電", "台积电", "stock", 1000, "1085"),
      Make(kTw, "2317", "鴻海", "鸿海", "stock", 1000, "212.5"),
      Make(kTw, "2454", "聯發科", "联发科", "stock", 1000, "1390"),
      Make(kTw, "1101", "台泥", "台泥", "stock", 1000, "24.85"),
      Make(kTw, "1436", "許功蓋", "许功盖", "stock", 1000, "66"),
      Make(kTw, "2881", "富邦金", "富邦金", "stock", 1000, "91.2"),
      Make(kTw, "0050", "元大台灣50", "元大台湾50", "etf", 1000, "61.35"),
      Make(kTw, "7777", "雙上市", "双上市", "stock", 1000, "10"),
      Make(kTe, "6488", "環球晶", "环球晶", "stock", 1000, "368"),
      Make(kTe, "5483", "中美晶", "中美晶", "stock", 1000, "112"),
      Make(kTe, "8069", "元太", "元太", "stock", 1000, ""),
      Make(kTe, "7777", "雙上櫃", "双上柜", "stock", 2000, "10"),
  };
}

std::vector<standin::Instrument> ContractsAndForeign() {
  return {
      Make(kTf, "TXFL6", "台指期 12", "台指期 12", "future", 1, "27650"),
      Make(kTf, "TXFA7", "台指期 01", "台指期 01", "future", 1, "27700"),
      Make(kTf, "MXFL6", "小台指 12", "小台指 12", "future", 1, "27655"),
      Make(kTf, "TXO21000L6", "台選 12 21000 C", "台选 12 21000 C", "option", 1, "6650"),
      Make(kTf, "TXO21000X6", "台選 12 21000 P", "台选 12 21000 P", "option", 1, "0.4"),
      Make(kNyse, "BRK.B", "波克夏B", "伯克希尔B", "stock", 1, "505.1"),
      Make(kNyse, "DIS", "迪士尼", "迪士尼", "stock", 1, "105.3"),
      Make(kNasd, "AAPL", "蘋果", "苹果", "stock", 1, "271.9"),
      Make(kAmex, "SPY", "標普ETF", "标普ETF", "etf", 1, "683.2"),
  };
}

} // namespace

standin::Market SmallMarket() {
  standin::Market market;
  market.exchanges = {
      {kTw, "TW", "上市", "上市"},
      {kTe, "TE", "上櫃", "上柜"},
      {kTf, "TF", "期貨選擇權", "期货期权"},
      {kNyse, "NYSE", "紐約", "纽约"},
      {kNasd, "NASD", "那斯達克", "纳斯达克"},
      {kAmex, "AMEX", "美國", "美国"},
  };
  market.instruments = Stocks();
  for (const standin::Instrument& instrument : ContractsAndForeign())
    market.instruments.push_back(instrument);
  market.entitled = "1,2,3";
  market.defaults = "1,2";
  return market;
}
