#include "dialogs/WindowMessages.h"

#include "platform/framework/window/RegisteredMessage.h"

namespace tq {
namespace {

constexpr const char* kNames[kTerminalMessages] = {"KORVANT_Msg",
                                                   "KORVANT_PostMsg",
                                                   "KORVANT_AlertGrid",
                                                   "KORVANT_AlertListGrou",
                                                   "KORVANT_AlertHistDlg",
                                                   "KORVANT_SymbolAlertMgr",
                                                   "KORVANT_TSMatchGrid",
                                                   "KORVANT_SignalUI",
                                                   "KORVANT_QuotePaneSignalUI",
                                                   "KORVANT_DDE"};

// Registered when the library is loaded.
const struct Numbers {
  Numbers() {
    for (int i = 0; i < kTerminalMessages; ++i)
      of[i] = RegisterMessage(kNames[i]);
  }
  unsigned of[kTerminalMessages];
} theNumbers;

} // namespace

const char* TerminalMessageName(TerminalMessage message) {
  return kNames[static_cast<int>(message)];
}

unsigned TerminalMessageNumber(TerminalMessage message) {
  return theNumbers.of[static_cast<int>(message)];
}

} // namespace tq
