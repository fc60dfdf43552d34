#include "tests/desk/DeskTest.h"

#include "platform/services/tqCommon.h"

namespace {

constexpr int kClose = 2;
constexpr size_t kTimeWidth = sizeof "12:34:56 | " - 1;

standin::Market DeskMarket() {
  standin::Market market = GroupMarket();
  market.tradingSystems = TradingMarket().tradingSystems;
  market.indicators = {
      {8, "美國", "美国", "利率", "利率", "FEDFUNDS", "聯邦基金利率", "联邦基金利率", ""},
      {10, "", "", "能源", "能源", "WTI", "西德州原油", "西德州原油", ""},
      {11, "美國", "美国", "指數", "指数", "ES", "小型標普", "小型标普", "CME"},
  };
  return market;
}

std::string ListFile() {
  return std::string("<?xml version='1.0' encoding='") +
         (IsTraditionChinese() != 0 ? "big5" : "gb2312") +
         "' ?><Result><SymbolList DefaultIdx='0'>"
         "<List ID='A' Name='one' Value='2330.TW,Tag:,gone.TW,2454.TW'/>"
         "<List ID='B' Name='two' Value='1101.TW'/></SymbolList></Result>";
}

} // namespace

std::string Said(const char* traditional, const char* simplified) {
  return IsTraditionChinese() != 0 ? traditional : simplified;
}

DeskTest::DeskTest() {
  standin::SetMarket(DeskMarket());
  directory.Write("SymbolList.xml", ListFile());
  EXPECT_TRUE(desk::StartLibrary(manager, directory.Path().c_str()));
}

DeskTest::~DeskTest() {
  TakeUnusedScripts(); // of dialogs that failed to open
}

void DeskTest::InDesk(const UserScript& script) {
  WhenDialogOpens([&](User& user) {
    actions::Settle();
    script(user);
    user.Click(kClose);
  });
  EXPECT_EQ(desk::RunDesk(manager), CDialog::Cancelled);
  EXPECT_EQ(TakeUnusedScripts(), 0U);
}

Texts DeskTest::NewLines(User& user) {
  const Texts rows = user.Rows(desk::DeskDialog::kLog);
  Texts lines;
  for (; seen_ < rows.size(); ++seen_)
    lines.push_back(rows[seen_].substr(kTimeWidth));
  return lines;
}

void DeskTest::Open(User& user, int button, UserScript inDialog) {
  WhenDialogOpens(std::move(inDialog));
  EXPECT_TRUE(user.Click(button));
}

std::string LineWith(const Texts& lines, const std::string& end) {
  for (const std::string& line : lines) {
    if (line.ends_with(end))
      return line;
  }
  return "";
}
