// The stand-in terminal: how a test, the demo or a benchmark controls the services that this folder
// provides under the names of the real ones (VLProxy, TQSProxy, TQSObj, tqStock, tqCommon, tqUI,
// tqUtil, TQLog).
//
// There is one stand-in per process, and everything runs on the caller's thread. Text in this
// header is UTF-8 unless a member says "bytes"; the services hand it out in the process's code
// page, cut at a whole character to the width of each field. Codes and exchange names are ASCII.
//
// FailCall, Calls and CountCalls take operations by name: flat ones by their own name
// ("VLGetExch"), members as "CStaticKey::Setup", "CStockAttr::GetID", "CCheckFileName::IsValidName"
// or "TQLog::storage". VLFree and TQSFree (see OutstandingArrays), IsTraditionChinese, and the
// constructors and destructors of tqStock and TQLog are neither recorded nor can be made to fail.
// Field reads of a key object (GetID, GetFieldString, GetFieldInt) and TQLog::write can be made to
// fail but are not recorded: each symbol is read dozens of times, and a written line is in
// LogLines.
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
  std::string titleTw; // display name, Traditional Chinese
  std::string titleCn; // the same, Simplified Chinese
};

// Another attribute of an instrument, as tqStock returns it.
struct FieldValue {
  int field = 0; // a Field of tqStock
  std::string value;
};

// An extended attribute record of an instrument, as VLGetExtendAttr returns it and
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
  std::vector<FieldValue> fields;          // further attributes; they override the members
  std::vector<ExtendedText> extended = {}; // in the service's order; a kind may occur twice
};

// A group of the service's tree. One that names a parent of the same type is its sub-group. Ids are
// ASCII. The service knows a group by type and id alone: of two equal ones the members of the first
// count, and both have the sub-groups that name the id.
struct Group {
  int type = 1;       // 1 to 201
  std::string parent; // id of the group above; empty: a top-level group
  std::string id, nameTw, nameCn;
  // Full ids; may be empty for a group with sub-groups. The service leaves out ids that the market
  // does not list.
  std::vector<std::string> members;
};

struct TradingAccount {
  int type = 1;          // a TqsAccType; 1 stocks, 2 futures in the sample market
  std::string id;        // "9801234567"
  std::string displayId; // as the user sees it: "9801-***4567"
  std::string holdings;  // bytes as the service returns them: full ids joined by ","
};

struct TradingSystem {
  std::string id, nameTw, nameCn;
  bool available = true; // false: TQSGetTSStatus is 0; the rest is answered as before
  std::vector<TradingAccount> accounts;
};

// A row of an info table, as CStockKey::GetInfoArray returns it. Code and market are ASCII. A row
// without a name ends with its code, one without a market with its name.
struct Indicator {
  int type = 8; // an InfoType of tqStock
  std::string regionTw, regionCn;
  std::string categoryTw, categoryCn;
  std::string code, nameTw, nameCn, market;
};

struct Market {
  std::vector<Exchange> exchanges; // in the service's order; an id or name may occur twice
  std::vector<Instrument> instruments;
  std::vector<Group> groups; // in the service's order
  // The systems that the user is logged in to, in the proxy's order.
  std::vector<TradingSystem> tradingSystems;
  std::vector<Indicator> indicators = {}; // those of one type in the order of its table
  std::string entitled = "";              // TQSGetUserInfo flag 0
  std::string defaults = "";              // TQSGetUserInfo flag 6
  std::string fullMenuKey = ""; // TQSGetUserExtraValue("", "FullMenuKey"); empty: the call fails
};

// Reads a market directory, whose files the README.md of the sample market describes; the path is
// one for the C library. On the first bad line or missing file (line 0) returns false with `error`
// = "file:line: reason" and leaves `market` unchanged.
TQSTANDIN_API bool LoadMarket(const std::string& directory, Market& market, std::string& error);

// The directory of the sample market and lists that are installed with this library: "market",
// "lists/tw" and "lists/cn" in it. The environment variable TQ_SAMPLES names another one.
TQSTANDIN_API std::string SampleDirectory();
// The sample lists in the interface language, a data directory for CTQSymbolListMgr::Init. They are
// everybody's: a program that saves works on a copy.
TQSTANDIN_API std::string SampleLists();
// LoadMarket with the sample market, then SetMarket.
TQSTANDIN_API bool ServeSampleMarket(std::string& error);

// Makes the services serve this market. Arrays handed out earlier stay valid until released.
// Instruments of an exchange that the market does not list are not served.
TQSTANDIN_API void SetMarket(Market market);
TQSTANDIN_API const Market& CurrentMarket();

// Changes to a trading system without setting the market again: an account's holdings after a fill,
// a log-out or a new log-in. False for an unknown system or account.
TQSTANDIN_API bool SetHoldings(std::string_view tsId, std::string_view accountId, int type,
                               std::string_view holdings);
TQSTANDIN_API bool SetAvailable(std::string_view tsId, bool available);

// Raw records that replace the market's answer, as a broken service would return them, for this
// type and parent of VLGetSubGroup, or this type and group of VLGetGroupSymbol. `parent` and
// `group` are bytes and compared as they are. The array holds the given records (null for none),
// `count` is what the service claims: it may be less, or negative. A claim of more makes a reader
// overrun the array, which is up to the test. In force until Reset.
TQSTANDIN_API void AnswerGroups(int type, std::string_view parent, std::vector<GroupInfo> records,
                                int count);
