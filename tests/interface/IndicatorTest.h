// The searches for indicators, opened as a terminal does, on tables of a few rows.
#pragma once

#include <string>
#include <vector>

#include "manager/TQSymbolListMgr.h"
#include "platform/services/tqCommon.h"
#include "tests/support/StandInTest.h"
#include "tests/support/User.h"

class IndicatorTest : public StandInTest {
protected:
  static constexpr int kRegions = 761;
  static constexpr int kCategories = 762;
  static constexpr int kList = 781;
  static constexpr InfoType kCommodities = static_cast<InfoType>(10);

  using Lines = std::vector<std::string>;
  using Row = std::vector<std::string>;

  IndicatorTest() {
    Serve(InfoEconomicIndicators, {{"台灣", "物價", "TWCPI", "台灣物價"},
                                   {"美國", "物價", "USCPI", "美國物價"},
                                   {"台灣", "貿易", "TWEXP", "出口"},
                                   {"美國", "就業", "USNFP"}});
    Serve(kCommodities, {{"", "能源", "WTI", "原油"}, {"", "農產品", "CORN", "玉米"}});
    Serve(InfoInternationalFutures, {{"日本", "指數", "NK", "日經", "OSE"},
                                     {"美國", "指數", "ES", "標普", "CME"},
                                     {"美國", "能源", "CL", "輕原油"}});
  }
  ~IndicatorTest() override { EXPECT_EQ(TakeUnusedScripts(), 0u) << "a dialog did not open"; }

  // Text is UTF-8.
  static void Serve(InfoType type, std::vector<Row> rows) {
    standin::SetIndicators(type, std::move(rows));
  }
  // They open on the first region of their table.
  static void ShowAllRegions(User& user) { EXPECT_TRUE(user.Select(kRegions, 0)); }
  static CString Ansi(const std::string& utf8) { return standin::ToAnsi(utf8).c_str(); }
  static std::string Text(const char* traditional, const char* simplified) {
    return IsTraditionChinese() != 0 ? traditional : simplified;
  }

  int SearchEconomic(UserScript script, const std::string& input = "") {
    WhenDialogOpens(std::move(script));
    return CTQSymbolListMgr::DoSearchFinIndi(nullptr, Ansi(input), name, code);
  }
  int SearchCommodity(UserScript script, const std::string& input = "",
                      const std::string& input2 = "", const std::string& input3 = "") {
    WhenDialogOpens(std::move(script));
    return CTQSymbolListMgr::DoSearchCommIndi(nullptr, Ansi(input), name, code, Ansi(input2),
                                              Ansi(input3), kCommodities);
  }
  int SearchFuture(UserScript script, const std::string& input = "") {
    WhenDialogOpens(std::move(script));
    return CTQSymbolListMgr::DoSearchOptionIndi(nullptr, Ansi(input), name, code, market);
  }

  // The outputs as UTF-8, "name/code/market". They start as "was/was/was".
  std::string Outputs() const {
    return standin::FromAnsi(name.GetString()) + "/" + standin::FromAnsi(code.GetString()) + "/" +
           standin::FromAnsi(market.GetString());
  }

  const std::string untouched = "was/was/was";
  CString name = "was";
  CString code = "was";
  CString market = "was";
};
