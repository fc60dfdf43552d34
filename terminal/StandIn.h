// The stand-in terminal: what a test, the demo or a benchmark says to the services that this folder
// provides under the real ones' names (VLProxy, TQSProxy, TQSObj, tqStock, tqCommon, tqUI,
// tqUtil, TQLog).
//
// One process holds one stand-in. All of it runs on the caller's thread. Text in this header is
// UTF-8 unless a member says "bytes"; the services hand it out in the process's code page, cut at a
// whole character to each field's width. Codes and exchange names are ASCII.
//
// The operations by name, as FailCall, Calls and CountCalls know them: the flat ones by their own
// name ("VLGetExch"), members as "CStaticKey::Setup", "CStockAttr::GetID",
// "CCheckFileName::IsValidName", "TQLog::storage". Some can neither fail nor are recorded: VLFree
// and TQSFree (see OutstandingArrays), IsTraditionChinese, and the constructors and destructors of
// tqStock and TQLog. Field reads of a key object (GetID, GetFieldString, GetFieldInt) and
// TQLog::write can be made to fail, but are not recorded: there are dozens for each symbol, and a
// written line stands in LogLines.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/services/TQSProxy.h"
#include "platform/services/VLRecords.h"
#include "terminal/StandInApi.h"

namespace standin {

struct Exchange {
  int id = 0;
  std::string name;    // short code: "TW"
  std::string titleTw; // what a person reads, Traditional Chinese
  std::string titleCn; // the same, Simplified Chinese
};

// One more attribute of an instrument, as tqStock answers it.
struct FieldValue {
  int field = 0; // a Field of tqStock
  std::string value;
};

// One extended attribute record of an instrument, as VLGetExtendAttr answers it and
// CStockKey::ParseExtAttr reads it.
struct ExtendedText {
  int kind = 0;     // an ExtAttrKind of VLProxy
  std::string text; // "V4=W;V5=2"
};

struct Instrument {
  int exchId = 0;
  std::string code;   // bare code: "2330"
  std::string nameTw; // display name, Traditional Chinese
  std::string nameCn; // display name, Simplified Chinese
  std::string kind;   // stock, preferred, index, etf, etn, warrant, future, option, bond
  int decimals = 2;
  int lot = 1000;                          // trading unit
  bool usable = true;                      // false: CStaticKey::Setup refuses the record
  std::string price;                       // reference price as text; empty: none
  std::string exchangeCode;                // the exchange's own code; empty: the bare code
  std::vector<FieldValue> fields;          // what else is known; stands above the members
  std::vector<ExtendedText> extended = {}; // in the order of the service; a kind may stand twice
};

// One group of the service's group tree. A group is a sub-group when it names a parent, which is a
// group of the same type. Ids are ASCII. The service knows a group by type and id alone: of two
// with the same, the first one's members count, and either has the sub-groups that name the id.
struct Group {
  int type = 1;       // 1 to 201
  std::string parent; // id of the group above; empty: a top-level group
  std::string id, nameTw, nameCn;
  std::vector<std::string> members; // full ids; those of a group with sub-groups may be empty.
                                    // What the market does not list is left out of the answer.
};

struct TradingAccount {
  int type = 1;          // a TqsAccType; 1 stocks, 2 futures in the sample market
  std::string id;        // "9801234567"
  std::string displayId; // what the user sees: "9801-***4567"
  std::string holdings;  // as the service hands them out, bytes: full ids joined by ","
};

struct TradingSystem {
  std::string id, nameTw, nameCn;
  bool available = true; // false: TQSGetTSStatus is 0; all else is answered as before
  std::vector<TradingAccount> accounts;
};

// One row of an info table, as CStockKey::GetInfoArray answers it. Code and market are ASCII.
// Without a name the row ends with its code, without a market with its name.
struct Indicator {
  int type = 8; // an InfoType of tqStock
  std::string regionTw, regionCn;
  std::string categoryTw, categoryCn;
  std::string code, nameTw, nameCn, market;
};

struct Market {
  std::vector<Exchange> exchanges; // in the service's order; an id or name may stand twice
  std::vector<Instrument> instruments;
  std::vector<Group> groups; // in the service's order
  // Those that the user is logged in to, in the proxy's order.
  std::vector<TradingSystem> tradingSystems;
  std::vector<Indicator> indicators = {}; // those of one type in the order of its table
  std::string entitled = "";              // TQSGetUserInfo flag 0
  std::string defaults = "";              // TQSGetUserInfo flag 6
  std::string fullMenuKey = ""; // TQSGetUserExtraValue("", "FullMenuKey"); empty: the call fails
};

// Reads a market directory (see data/market/README.md), given as the system's C library takes it.
// False with `error` = "file:line: reason" for the first bad line or missing file (line 0);
// `market` is then unchanged.
TQSTANDIN_API bool LoadMarket(const std::string& directory, Market& market, std::string& error);

// Puts a market behind the services. Arrays handed out earlier stay valid until released.
// Instruments of an exchange that the market does not list are not served.
TQSTANDIN_API void SetMarket(Market market);
TQSTANDIN_API const Market& CurrentMarket();

// Changes of a trading system while it is in use, without setting the market again: an account's
// holdings after a fill, and a log-out or a new log-in. False when there is no such system or
// account.
TQSTANDIN_API bool SetHoldings(std::string_view tsId, std::string_view accountId, int type,
                               std::string_view holdings);
TQSTANDIN_API bool SetAvailable(std::string_view tsId, bool available);

// Puts raw records in the place of what the market says, as a service gone wrong would: whatever
// bytes, for this type and parent of VLGetSubGroup, and for this type and group of
// VLGetGroupSymbol; `parent` and `group` are bytes, compared as they are. The array has the records
// that are given (none: null), `count` is what the service claims. It may be less, and negative; a
// claim of more has a reader run over the end of the array, which is for a test to answer for.
// Until Reset.
TQSTANDIN_API void AnswerGroups(int type, std::string_view parent, std::vector<GroupInfo> records,
                                int count);
TQSTANDIN_API void AnswerMembers(int type, std::string_view group, std::vector<SymbolInfo> records,
                                 int count);
// The same for the records of TQSGetTSInfo and TQSGetTSAccount, by index; the counts are `claimed`,
// or follow. A trading system that the market does not have is available. Holdings stay those of
// the market.
TQSTANDIN_API void AnswerTradingSystems(std::vector<TQS_TSINFO> records,
                                        std::optional<int> claimed = {});
TQSTANDIN_API void AnswerAccounts(std::string_view tsId, std::vector<TQS_ACCOUNTINFO> records,
                                  std::optional<int> claimed = {});

// The same for VLGetSymbolInfos2, by exchange: `result` 0 has the call fail with the array all the
// same.
TQSTANDIN_API void AnswerSymbols(int exchId, std::vector<SymbolInfo> records, int count,
                                 int result);
// The same for VLGetExtendAttr, by the service's own id and kind, whatever bytes the texts are.
TQSTANDIN_API void AnswerExtended(std::string_view id, int kind, std::vector<ExtAttr> records);

// Puts rows in the place of an info table, as GetInfoArray answers it from now on: columns of any
// number, none too, the same in both languages. Until Reset.
TQSTANDIN_API void SetIndicators(int type, std::vector<std::vector<std::string>> rows);

// Back to an empty market, no scripted failures, no recorded calls, log lines or messages, bad
// releases forgotten; recording on, the language that of the start. Arrays handed out and not yet
// released stay counted.
TQSTANDIN_API void Reset();

// The interface language that IsTraditionChinese reports. At the start: on Windows whether the code
// page is 950; elsewhere traditional unless the environment says TQ_LANG=cn.
TQSTANDIN_API void SetTraditional(bool traditional);
// How often anybody has asked for it since the process began, the stand-in's services too.
TQSTANDIN_API long LanguageQuestions();

// Makes the n-th call from now (1: the next) of one service operation fail, as that operation's
// contract says a failure looks; n = 0 takes the order back. "*" counts calls of every operation.
TQSTANDIN_API void FailCall(std::string_view operation, int n);
// Every call of the operation fails until Reset or FailCall(operation, 0).
TQSTANDIN_API void FailAlways(std::string_view operation);

// Runs `action` inside each call of the operation, after the call is recorded and before it
// answers, as a terminal does that hears of something while it is asked. An action does not run
// inside of itself. An empty function and Reset take it back. Operations that are not recorded run
// theirs too, constructors and destructors excepted.
TQSTANDIN_API void OnCall(std::string_view operation, std::function<void()> action);
// The same for every operation, before the action of the operation's own. It runs inside of itself
// as well: how deep it goes is its own matter.
using CallWatch = std::function<void(std::string_view operation)>;
TQSTANDIN_API void OnEachCall(CallWatch watch);

struct Call {
  std::string operation;
  std::string
      arguments; // as text, comma-separated, outputs left out; bytes as the service got them,
                 // "(null)" for a null text
};
TQSTANDIN_API const std::vector<Call>& Calls();
TQSTANDIN_API int CountCalls(std::string_view operation);
TQSTANDIN_API void ClearCalls();
// Recording costs time and memory: a benchmark turns it off.
TQSTANDIN_API void RecordCalls(bool on);

// Arrays and texts handed out and not yet given to VLFree or TQSFree, and releases of something
// that is not one of them: never handed out, released before, or handed out by the other service.
// Such a release is counted and otherwise ignored.
TQSTANDIN_API int OutstandingArrays();
TQSTANDIN_API int BadReleases();

struct LogLine {
  int level;
  std::string text; // bytes in the process's code page, without the line's time and prefix
};
TQSTANDIN_API const std::vector<LogLine>& LogLines();
TQSTANDIN_API int LoggersAlive();
// The directory, base name and prefix of the latest TQLog::storage call, joined by "|"; bytes.
TQSTANDIN_API std::string LogStorage();

struct Message {
  unsigned id;      // string-table entry; 0 for a box that shows a text
  unsigned type;    // buttons
  void* resources;  // the module that was given
  std::string text; // bytes, for a box that shows a text
};
TQSTANDIN_API const std::vector<Message>& Messages();
// The button that the next message boxes report; 1 (OK) at the start. Orders of
// AnswerMessagesInTurn are forgotten.
TQSTANDIN_API void AnswerMessages(int button);
// The buttons of the next message boxes, one after the other; those behind them report what
// AnswerMessages said. Buttons that were not reported yet are forgotten.
TQSTANDIN_API void AnswerMessagesInTurn(std::vector<int> buttons);
// How many of those are still waiting for their box.
TQSTANDIN_API size_t WaitingAnswers();

struct Notification {
  std::string target;
  long reserved;
  long code;
  std::string reason;
};
TQSTANDIN_API const std::vector<Notification>& Notifications();

// UTF-8 to the process's code page (characters it lacks become "?") and back.
TQSTANDIN_API std::string ToAnsi(std::string_view utf8);
TQSTANDIN_API std::string FromAnsi(std::string_view ansi);

} // namespace standin
