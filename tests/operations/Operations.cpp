#include "tests/operations/Operations.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace operations {
namespace {

std::string_view NameIn(const char* signature) {
  const std::string_view text(signature);
  return text.substr(0, text.find('('));
}

Table Joined(std::initializer_list<Table> tables) {
  Table all;
  for (const Table& table : tables)
    all.insert(all.end(), table.begin(), table.end());
  return all;
}

} // namespace

std::string Arguments::Records() const {
  constexpr int kRecordSize = 19;
  constexpr int kMost = 1000;
  std::string bytes = records;
  bytes.resize(static_cast<std::size_t>(std::clamp(recordCount, 1, kMost)) * kRecordSize);
  return bytes;
}

const Table& ManagerOperations() {
  static const Table kTable =
      Joined({ListOperations(), DiagnosisOperations(), QueryOperations(), ExchangeOperations(),
              GroupOperations(), CloudOperations(), TradingOperations(), DialogOperations()});
  return kTable;
}

const Table& All() {
  static const Table kTable =
      Joined({ManagerOperations(), SymbolTableOperations(), OneListOperations(), TextOperations()});
  return kTable;
}

bool IsQuestion(const Operation& operation) {
  constexpr std::string_view kQuestions[] = {"Get",    "Is",    "Check",    "Find",  "LookUp",
                                             "Map",    "Holds", "JoinRows", "ToXml", "Cut",
                                             "Handle", "TQ",    "tq",       "Has"};
  std::string_view name = NameIn(operation.signature);
  if (const std::size_t scope = name.rfind(':'); scope != name.npos)
    name.remove_prefix(scope + 1);
  return std::any_of(std::begin(kQuestions), std::end(kQuestions),
                     [&](std::string_view start) { return name.starts_with(start); });
}

std::string NameOf(const Table& table, std::size_t index) {
  std::string name;
  for (const char letter : NameIn(table[index].signature))
    if (letter != ':')
      name += letter;
  const auto before =
      std::count_if(table.begin(), table.begin() + static_cast<std::ptrdiff_t>(index),
                    [&](const Operation& each) {
                      return NameIn(each.signature) == NameIn(table[index].signature);
                    });
  return before == 0 ? name : name + std::to_string(before + 1);
}

} // namespace operations
