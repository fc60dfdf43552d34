// The window messages by which the terminal's libraries know each other. Every library of the
// terminal registers all of them when it is loaded, whether or not it uses them: so their numbers
// exist, and are the same, before the first window is there. This library's dialogs send none of
// them: they talk to the terminal through TQSCall alone.
#pragma once

namespace tq {

// Positions in the table; the names are known outside of the library, do not change.
enum class TerminalMessage {
  General,         // "KORVANT_Msg"
  Posted,          // "KORVANT_PostMsg"
  AlertGrid,       // "KORVANT_AlertGrid"
  AlertListGroup,  // "KORVANT_AlertListGrou": cut short so when it was introduced
  AlertHistory,    // "KORVANT_AlertHistDlg"
  SymbolAlerts,    // "KORVANT_SymbolAlertMgr"
  MatchGrid,       // "KORVANT_TSMatchGrid"
  Signal,          // "KORVANT_SignalUI"
  QuotePaneSignal, // "KORVANT_QuotePaneSignalUI"
  DynamicExchange, // "KORVANT_DDE"
};
inline constexpr int kTerminalMessages = 10;

const char* TerminalMessageName(TerminalMessage message);
// The number under which it was registered when the library was loaded.
unsigned TerminalMessageNumber(TerminalMessage message);

} // namespace tq
