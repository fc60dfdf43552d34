#include "terminal/control/Script.h"

#include <map>
#include <set>

#include "terminal/StandIn.h"
#include "terminal/control/Parts.h"

namespace standin {
namespace {

constexpr std::string_view kEveryOperation = "*";

struct Script {
  std::map<std::string, int, std::less<>> countdowns;
  std::set<std::string, std::less<>> always;
  std::map<std::string, std::function<void()>, std::less<>> functions;
  std::vector<Call> calls;
  bool recording = true;
};

Script& TheScript() {
  static Script script;
  return script;
}

// One call of what a countdown is for: true when it is the one that has to fail.
bool CountDown(Script& script, std::string_view operation) {
  const auto found = script.countdowns.find(operation);
  if (found == script.countdowns.end() || --found->second > 0)
    return false;
  script.countdowns.erase(found);
  return true;
}

// To be called whenever an order came or went.
void NoteOrders() {
  failuresOrdered = !TheScript().countdowns.empty() || !TheScript().always.empty();
  functionsOrdered = !TheScript().functions.empty();
}

bool functionRuns = false;

} // namespace

bool failuresOrdered = false;
bool functionsOrdered = false;

bool Recording() {
  return TheScript().recording;
}

void Record(std::string_view operation, std::string arguments) {
  TheScript().calls.push_back({std::string(operation), std::move(arguments)});
}

bool CountAgainstOrders(std::string_view operation) {
  Script& script = TheScript();
  // Both countdowns see the call, whichever of them strikes.
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

void OnCall(std::string_view operation, std::function<void()> function) {
  auto& functions = TheScript().functions;
  functions.erase(std::string(operation));
  if (function)
    functions.emplace(operation, std::move(function));
  NoteOrders();
}

void RunOrdered(std::string_view operation) {
  const auto& functions = TheScript().functions;
  const auto found = functions.find(operation);
  if (functionRuns || found == functions.end())
    return;
  const std::function<void()> function = found->second; // which may take its own order back
  functionRuns = true;
  function();
  functionRuns = false;
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
