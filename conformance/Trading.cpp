// TQSProxy and TQSObj: the login information, the trading systems with their accounts, the extra
// values.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <set>

#include "Checks.h"
#include "TQSObj.h"
#include "TQSProxy.h"

namespace conformance {
namespace {

constexpr char kGuard = '\x5a';
constexpr char kUnknownSystem[] = "?NONE?";

std::vector<std::string> SplitAtCommas(std::string_view text) {
  std::vector<std::string> parts;
  for (std::size_t begin = 0; !text.empty() && begin <= text.size();) {
    const std::size_t end = std::min(text.find(',', begin), text.size());
    parts.emplace_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return parts;
}

// A buffer of a call's with bytes behind it that the call must not touch.
class Buffer {
public:
  explicit Buffer(std::size_t size) : size_(size), bytes_(size + 256, kGuard) {}
  char* Data() { return bytes_.data(); }
  std::string_view Text() const { return {bytes_.data(), strnlen(bytes_.data(), size_)}; }
  bool IsTerminated() const { return Text().size() < size_; }
  bool IsUntouched() const { return CountGuards(0) == bytes_.size(); }
  bool IsWrittenBehind() const { return CountGuards(size_) != bytes_.size() - size_; }

private:
  std::size_t CountGuards(std::size_t from) const {
    std::size_t count = 0;
    for (std::size_t i = from; i < bytes_.size(); ++i)
      count += bytes_[i] == kGuard;
    return count;
  }

  std::size_t size_;
  std::vector<char> bytes_;
};

// The text of a buffer that a successful call has filled.
std::string_view CheckFilled(Report& report, const Buffer& buffer, Rule size) {
  report.Hold(!buffer.IsWrittenBehind(), size, "bytes behind the buffer were written");
  report.Hold(buffer.IsTerminated(), Rule::TextTerminated, "the text has no NUL in the buffer");
  CheckCodePage(report, "the text", buffer.Text());
  return buffer.Text();
}

void CheckNumberList(Report& report, const Market& market, LoginInfoFlag flag) {
  Buffer buffer(TQSUserInfoSize);
  report.Call("TQSGetUserInfo", int{flag}, "");
  if (TQSGetUserInfo(flag, buffer.Data(), "") == 0)
    return; // nobody is logged in
  const std::string_view text = CheckFilled(report, buffer, Rule::InfoSize);
  for (const std::string& number : SplitAtCommas(text)) {
    if (!report.Hold(IsDecimal(number), Rule::InfoNumbers, Shown(text)))
      return;
    if (flag == LoginInfoDefaultExchanges)
      report.Hold(market.FindExchange(std::atoi(number.c_str())) != nullptr, Rule::InfoDefaults,
                  "no exchange has the number " + number);
  }
}

void CheckLoginRefusals(Report& report) {
  constexpr int unknownFlag = 9999;
  Buffer buffer(TQSUserInfoSize);
  report.Call("TQSGetUserInfo", unknownFlag, "");
  report.Hold(TQSGetUserInfo(static_cast<LoginInfoFlag>(unknownFlag), buffer.Data(), "") == 0,
              Rule::InfoUnknown, "the call succeeds");
  report.Call("TQSGetUserInfo", int{LoginInfoDefaultExchanges}, "no buffer");
  report.Hold(TQSGetUserInfo(LoginInfoDefaultExchanges, nullptr, "") == 0, Rule::NullArgument,
              "the call succeeds");
}

int ExtraValue(Report& report, const char* section, const char* key, char* buffer, int size) {
  report.Call("TQSGetUserExtraValue", section, key, size);
  return TQSGetUserExtraValue(section, key, buffer, size);
}

void CheckExtraValue(Report& report) {
  for (const int size : {static_cast<int>(TQSExtraValueSize), 2, 1}) {
    Buffer buffer(static_cast<std::size_t>(size));
    if (ExtraValue(report, "", "FullMenuKey", buffer.Data(), size) != 0)
      CheckFilled(report, buffer, Rule::ExtraSize);
    else
      report.Hold(buffer.IsUntouched(), Rule::ExtraFails, "the buffer was written");
  }
}

void CheckExtraRefusals(Report& report) {
  struct Refused {
    const char* section;
    const char* key;
    int size;
  };
  for (const Refused& each :
       {Refused{"?NONE?", "?NONE?", 16}, Refused{nullptr, "FullMenuKey", 16},
        Refused{"", nullptr, 16}, Refused{"", "FullMenuKey", 0}, Refused{"", "FullMenuKey", -1}}) {
    Buffer buffer(16);
    const int result = ExtraValue(report, each.section, each.key, buffer.Data(), each.size);
    report.Hold(result == 0 && buffer.IsUntouched(), Rule::ExtraFails,
                result != 0 ? "the call succeeds" : "the buffer was written");
  }
  report.Hold(ExtraValue(report, "", "FullMenuKey", nullptr, 16) == 0, Rule::ExtraFails,
              "the call succeeds without a buffer");
}

// Gives back what is handed out.
struct Holdings {
  ~Holdings() {
    if (text != nullptr)
      TQSFree(text);
  }
  char* text = nullptr;
};

void CheckHoldings(Report& report, const Market& market, const char* tsId,
                   const TQS_ACCOUNTINFO& account) {
  const std::string id(FieldText(account.id));
  Holdings holdings;
  report.Call("TQSGetTSAccountHolding", tsId, id, int{account.type});
  if (TQSGetTSAccountHolding(tsId, id.c_str(), account.type, &holdings.text) == 0) {
    report.Hold(holdings.text == nullptr, Rule::HoldingsFailed, "*holdings is not null");
    holdings.text = nullptr; // after a failure it is nobody's
    return;
  }
  if (holdings.text == nullptr) {
    report.Found(Rule::HoldingsEmpty, "*holdings is null");
    return;
  }
  CheckCodePage(report, "the text", holdings.text);
  for (const std::string& held : SplitAtCommas(holdings.text))
    report.Hold(market.Find(held) != nullptr, Rule::HoldingsText,
                Shown(held) + " is no listed symbol");
}

void CheckAccounts(Report& report, const Market& market, const char* tsId) {
  report.Call("TQSGetTSAccountCount", tsId);
  const int count = TQSGetTSAccountCount(tsId);
  report.Hold(count >= 0, Rule::AccountCount, Shown(count));
  std::set<std::pair<int, std::string>> ids;
  for (int i = 0; i < count; ++i) {
    TQS_ACCOUNTINFO account = {};
    report.Call("TQSGetTSAccount", tsId, i);
    if (TQSGetTSAccount(tsId, i, &account) == 0)
      continue;
    CheckField(report, "TQS_ACCOUNTINFO::id", account.id);
    CheckField(report, "TQS_ACCOUNTINFO::displayId", account.displayId);
    const std::string id(FieldText(account.id));
    report.Hold(!id.empty() && IsPlain(id), Rule::AccountIdText, Shown(id));
    report.Hold(ids.emplace(int{account.type}, id).second, Rule::AccountOnce,
                Shown(id) + " comes again");
    CheckHoldings(report, market, tsId, account);
  }
  TQS_ACCOUNTINFO none = {};
  for (const int index : {-1, count}) {
    report.Call("TQSGetTSAccount", tsId, index);
    report.Hold(count < 0 || TQSGetTSAccount(tsId, index, &none) == 0, Rule::AccountIndex,
                "the call succeeds");
  }
}

void CheckSystem(Report& report, const Market& market, int index, std::set<std::string>& ids) {
  TQS_TSINFO info = {};
  report.Call("TQSGetTSInfo", index);
  if (!report.Hold(TQSGetTSInfo(index, &info) != 0, Rule::SystemIndex, "the call fails"))
    return;
  CheckField(report, "TQS_TSINFO::id", info.id);
  CheckField(report, "TQS_TSINFO::name", info.name);
  const std::string id(FieldText(info.id));
  report.Hold(!id.empty() && IsPlain(id), Rule::SystemIdText, Shown(id));
  report.Hold(ids.insert(id).second, Rule::SystemId, Shown(id) + " comes again");
  CheckAccounts(report, market, id.c_str());
}

void CheckUnknownSystem(Report& report) {
  report.Call("TQSGetTSStatus", kUnknownSystem);
  report.Hold(TQSGetTSStatus(kUnknownSystem) == 0, Rule::SystemStatus, "it is available");
  report.Call("TQSGetTSAccountCount", kUnknownSystem);
  report.Hold(TQSGetTSAccountCount(kUnknownSystem) == 0, Rule::AccountCount, "it has accounts");
  Holdings holdings;
  report.Call("TQSGetTSAccountHolding", kUnknownSystem, "?NONE?", 1);
  const int result =
      TQSGetTSAccountHolding(kUnknownSystem, "?NONE?", static_cast<TqsAccType>(1), &holdings.text);
  report.Hold(result == 0 && holdings.text == nullptr, Rule::HoldingsFailed,
              result != 0 ? "the call succeeds" : "*holdings is not null");
  report.Call("TQSGetTSStatus", "null");
  report.Hold(TQSGetTSStatus(nullptr) == 0, Rule::NullArgument, "the call succeeds");
  report.Call("TQSGetTSInfo", 0, "no info");
  report.Hold(TQSGetTSInfo(0, nullptr) == 0, Rule::NullArgument, "the call succeeds");
  report.Call("TQSFree", "null");
  TQSFree(nullptr);
}

} // namespace

void CheckLogin(Report& report, const Market& market) {
  for (const LoginInfoFlag flag : {LoginInfoEntitledExchanges, LoginInfoDefaultExchanges})
    CheckNumberList(report, market, flag);
  CheckLoginRefusals(report);
  CheckExtraValue(report);
  CheckExtraRefusals(report);
}

void CheckTradingSystems(Report& report, const Market& market) {
  report.Call("TQSGetTSCount");
  const int count = TQSGetTSCount();
  report.Hold(count >= 0, Rule::SystemCount, Shown(count));
  std::set<std::string> ids;
  for (int i = 0; i < count; ++i)
    CheckSystem(report, market, i, ids);
  TQS_TSINFO none = {};
  for (const int index : {-1, count}) {
    report.Call("TQSGetTSInfo", index);
    report.Hold(count < 0 || TQSGetTSInfo(index, &none) == 0, Rule::SystemIndex,
                "the call succeeds");
  }
  CheckUnknownSystem(report);
}

} // namespace conformance
