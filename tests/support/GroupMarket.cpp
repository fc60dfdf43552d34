#include "tests/support/GroupMarket.h"

#include "tests/support/SmallMarket.h"

standin::Market GroupMarket() {
  standin::Market market = SmallMarket();
  market.groups = {
      {1, "", "TSE", "上市", "上市", {}},
      {1, "TSE", "CHIP", "半導體", "半导体", {"2330.TW", "2454.TW"}},
      {1, "TSE", "CEM", "水泥", "水泥", {"1101.TW"}},
      {1, "", "OTC", "上櫃", "上柜", {}},
      {1, "OTC", "WAFER", "矽晶圓", "硅晶圆", {"6488.TE", "5483.TE"}},
      {1, "", "ETF", "基金", "基金", {"0050.TW"}},
      {2, "", "CTW", "臺灣概念", "台湾概念", {}},
      {2, "CTW", "AI", "伺服器", "服务器", {"2330.TW", "2317.TW"}},
      {2, "CTW", "a2", "金控", "金控", {"2881.TW"}},
      {7, "", "TXO", "臺指選", "台指选", {}},
      {7, "TXO", "TXOC", "買權", "买权", {"TXO21000L6.TF"}},
      {7, "TXO", "TXOP", "賣權", "卖权", {"TXO21000X6.TF"}},
      {201, "", "VORNG01", "雲端", "云端", {}},
      {201, "VORNG01", "VORNG0101", "雲端1", "云端1", {}},
      {201, "VORNG01", "VORNG0102", "雲端2", "云端2", {}},
      {201, "VORNG01", "VORNG0103", "雲端3", "云端3", {}},
      {201, "", "PICK", "推薦", "推荐", {"2317.TW"}},
  };
  return market;
}