TQSTANDIN_API void AnswerMembers(int type, std::string_view group, std::vector<SymbolInfo> records,
                                 int count);
// The same for the records of TQSGetTSInfo and TQSGetTSAccount, by index; the claimed counts are
// `claimed` or those of the records. A trading system that the market does not have is available.
// Holdings stay those of the market.
TQSTANDIN_API void AnswerTradingSystems(std::vector<TQS_TSINFO> records,
                                        std::optional<int> claimed = {});
TQSTANDIN_API void AnswerAccounts(std::string_view tsId, std::vector<TQS_ACCOUNTINFO> records,
                                  std::optional<int> claimed = {});

// The same for VLGetSymbolInfos2, by exchange. With `result` 0 the call fails and hands out the
// array all the same.
TQSTANDIN_API void AnswerSymbols(int exchId, std::vector<SymbolInfo> records, int count,
                                 int result);
// The same for VLGetExtendAttr, by the service's own id and kind. The texts may be any bytes.
TQSTANDIN_API void AnswerExtended(std::string_view id, int kind, std::vector<ExtAttr> records);

// Rows that replace an info table in the answers of GetInfoArray: any number of columns, none
// included, the same in both languages. In force until Reset.
TQSTANDIN_API void SetIndicators(int type, std::vector<std::vector<std::string>> rows);

// Back to an empty market and the initial language, without scripted failures, recorded calls, log
// lines, messages and bad releases; recording is on, and messages are not shown. Arrays that are
// not released yet stay counted.
TQSTANDIN_API void Reset();

// The interface language that IsTraditionChinese returns. Initially, on Windows, Traditional if the
// code page is 950; elsewhere Traditional unless the environment says TQ_LANG=cn.
TQSTANDIN_API void SetTraditional(bool traditional);
// How often anybody has asked for it since the process began, the stand-in's services too.
TQSTANDIN_API long LanguageQuestions();

// Makes the n-th call from now (1: the next) of an operation fail as its contract says; n = 0
// withdraws the order. "*" counts the calls of all operations.
TQSTANDIN_API void FailCall(std::string_view operation, int n);
// Makes every call of the operation fail until Reset or FailCall(operation, 0).
TQSTANDIN_API void FailAlways(std::string_view operation);

// Runs `action` inside each call of the operation, after the call is recorded and before it
// answers, as a terminal that handles a message meanwhile. An action does not run inside itself. An
// empty function or Reset withdraws it. Operations that are not recorded run theirs too, except for
// constructors and destructors.
TQSTANDIN_API void OnCall(std::string_view operation, std::function<void()> action);
// The same for every operation, before the operation's own action. It may run inside itself;
// limiting the depth is up to the action.
using CallWatch = std::function<void(std::string_view operation)>;
TQSTANDIN_API void OnEachCall(CallWatch watch);

struct Call {
  std::string operation;
  // As text, comma-separated, without outputs; bytes as the service got them, "(null)" for a null
  // text.
  std::string arguments;
};
TQSTANDIN_API const std::vector<Call>& Calls();
TQSTANDIN_API int CountCalls(std::string_view operation);
TQSTANDIN_API void ClearCalls();
// Recording costs time and memory; benchmarks turn it off.
TQSTANDIN_API void RecordCalls(bool on);

// Arrays and texts not yet released by VLFree or TQSFree, and bad releases: of something that was
// never handed out, was released before, or belongs to the other service. A bad release is counted
// and otherwise ignored.
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
  void* resources;  // the module given by the caller
  std::string text; // bytes, for a box that shows a text
};
TQSTANDIN_API const std::vector<Message>& Messages();
// The button that message boxes return; initially 1 (OK). Forgets the answers of
// AnswerMessagesInTurn.
TQSTANDIN_API void AnswerMessages(int button);
// The buttons of the next message boxes, in turn; later boxes return that of AnswerMessages.
// Replaces answers not used yet.
TQSTANDIN_API void AnswerMessagesInTurn(std::vector<int> buttons);
// How many of them are not used yet.
TQSTANDIN_API size_t WaitingAnswers();
// Whether message boxes are shown on the screen too, over the active window, and return the button
// that is pressed there. Off at the start and after Reset, so that no test waits for somebody. Only
// those that have a text, and elsewhere than on Windows only while a dialog is on the screen;
// others return the answers above.
TQSTANDIN_API void ShowMessages(bool on);

struct Notification {
  std::string target;
  long reserved;
  long code;
  std::string reason;
};
TQSTANDIN_API const std::vector<Notification>& Notifications();

// Who hears of lines, messages and notifications as they come: each when it stands in the records
// above, a message before it is shown. What is empty hears nothing. All of it comes from within an
// operation of the library. Replaces the listener before; Reset takes it away.
struct Listener {
  std::function<void(const LogLine& line)> line;
  std::function<void(const Message& message)> message;
  std::function<void(const Notification& notification)> notification;
};
TQSTANDIN_API void Listen(Listener listener);

// UTF-8 to the process's code page and back; characters that it lacks become "?".
TQSTANDIN_API std::string ToAnsi(std::string_view utf8);
TQSTANDIN_API std::string FromAnsi(std::string_view ansi);

} // namespace standin
