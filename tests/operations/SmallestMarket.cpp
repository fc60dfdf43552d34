#include "platform/framework/window/CEdit.h"
#include "platform/framework/window/CListBox.h"
#include "platform/framework/window/CListCtrl.h"
#include "platform/framework/window/DialogAccess.h"
#include "tests/operations/Subject.h"

namespace operations {
namespace {

void List(standin::Market& market, int exchId, const char* code, const char* kind = "stock") {
  standin::Instrument instrument;
  instrument.exchId = exchId;
  instrument.code = instrument.nameTw = instrument.nameCn = code;
  instrument.kind = kind;
  instrument.price = "10.5";
  if (exchId == 3)
    instrument.extended = {{2, "V3=21000;V4=W;V5=2"}, {3, "V5=T;V6=X"}};
  market.instruments.push_back(instrument);
}

void AddGroups(standin::Market& market) {
  market.groups = {
      {1, "", "TSE", "T", "T", {}},
      {1, "TSE", "CHIP", "C", "C", {"2330.TW", "2317.TW"}},
      {1, "", "ETF", "E", "E", {"1101.TW"}},
      {2, "", "CTW", "W", "W", {}},
      {2, "CTW", "AI", "A", "A", {"2330.TW"}},
      {7, "", "TXO", "O", "O", {"TXO21000L6.TF"}},
      {201, "", "PICK", "P", "P", {"2317.TW"}},
      {201, "", "ZCLOUD", "Z", "Z", {"1101.TW"}},
  };
}

void AddTradingSystems(standin::Market& market) {
  market.tradingSystems = {
      {"T1",
       "T",
       "T",
       true,
       {{1, "9801", "9801-*", "2330.TW,2317.TW"}, {2, "F01", "F01-*", "TXFL6.TF"}}},
      {"T2", "S", "S", true, {{1, "77", "77-*", "1101.TW"}}},
  };
}

// Presses what there is, enabled or not. Dialogs that are opened from within are only ended.
void PressEverything(CDialog& dialog) {
  CListBox(dialog, 781).SetCurSel(0);
  CListCtrl(dialog, 782).SelectRow(0);
  CEdit(dialog, 741).SetText("2330");
  CEdit(dialog, 742).SetText("Pressed");
  CEdit(dialog, 743).SetText("Head");
  for (const int button : {803, 803, 804, 805, 807, 808, 801, 802, 806})
    tq::DialogAccess::Command(dialog, button, WindowEvent::Clicked);
}

// The search is the only one with a table and a field.
void SearchForBoth(CDialog& dialog) {
  constexpr int kSearch = 801;
  for (const char* const text : {".2330", "23"}) {
    CEdit(dialog, 741).SetText(text);
    tq::DialogAccess::Command(dialog, kSearch, WindowEvent::Clicked);
  }
}

void ActAndEnd(CDialog& dialog) {
  static int depth = 0;
  ++depth;
  if (depth == 1 && CListCtrl(dialog, 781).GetColumnCount() > 0)
    SearchForBoth(dialog);
  else if (depth == 1)
    PressEverything(dialog);
  --depth;
  tq::DialogAccess::Command(dialog, CDialog::Accepted, WindowEvent::Clicked);
  dialog.EndDialog(CDialog::Accepted);
}

} // namespace

standin::Market SmallestMarket() {
  standin::Market market;
  market.exchanges = {{1, "TW", "TW", "TW"}, {2, "TE", "TE", "TE"}, {3, "TF", "TF", "TF"}};
  for (const char* code : {"2330", "2317", "1101"})
    List(market, 1, code);
  for (const char* code : {"6488", "5483"})
    List(market, 2, code);
  List(market, 3, "TXFL6", "future");
  List(market, 3, "TXO21000L6", "option");
  List(market, 3, "TXO21000X6", "option");
  AddGroups(market);
  AddTradingSystems(market);
  market.entitled = "1,2,3";
  market.defaults = "1,2";
  market.fullMenuKey = "1";
  market.indicators = {{8, "R", "R", "K", "K", "CPI", "N", "N", ""},
                       {11, "R", "R", "K", "K", "NK", "N", "N", "OSE"},
                       {10, "R", "R", "K", "K", "WTI", "N", "N", ""}};
  return market;
}

void PrepareServices() {
  standin::Reset();
  standin::RecordCalls(false);
  standin::SetMarket(SmallestMarket());
  tq::SetModalHandler(ActAndEnd);
}

} // namespace operations
