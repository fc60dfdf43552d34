// The terminal handles messages while a service works, and may call any operation of the library
// from there. Here every operation runs within service calls of every other one. Whatever the two
// are, nothing freed is used, nothing leaks or hangs, lists stay whole and are saved whole, and
// what neither of the two removes is still there afterwards.
#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "platform/services/tqCommon.h"
#include "tests/operations/Crash.h"
#include "tests/operations/Operations.h"
#include "tests/operations/Subject.h"
#include "tests/support/WindowCount.h"

namespace operations {
namespace {

// How often each service was called.
using Counts = std::map<std::string, int>;

// The arguments of the operations in the matrix.
enum class Aim {
  Known, // existing lists, groups and symbols
  Other, // cloud lists, another group type, other flags; and no file can be written
};

Arguments ArgumentsFor(Aim aim) {
  Arguments a;
  if (aim == Aim::Known)
    return a;
  a.id = "c";
  a.name = "Nam\x01"
           "ed"; // with a byte that is left out, with a line in the log
  a.symbols = "2330.TW,\x02";
  a.kind = 8;
  a.number = 1;
  a.other = 0;
  a.flag = 0;
  a.type = 2;
  a.group = "AI";
  a.text = "2454.TW";
  a.records = "6488";
  a.system = "T2";
  a.account = "77";
  return a;
}

void Call(Subject& subject, std::size_t operation, Aim aim) {
  All()[operation].run(subject.Manager(), ArgumentsFor(aim));
}

// Runs an operation and calls `watch` in each service call that it makes.
void RunWatched(Subject& subject, std::size_t operation, Aim aim, standin::CallWatch watch) {
  subject.Disk().Refuse(aim == Aim::Other);
  standin::OnEachCall(std::move(watch));
  Call(subject, operation, aim);
  standin::OnEachCall({});
  subject.Disk().Refuse(false);
}

Counts CountCalls(std::size_t operation, Aim aim) {
  Subject subject;
  Counts counts;
  RunWatched(subject, operation, aim,
             [&](std::string_view service) { ++counts[std::string(service)]; });
  return counts;
}

// The operations called from within: a single one, or several queries.
struct Inner {
  std::vector<std::size_t> operations;

  std::string Name() const {
    std::string name;
    for (const std::size_t operation : operations)
      name += (name.empty() ? "" : ", ") + NameOf(All(), operation);
    return name;
  }
};

const std::vector<Inner>& Inners() {
  constexpr std::size_t kQuestionsAtOnce = 12;
  static const std::vector<Inner> kInners = [] {
    std::vector<Inner> inners;
    Inner questions;
    for (std::size_t i = 0; i < All().size(); ++i) {
      if (!IsQuestion(All()[i]))
        inners.push_back({{i}});
      else
        questions.operations.push_back(i);
      if (questions.operations.size() == kQuestionsAtOnce)
        inners.push_back(std::exchange(questions, {}));
    }
    inners.push_back(questions);
    return inners;
  }();
  return kInners;
}

struct Cell {
  std::size_t outer;
  std::string service;
  std::size_t inner; // of Inners()
  Aim aim;           // of both

  std::string Name() const {
    return Inners()[inner].Name() + " from within " + service + " of " + NameOf(All(), outer) +
           (aim == Aim::Known ? "" : ", aimed elsewhere");
  }
};

void CallInner(Subject& subject, const Cell& cell) {
  for (const std::size_t operation : Inners()[cell.inner].operations)
    Call(subject, operation, cell.aim);
}

void CallTwice(Subject& subject, const Cell& cell) {
  CallInner(subject, cell);
  CallInner(subject, cell);
}

// The calls of a service within which inner operations run: ever fewer, because attributes are read
// dozens of times for each symbol.
bool IsChosen(int call) {
  return call == 1 || call == 2 || call == 5 || call == 16 || call == 64;
}

// All pairs of operations with all services would take minutes. So each pair is tried in one
// service of the outer operation and with one aim, which vary from pair to pair and with the
// language, unless the environment variable TQ_WHOLE_MATRIX asks for all. With real windows, which
// the dialogs open by the hundred, the languages share the pairs.
bool IsTried(std::size_t outer, std::size_t inner, std::size_t place, std::size_t places) {
  static const bool kAll = std::getenv("TQ_WHOLE_MATRIX") != nullptr;
  const std::size_t turn = outer + inner + (IsTraditionChinese() != 0 ? 0 : 1);
  return kAll || (turn % places == place && TakesCase(outer + inner));
}

class ReentryMatrix : public testing::TestWithParam<std::size_t> {
protected:
  ReentryMatrix() { PrepareServices(); }
  ~ReentryMatrix() override { standin::Reset(); }

