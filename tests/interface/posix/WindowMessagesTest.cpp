// Numbers are assigned in the order of registration, which shows what was registered at load time.
#include <gtest/gtest.h>

#include "manager/TQSymbolListMgr.h"
#include "platform/framework/window/RegisteredMessage.h"

namespace {

TEST(WindowMessages, AreRegisteredWhenTheLibraryIsLoaded) {
  const CTQSymbolListMgr manager; // makes the linker keep the library
  const unsigned later = tq::RegisterMessage("TQTEST_Later");
  for (const char* name :
       {"KORVANT_Msg", "KORVANT_PostMsg", "KORVANT_AlertGrid", "KORVANT_AlertListGrou",
        "KORVANT_AlertHistDlg", "KORVANT_SymbolAlertMgr", "KORVANT_TSMatchGrid", "KORVANT_SignalUI",
        "KORVANT_QuotePaneSignalUI", "KORVANT_DDE"})
    EXPECT_LT(tq::RegisterMessage(name), later) << name;
}

} // namespace
