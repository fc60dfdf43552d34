// VLProxy: the tree of groups of every type, and their members.
#include <algorithm>
#include <set>
#include <utility>

#include "Checks.h"
#include "Received.h"

namespace conformance {
namespace {

constexpr int kFirstType = 1;
constexpr int kLastType = 201;
constexpr std::size_t kQuickMembers = 50;

class Groups {
public:
  explicit Groups(Report& report) : report_(report) {}

  void CheckType(int type) {
    type_ = type;
    path_.clear();
    asked_.clear();
    CheckLevel("");
  }
  // All groups that were met: type and id.
  const std::set<std::pair<int, std::string>>& Met() const { return met_; }

private:
  std::vector<GroupInfo> CheckLevel(const std::string& parent);
  void CheckRecords(const std::vector<GroupInfo>& level);
  void CheckBelow(const GroupInfo& group, const std::string& call);

  Report& report_;
  int type_ = 0;
  std::vector<std::string> path_; // ids of the groups above
  std::set<std::string> asked_;   // ids below which was asked: each once, so that time is linear
  std::set<std::pair<int, std::string>> met_;
};

// The groups are copied, so that the levels below cost the service one array at a time.
std::vector<GroupInfo> Groups::CheckLevel(const std::string& parent) {
  report_.Call("VLGetSubGroup", type_, parent);
  std::vector<GroupInfo> level;
  {
    const Received<GroupInfo> answer =
        AskTwice<GroupInfo>(report_, [&](GroupInfo** list, int* count) {
          return VLGetSubGroup(type_, parent.c_str(), list, count);
        });
    report_.Hold(answer.Succeeded(), Rule::GroupRead, "the call fails");
    level.assign(answer.Records().begin(), answer.Records().end());
  }
  CheckRecords(level);
  const std::string call = report_.LatestCall();
  for (const GroupInfo& group : level)
    CheckBelow(group, call);
  return level;
}

void Groups::CheckRecords(const std::vector<GroupInfo>& level) {
  std::set<std::string> ids;
  for (const GroupInfo& group : level) {
    CheckField(report_, "GroupInfo::szID", group.szID);
    CheckField(report_, "GroupInfo::szName", group.szName);
    const std::string id(FieldText(group.szID));
    report_.Hold(group.nType == type_, Rule::GroupTypeOf,
                 Shown(id) + " says type " + Shown(group.nType));
    report_.Hold(!id.empty() && IsPlain(id), Rule::GroupIdText, Shown(id));
    report_.Hold(ids.insert(id).second, Rule::GroupOnce, Shown(id) + " comes again");
    met_.emplace(type_, id);
  }
}

// Asked of a group that denies its sub-groups too: they would never be seen.
void Groups::CheckBelow(const GroupInfo& group, const std::string& call) {
  const std::string id(FieldText(group.szID));
  if (std::find(path_.begin(), path_.end(), id) != path_.end()) {
    report_.FoundIn(call, Rule::GroupCircle, Shown(id) + " stands below itself");
    return;
  }
  if (id.empty() || !asked_.insert(id).second)
    return;
  path_.push_back(id);
  const std::size_t count = CheckLevel(id).size();
  path_.pop_back();
  if ((count != 0) != (group.bHasSubGroup != 0))
    report_.FoundIn(call, Rule::GroupFlag,
                    Shown(id) + (count != 0 ? " denies its " : " promises sub-groups and has ") +
                        Shown(static_cast<long>(count)));
}

void CheckMembers(Report& report, const Market& market, int type, const std::string& id) {
  report.Call("VLGetGroupSymbol", type, id, 1);
  const auto ask = [&](SymbolInfo** list, int* count) {
    return VLGetGroupSymbol(type, id.c_str(), list, count, 1);
  };
  const Received<SymbolInfo> answer = AskTwice<SymbolInfo>(report, ask);
  report.Hold(answer.Succeeded(), Rule::GroupMembersRead, "the call fails");
  for (const SymbolInfo& member : answer.Records()) {
    const SymbolInfo* const listed = market.Find(IdOf(member));
    report.Hold(listed != nullptr && IsSame(*listed, member), Rule::GroupMember,
                Shown(IdOf(member)));
  }
}

void CheckUnknownGroup(Report& report) {
  report.Call("VLGetGroupSymbol", kFirstType, kUnknownCode, 1);
  MustFail<SymbolInfo>(report, Rule::GroupUnknown, [](SymbolInfo** list, int* count) {
    return VLGetGroupSymbol(kFirstType, kUnknownCode, list, count, 1);
  });
  report.Call("VLGetGroupSymbol", kFirstType, "null", 1);
  MustFail<SymbolInfo>(report, Rule::NullArgument, [](SymbolInfo** list, int* count) {
    return VLGetGroupSymbol(kFirstType, nullptr, list, count, 1);
  });
  report.Call("VLGetSubGroup", kFirstType, "null");
  MustFail<GroupInfo>(report, Rule::NullArgument, [](GroupInfo** list, int* count) {
    return VLGetSubGroup(kFirstType, nullptr, list, count);
  });
}

} // namespace

void CheckGroups(Report& report, const Market& market) {
  Groups groups(report);
  for (int type = kFirstType; type <= kLastType; ++type)
    groups.CheckType(type);
  const std::vector<std::pair<int, std::string>> met(groups.Met().begin(), groups.Met().end());
  ForSample(met.size(), report.Asked().quick ? kQuickMembers : met.size(),
            [&](std::size_t i) { CheckMembers(report, market, met[i].first, met[i].second); });
  CheckUnknownGroup(report);
}

} // namespace conformance
