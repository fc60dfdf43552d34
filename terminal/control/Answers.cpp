#include "terminal/control/Answers.h"

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "terminal/StandIn.h"
#include "terminal/control/Parts.h"

namespace standin {
namespace {

template <class T> using ByGroup = std::map<std::pair<int, std::string>, Answer<T>>;

struct Answers {
  ByGroup<GroupInfo> groups;
  ByGroup<SymbolInfo> members;
  std::map<int, Answer<SymbolInfo>> symbols;
  std::map<std::pair<int, std::string>, std::vector<ExtAttr>> extended;
  std::optional<Answer<TQS_TSINFO>> systems;
  std::map<std::string, Answer<TQS_ACCOUNTINFO>, std::less<>> accounts;
};

Answers& TheAnswers() {
  static Answers answers;
  return answers;
}

// Every service call asks for answers, so without any this must cost nothing.
template <class T>
const Answer<T>* FindAnswer(const ByGroup<T>& answers, int type, std::string_view group) {
  if (answers.empty())
    return nullptr;
  const auto found = answers.find({type, std::string(group)});
  return found == answers.end() ? nullptr : &found->second;
}

template <class T> Answer<T> WithCount(std::vector<T> records, std::optional<int> claimed) {
  const int count = claimed.value_or(static_cast<int>(records.size()));
  return {std::move(records), count};
}

} // namespace

void AnswerGroups(int type, std::string_view parent, std::vector<GroupInfo> records, int count) {
  TheAnswers().groups.insert_or_assign({type, std::string(parent)},
                                       Answer<GroupInfo>{std::move(records), count});
}

void AnswerMembers(int type, std::string_view group, std::vector<SymbolInfo> records, int count) {
  TheAnswers().members.insert_or_assign({type, std::string(group)},
                                        Answer<SymbolInfo>{std::move(records), count});
}

void AnswerSymbols(int exchId, std::vector<SymbolInfo> records, int count, int result) {
  TheAnswers().symbols.insert_or_assign(exchId,
                                        Answer<SymbolInfo>{std::move(records), count, result});
}

void AnswerExtended(std::string_view id, int kind, std::vector<ExtAttr> records) {
  TheAnswers().extended.insert_or_assign({kind, std::string(id)}, std::move(records));
}

void AnswerTradingSystems(std::vector<TQS_TSINFO> records, std::optional<int> claimed) {
  TheAnswers().systems = WithCount(std::move(records), claimed);
}

void AnswerAccounts(std::string_view tsId, std::vector<TQS_ACCOUNTINFO> records,
                    std::optional<int> claimed) {
  TheAnswers().accounts.insert_or_assign(std::string(tsId), WithCount(std::move(records), claimed));
}

const Answer<GroupInfo>* AnsweredGroups(int type, std::string_view parent) {
  return FindAnswer(TheAnswers().groups, type, parent);
}

const Answer<SymbolInfo>* AnsweredMembers(int type, std::string_view group) {
  return FindAnswer(TheAnswers().members, type, group);
}

const Answer<SymbolInfo>* AnsweredSymbols(int exchId) {
  const auto found = TheAnswers().symbols.find(exchId);
  return found == TheAnswers().symbols.end() ? nullptr : &found->second;
}

const std::vector<ExtAttr>* AnsweredExtended(std::string_view id, int kind) {
  const auto found = TheAnswers().extended.find({kind, std::string(id)});
  return found == TheAnswers().extended.end() ? nullptr : &found->second;
}

const Answer<TQS_TSINFO>* AnsweredTradingSystems() {
  const std::optional<Answer<TQS_TSINFO>>& systems = TheAnswers().systems;
  return systems ? &*systems : nullptr;
}

const Answer<TQS_ACCOUNTINFO>* AnsweredAccounts(std::string_view tsId) {
  const auto found = TheAnswers().accounts.find(tsId);
  return found == TheAnswers().accounts.end() ? nullptr : &found->second;
}

void ResetAnswers() {
  TheAnswers() = Answers();
}

} // namespace standin
