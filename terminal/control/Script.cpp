#include "terminal/control/Script.h"

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <utility>

#include "terminal/StandIn.h"
#include "terminal/control/Parts.h"

namespace standin {
namespace {

constexpr std::string_view kEveryOperation = "*";

struct Action {
  std::function<void()> run;
  bool running = false;
};

struct Script {
  std::map<std::string, int, std::less<>> countdowns;
  std::set<std::string, std::less<>> always;
  std::map<std::string, Action, std::less<>> actions;
  std::shared_ptr<const CallWatch> watch;
  std::vector<Call> calls;
  bool recording = true;
};

Script& TheScript() {
  static Script script;
  return script;
}

// Counts one call; true when it is the one that must fail.
bool CountDown(Script& script, std::string_view operation) {
  const auto found = script.countdowns.find(operation);
  if (found == script.countdowns.end() || --found->second > 0)
    return false;
  script.countdowns.erase(found);
  return true;
}

// Must be called whenever an order is added or withdrawn.
void NoteOrders() {
  failuresOrdered = !TheScript().countdowns.empty() || !TheScript().always.empty();
  actionsOrdered = !TheScript().actions.empty() || TheScript().watch != nullptr;
}

Action* FindAction(std::string_view operation) {
  const auto found = TheScript().actions.find(operation);
  return found == TheScript().actions.end() ? nullptr : &found->second;
}

} // namespace

bool failuresOrdered = false;
bool actionsOrdered = false;

bool Recording() {
  return TheScript().recording;
}

void Record(std::string_view operation, std::string arguments) {
  TheScript().calls.push_back({std::string(operation), std::move(arguments)});
}

bool CountAgainstOrders(std::string_view operation) {
  Script& script = TheScript();
  // Both countdowns count the call even if one of them already fails it.
  const bool one = CountDown(script, operation);
  const bool every = CountDown(script, kEveryOperation);
  NoteOrders();
  return one || every || script.always.contains(operation) ||
         script.always.contains(kEveryOperation);
}

void FailCall(std::string_view operation, int n) {
  Script& script = TheScript();
  script.always.erase(std::string(operation));
  script.countdowns.erase(std::string(operation));
  if (n > 0)
    script.countdowns.emplace(operation, n);
  NoteOrders();
}

void FailAlways(std::string_view operation) {
  TheScript().always.emplace(operation);
  NoteOrders();
}

void OnCall(std::string_view operation, std::function<void()> action) {
  TheScript().actions.erase(std::string(operation));
  if (action)
    TheScript().actions.emplace(operation, Action{std::move(action)});
  NoteOrders();
}

void OnEachCall(CallWatch watch) {
  TheScript().watch = watch ? std::make_shared<const CallWatch>(std::move(watch)) : nullptr;
  NoteOrders();
}

void RunAction(std::string_view operation) {
  // A copy, since the action may withdraw itself.
  if (const std::shared_ptr<const CallWatch> watch = TheScript().watch)
    (*watch)(operation);
  Action* const action = FindAction(operation);
  if (action == nullptr || action->running)
    return;
  action->running = true;
  // A copy, looked up again afterwards: the action may withdraw itself.
  const std::function<void()> run = action->run;
  run();
  if (Action* const after = FindAction(operation))
    after->running = false;
}

const std::vector<Call>& Calls() {
  return TheScript().calls;
}

int CountCalls(std::string_view operation) {
  int count = 0;
  for (const Call& call : TheScript().calls)
    count += call.operation == operation ? 1 : 0;
  return count;
}

void ClearCalls() {
  TheScript().calls.clear();
}

void RecordCalls(bool on) {
  TheScript().recording = on;
}

void ResetScript() {
  TheScript() = Script();
  NoteOrders();
}

} // namespace standin
