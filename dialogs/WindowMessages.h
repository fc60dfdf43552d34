// The window messages that the terminal's libraries share. Each library registers all of them when
// it is loaded, even if it uses none, so that the numbers exist before the first window does. This
// library's dialogs send none of them: they notify the terminal through TQSCall alone.
#pragma once

namespace tq {

// Positions in the table. The names are public: do not change them.
enum class TerminalMessage {
  General,         // "KORVANT_Msg"
  Posted,          // "KORVANT_PostMsg"
  AlertGrid,       // "KORVANT_AlertGrid"
  AlertListGroup,  // "KORVANT_AlertListGrou": cut short when it was introduced
  AlertHistory,    // "KORVANT_AlertHistDlg"
  SymbolAlerts,    // "KORVANT_SymbolAlertMgr"
  MatchGrid,       // "KORVANT_TSMatchGrid"
  Signal,          // "KORVANT_SignalUI"
  QuotePaneSignal, // "KORVANT_QuotePaneSignalUI"
  DynamicExchange, // "KORVANT_DDE"
};
inline constexpr int kTerminalMessages = 10;

const char* TerminalMessageName(TerminalMessage message);
// The number that was registered for it when the library was loaded.
unsigned TerminalMessageNumber(TerminalMessage message);

} // namespace tq