  static void RunNested(Subject& subject, const Cell& cell) {
    int calls = 0;
    bool inside = false;
    RunWatched(subject, cell.outer, cell.aim, [&](std::string_view service) {
      if (inside || service != cell.service || !IsChosen(++calls))
        return;
      inside = true;
      CallInner(subject, cell);
      inside = false;
    });
  }

  enum class Order { OuterAlone, InnerAlone, OuterFirst, InnerFirst };

  // The state afterwards, cached for pairs where only one of the two operations matters.
  static Probes Left(const Cell& cell, Order order) {
    static std::map<std::tuple<Order, std::size_t, Aim>, Probes> kept;
    if (order != Order::OuterAlone && order != Order::InnerAlone)
      return After(cell, order);
    const std::size_t alone = order == Order::OuterAlone ? cell.outer : cell.inner;
    const auto found = kept.find({order, alone, cell.aim});
    return found != kept.end() ? found->second
                               : kept[{order, alone, cell.aim}] = After(cell, order);
  }

  // The state after the operations run in sequence. The inner one runs twice, as it may when
  // nested.
  static Probes After(const Cell& cell, Order order) {
    Subject subject;
    if (order == Order::InnerAlone || order == Order::InnerFirst)
      CallTwice(subject, cell);
    if (order != Order::InnerAlone)
      RunWatched(subject, cell.outer, cell.aim, {});
    if (order == Order::OuterFirst)
      CallTwice(subject, cell);
    return subject.Probe();
  }

  // What remains after both in sequence, in either order, must remain after nesting.
  static void ExpectNothingLost(const Cell& cell, Probes left) {
    Probes lost = ~left;
    for (const Order order :
         {Order::OuterAlone, Order::InnerAlone, Order::OuterFirst, Order::InnerFirst})
      if (lost.any())
        lost &= Left(cell, order);
    for (std::size_t bit = 0; bit < lost.size(); ++bit)
      EXPECT_FALSE(lost[bit] && NameOfProbe(bit) != MeantLoss(cell))
          << "lost: " << NameOfProbe(bit);
  }

  // During a start the manager's lists are not loaded yet. If the terminal clears them then, the
  // import of older lists saves without them, and an account list whose identifier is compared with
  // those of the user's lists finds none.
  static std::string MeantLoss(const Cell& cell) {
    const std::string outer = NameOf(All(), cell.outer);
    if (outer != "Init" && outer != "Init2")
      return "";
    const std::string inner = Inners()[cell.inner].Name();
    if (inner == "ClearSymbolList")
      return "list z in the file";
    return inner == "AddTSSymbolList" ? "one trading list for each identifier" : "";
  }

  static void RunCell(const Cell& cell) {
    const std::string name = cell.Name();
    SCOPED_TRACE(name);
    const CrashNote note(name);
    const int arrays = standin::OutstandingArrays();
    Subject subject;
    RunNested(subject, cell);
    ExpectNothingLost(cell, subject.Probe());
    EXPECT_EQ(subject.Broken(), "");
    subject.End();
    EXPECT_EQ(standin::OutstandingArrays(), arrays);
    EXPECT_EQ(standin::BadReleases(), 0);
  }

  // The services that the outer operation calls with its aim.
  static std::vector<std::pair<std::string, Aim>> Places(std::size_t outer) {
    std::vector<std::pair<std::string, Aim>> places;
    for (const Aim aim : {Aim::Known, Aim::Other})
      for (const auto& [service, count] : CountCalls(outer, aim))
        places.emplace_back(service, aim);
    return places;
  }
};

TEST_P(ReentryMatrix, StandsEveryOperationFromWithinItsServiceCalls) {
  const auto places = Places(GetParam());
  for (std::size_t place = 0; place < places.size(); ++place)
    for (std::size_t inner = 0; inner < Inners().size(); ++inner)
      if (IsTried(GetParam(), inner, place, places.size()))
        RunCell({GetParam(), places[place].first, inner, places[place].second});
  ExpectNoLeak();
}

INSTANTIATE_TEST_SUITE_P(Of, ReentryMatrix, testing::Range<std::size_t>(0, All().size()),
                         [](const auto& each) { return NameOf(All(), each.param); });

} // namespace
} // namespace operations
